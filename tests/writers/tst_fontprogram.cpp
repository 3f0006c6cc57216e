#include "writers/emitter/fontmetrics_p.h"
#include "writers/emitter/fontprogram_p.h"

#include <QFont>
#include <QPainterPath>
#include <QtTest>

using namespace uiutils::pdf;

namespace {

QRawFont rawFont(const QString& family)
{
    QFont font(family);
    font.setPixelSize(1000);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

QVector<quint16> glyphsOf(const QRawFont& font, const QString& text)
{
    QVector<quint16> glyphs;
    for (const quint32 glyph : font.glyphIndexesForString(text))
        glyphs.append(quint16(glyph));
    return glyphs;
}

} // namespace

class TestFontProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subsetDrawsTheSame_data();
    void subsetDrawsTheSame();
};

void TestFontProgram::subsetDrawsTheSame_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("text");
    QTest::newRow("composite glyphs") << "DejaVu Sans" << "Wäg ÅΩ";
    QTest::newRow("ideographs") << "Droid Sans Fallback" << "日本語";
}

void TestFontProgram::subsetDrawsTheSame()
{
    QFETCH(QString, family);
    QFETCH(QString, text);
    const QRawFont font = rawFont(family);
    QCOMPARE(font.familyName(), family);
    const QVector<quint16> glyphs = glyphsOf(font, text);
    QVERIFY(!glyphs.contains(0));
    QCOMPARE(embeddingOf(font), Embedding::Allowed);
    const FontProgram program = fontProgram(font, glyphs);
    QCOMPARE(program.error, QString());
    const QRawFont subset(program.data, 1000, QFont::PreferNoHinting);
    QVERIFY(subset.isValid());
    const QVector<double> widths = glyphWidths(font, glyphs);
    for (int i = 0; i < glyphs.size(); ++i) {
        QCOMPARE(subset.pathForGlyph(glyphs[i]), font.pathForGlyph(glyphs[i]));
        const QPointF advance = subset.advancesForGlyphIndexes({glyphs[i]}).first();
        QVERIFY2(qAbs(advance.x() - widths[i]) < 0.6, qPrintable(QString("%1 %2").arg(advance.x()).arg(widths[i])));
    }
}

QTEST_MAIN(TestFontProgram)
#include "tst_fontprogram.moc"
