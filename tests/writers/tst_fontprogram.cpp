#include "fontsamples.h"

#include "writers/emitter/fontmetrics_p.h"

#include <QFontDatabase>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QtTest>

#include <numeric>

Q_DECLARE_METATYPE(uiutils::pdf::Embedding)

using namespace uiutils::pdf;
using namespace fontsamples;

namespace {

QRawFont rawFont(const QString& family)
{
    QFont font(family);
    font.setPixelSize(1000);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

QRawFont rawFont(const QByteArray& file)
{
    return QRawFont(file, 1000, QFont::PreferNoHinting);
}

QVector<quint16> glyphsOf(const QRawFont& font, const QString& text)
{
    QVector<quint16> glyphs;
    for (const quint32 glyph : font.glyphIndexesForString(text))
        glyphs.append(quint16(glyph));
    return glyphs;
}

Tables dejaVu()
{
    static const Tables tables = fontsamples::tablesOf(rawFont(QStringLiteral("DejaVu Sans")));
    return tables;
}

QVector<int> sequence(int begin, int count)
{
    QVector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), begin);
    return numbers;
}

Tables keyedByCid()
{
    return cffFont(dejaVu(), cff({70, 50, 60}, true), 4);
}

/// An independent reader draws these glyphs as the font has them, and leaves out `missing`.
void compareOutlines(const QRawFont& font, const FontProgram& program, const QVector<quint16>& glyphs, quint16 missing)
{
    QCOMPARE(program.error, QString());
    const QRawFont subset = rawFont(program.data);
    QVERIFY(subset.isValid());
    for (const quint16 glyph : glyphs)
        QCOMPARE(subset.pathForGlyph(glyph), font.pathForGlyph(glyph));
    QVERIFY(!font.pathForGlyph(missing).isEmpty());
    QVERIFY(subset.pathForGlyph(missing).isEmpty());
}

} // namespace

class TestFontProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void trueType_data();
    void trueType();
    void cffIsCodedByGlyph_data();
    void cffIsCodedByGlyph();
    void facesOfACollection();
    void glyphsBecomeASet();
    void indivisible();
    void embedding_data();
    void embedding();
    void metrics();
    void widths();
    void damaged_data();
    void damaged();
    void cyclicComposite();
};

void TestFontProgram::initTestCase()
{
    QCOMPARE(dejaVu().value("head").size(), 54);
}

void TestFontProgram::trueType_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("text");
    QTest::newRow("composite glyphs") << "DejaVu Sans" << "WägÅΩ";
    QTest::newRow("ideographs") << "Droid Sans Fallback" << "日本語";
}

void TestFontProgram::trueType()
{
    QFETCH(QString, family);
    QFETCH(QString, text);
    const QRawFont font = rawFont(family);
    QCOMPARE(font.familyName(), family);
    QCOMPARE(embeddingOf(font), Embedding::Allowed);
    const QVector<quint16> glyphs = glyphsOf(font, text);
    const FontProgram program = fontProgram(font, glyphs);
    QCOMPARE(program.kind, FontProgram::TrueType);
    compareOutlines(font, program, glyphs, glyphsOf(font, text.left(1) == "W" ? "Q" : "中").first());
    const QRawFont subset = rawFont(program.data);
    QCOMPARE(subset.fontTable("fpgm") + subset.fontTable("GSUB") + subset.fontTable("name"), QByteArray());
    // Instructions would call functions that are not there any more.
    QCOMPARE(subset.fontTable("maxp").mid(26, 2), u16(0));
    const Tables tables = fontsamples::tablesOf(subset);
    QCOMPARE(glyphWidths(access(tables), glyphs), glyphWidths(font, glyphs));
}

void TestFontProgram::cffIsCodedByGlyph_data()
{
    QTest::addColumn<QVector<int>>("cids");
    QTest::addColumn<bool>("isCidKeyed");
    QTest::newRow("names") << sequence(1, 3) << false;
    QTest::newRow("single numbers") << QVector<int> {70, 50, 60} << true;
    QTest::newRow("short ranges") << sequence(500, 256) + sequence(900, 256) << true;
    QTest::newRow("a long range") << sequence(1000, 300) << true;
}

void TestFontProgram::cffIsCodedByGlyph()
{
    QFETCH(QVector<int>, cids);
    QFETCH(bool, isCidKeyed);
    const Tables tables = cffFont(dejaVu(), cff(cids, isCidKeyed), cids.size() + 1);
    QCOMPARE(embeddingOf(access(tables)), Embedding::Allowed);
    const QVector<quint16> glyphs {1, quint16(cids.size())};
    const FontProgram program = fontProgram(access(tables), glyphs);
    QCOMPARE(program.kind, FontProgram::Cff);
    // A reader of the bare table takes what it is given for a CID, where the characters have CIDs.
    compareOutlines(rawFont(face(tables)), program, glyphs, 2);
}

void TestFontProgram::facesOfACollection()
{
    Tables second = dejaVu();
    second.insert("name", names("Sample Second", "Sample"));
    Tables first = keyedByCid();
    first.insert("name", names("Sample First", "Sample"));
    const int id = QFontDatabase::addApplicationFontFromData(collection(first, second));
    QCOMPARE(QFontDatabase::applicationFontFamilies(id), (QStringList {"Sample First", "Sample Second"}));
    const QRawFont font = rawFont(QStringLiteral("Sample Second"));
    compareOutlines(font, fontProgram(font, glyphsOf(font, "A")), glyphsOf(font, "A"), glyphsOf(font, "B").first());
    QCOMPARE(fontProgram(rawFont(QStringLiteral("Sample First")), {1}).kind, FontProgram::Cff);
}

void TestFontProgram::glyphsBecomeASet()
{
    const FontProgram program = fontProgram(access(dejaVu()), {36, 40, 36, 65535});
    const FontProgram same = fontProgram(access(dejaVu()), {0, 36, 40});
    QCOMPARE(program.data, same.data);
    QCOMPARE(program.tag, same.tag);
    QVERIFY(QRegularExpression("^[A-Z]{6}\\+$").match(program.tag).hasMatch());
    QVERIFY(fontProgram(access(dejaVu()), {36, 41}).tag != program.tag);
    // A text may have nothing but blanks.
    QCOMPARE(fontProgram(access(dejaVu()), {3}).kind, FontProgram::TrueType);
}

void TestFontProgram::indivisible()
{
    Tables tables = dejaVu();
    tables.insert("OS/2", patched(tables.value("OS/2"), 8, u16(0x0100)));
    QCOMPARE(embeddingOf(access(tables)), Embedding::Allowed);
    const FontProgram program = fontProgram(access(tables), {36});
    QCOMPARE(program.tag, QByteArray());
    QCOMPARE(rawFont(program.data).pathForGlyph(6000), rawFont(QStringLiteral("DejaVu Sans")).pathForGlyph(6000));
}

void TestFontProgram::embedding_data()
{
    QTest::addColumn<Tables>("tables");
    QTest::addColumn<Embedding>("expected");
    const auto row = [](const char* name, const char* tag, int at, const QByteArray& bytes, Embedding expected) {
        Tables tables = dejaVu();
        tables.insert(tag, patched(tables.value(tag), at, bytes));
        QTest::newRow(name) << tables << expected;
    };
    row("restricted", "OS/2", 8, u16(0x0002), Embedding::Forbidden);
    row("restricted, but may be printed", "OS/2", 8, u16(0x0006), Embedding::Allowed);
    row("may be edited", "OS/2", 8, u16(0x0008), Embedding::Allowed);
    row("bitmaps only", "OS/2", 8, u16(0x0200), Embedding::Forbidden);
    row("variable", "fvar", 0, "x", Embedding::Variable);
    row("variable CFF", "CFF2", 0, "x", Embedding::Variable);
    row("units of nothing", "head", 18, u16(0), Embedding::Broken);
    row("no magic", "head", 12, u16(0), Embedding::Broken);
    row("more glyphs than there are", "maxp", 4, u16(65535), Embedding::Broken);
    row("no glyphs", "maxp", 4, u16(0), Embedding::Broken);
    row("no widths", "hhea", 34, u16(0), Embedding::Broken);
    row("empty outlines", "loca", 0, QByteArray(dejaVu().value("loca").size(), '\0'), Embedding::NoOutlines);
    row("CFF without CFF", "maxp", 0, u32(0x5000), Embedding::NoOutlines);
    for (const char* tag : {"head", "hhea", "hmtx", "loca", "maxp"}) {
        Tables tables = dejaVu();
        tables.insert(tag, tables.value(tag).left(tables.value(tag).size() / 2 - 1));
        QTest::addRow("half of %s", tag) << tables << (tag == QByteArray("maxp") ? Embedding::Allowed : Embedding::Broken);
    }
    QTest::newRow("no tables") << Tables() << Embedding::NoTables;
}

void TestFontProgram::embedding()
{
    QFETCH(Tables, tables);
    QFETCH(Embedding, expected);
    QCOMPARE(embeddingOf(access(tables)), expected);
}

void TestFontProgram::metrics()
{
    Tables tables;
    tables.insert("head", patched(QByteArray(54, '\0'), 18, u16(2000)));
    tables["head"] = patched(tables["head"], 36, u16(-100) + u16(-500) + u16(2400) + u16(1900));
    tables.insert("hhea", u32(0x10000) + u16(1800) + u16(-400));
    tables.insert("OS/2", patched(QByteArray(96, '\0'), 0, u16(4) + u16(0) + u16(700)));
    tables["OS/2"] = patched(tables["OS/2"], 88, u16(1460));
    tables.insert("post", u32(0x30000) + u32(quint32(qint32(-12.5 * 65536))) + u32(0) + u32(1));
    tables.insert("name", names("Sample", "Sam(p)le/One Bold"));
    const FontMetrics metrics = fontMetrics(access(tables));
    QCOMPARE(metrics.postScriptName, QByteArray("SampleOneBold"));
    QCOMPARE((QVector<int> {metrics.left, metrics.bottom, metrics.right, metrics.top}), (QVector<int> {-50, -250, 1200, 950}));
    QCOMPARE((QVector<int> {metrics.ascent, metrics.descent, metrics.capHeight}), (QVector<int> {900, -200, 730}));
    QCOMPARE(metrics.italicAngle, -12.5);
    QCOMPARE(metrics.flags, 1U + 4U + 64U);
    // What is missing or broken gives finite answers.
    tables = {{"name", names("Sample", "日本").left(60)}};
    QCOMPARE(fontMetrics(access(tables)).postScriptName, QByteArray("Font"));
    QCOMPARE(fontMetrics(access(tables)).flags, 4U);
}

void TestFontProgram::widths()
{
    Tables tables = keyedByCid();
    QCOMPARE(glyphWidths(access(tables), {0, 3, 4}), (QVector<double> {300, 303, 0}));
    tables["hhea"] = patched(tables["hhea"], 34, u16(2));
    QCOMPARE(glyphWidths(access(tables), {1, 2, 3}), (QVector<double> {301, 301, 301}));
    tables["hmtx"].truncate(5);
    QCOMPARE(glyphWidths(access(tables), {1, 3}), (QVector<double> {0, 0}));
}

void TestFontProgram::damaged_data()
{
    QTest::addColumn<Tables>("tables");
    QTest::newRow("TrueType") << dejaVu();
    QTest::newRow("CFF keyed by names") << cffFont(dejaVu(), cff(sequence(1, 3), false), 4);
    QTest::newRow("CFF keyed by CIDs") << keyedByCid();
}

/// Damage ends in a program that a reader survives, or in words.
void TestFontProgram::damaged()
{
    QFETCH(Tables, tables);
    QRandomGenerator random(1);
    for (int round = 0; round < 600; ++round) {
        Tables broken = tables;
        const QVector<QByteArray> tags = broken.keys().toVector();
        QByteArray& table = broken[tags[random.bounded(tags.size())]];
        const int near = random.bounded(2) ? qMin(64, table.size()) : table.size();
        if (round % 4 == 0)
            table.truncate(random.bounded(near));
        for (int bytes = round % 4; bytes > 0; --bytes)
            table[random.bounded(near)] = char(random.bounded(4) ? random.bounded(256) : 255);
        const FontProgram program = fontProgram(access(broken), {1, 2, 3, 130, 200});
        embeddingOf(access(broken));
        fontMetrics(access(broken));
        QCOMPARE(program.data.isEmpty(), !program.error.isEmpty());
        QCOMPARE(program.data.isEmpty(), program.kind == FontProgram::None);
        const QRawFont subset = rawFont(program.data);
        for (quint32 glyph = 0; subset.isValid() && glyph < 200; ++glyph)
            subset.pathForGlyph(glyph);
    }
}

void TestFontProgram::cyclicComposite()
{
    Tables tables = dejaVu();
    const QRawFont font = rawFont(QStringLiteral("DejaVu Sans"));
    const quint16 a = glyphsOf(font, "A").first();
    const quint16 composite = glyphsOf(font, "Ä").first();
    const auto at = int(qFromBigEndian<quint32>(tables["loca"].constData() + composite * 4));
    QCOMPARE(qFromBigEndian<qint16>(tables["glyf"].constData() + at), qint16(-1));
    QCOMPARE(qFromBigEndian<quint16>(tables["glyf"].constData() + at + 12), a);
    tables["glyf"] = patched(tables["glyf"], at + 12, u16(composite));
    compareOutlines(font, fontProgram(access(tables), {a, composite}), {a}, glyphsOf(font, "B").first());
}

QTEST_MAIN(TestFontProgram)
#include "tst_fontprogram.moc"
