#include "fontsamples.h"

#include "writers/emitter/fontcoverage_p.h"
#include "writers/pages/fontchoice_p.h"

#include <QFontDatabase>
#include <QtTest>

using namespace fontsamples;
using uiutils::embeddableFamily;

namespace {

constexpr uint shared = 0x100000;
constexpr uint forbiddenOnly = 0x100100;

void install(const QString& family, uint character, int permissions)
{
    Tables tables = tablesOf(QRawFont::fromFont(QFont("DejaVu Sans")));
    tables.insert("name", names(family, "Sample"));
    tables.insert("cmap", cmap(character));
    tables.insert("OS/2", patched(tables["OS/2"], 8, u16(permissions)));
    const int id = QFontDatabase::addApplicationFontFromData(face(tables));
    QCOMPARE(QFontDatabase::applicationFontFamilies(id), QStringList(family));
}

} // namespace

class TestFontChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void firstThatMayBeEmbedded();
    void ranges();
};

void TestFontChoice::initTestCase()
{
    // In the order of the alphabet the wrong ones come first.
    install("Aaa Sans", shared, 0x0002);
    install("Bbb Serif", shared, 0);
    install("Zzz Sans", shared, 0);
    install("Ccc Sans", forbiddenOnly, 0x0002);
}

void TestFontChoice::firstThatMayBeEmbedded()
{
    QCOMPARE(embeddableFamily(shared), QString("Zzz Sans"));
    QCOMPARE(embeddableFamily(forbiddenOnly), QString());
    QVERIFY(!embeddableFamily('A').isEmpty());
    QCOMPARE(embeddableFamily(0x4e2d), QString("Droid Sans Fallback"));
    QCOMPARE(embeddableFamily(shared), QString("Zzz Sans"));
}

void TestFontChoice::ranges()
{
    using uiutils::pdf::fontCoverage;
    using uiutils::pdf::mayShow;
    const auto sound = fontCoverage(access({{"cmap", cmap(0x10400)}}));
    QVERIFY(mayShow(sound, 0x10400) && mayShow(sound, 0x1043f) && !mayShow(sound, 0x10440) && !mayShow(sound, 0x103ff));
    // More groups than the table holds, and a range that ends before it begins.
    QVERIFY(fontCoverage(access({{"cmap", patched(cmap(0x10400), 24, u32(0xffffffff))}})).size() <= 2);
    QVERIFY(fontCoverage(access({{"cmap", patched(cmap(0x10400), 32, u32(0))}})).empty());
    // Segments that contain each other, as no sound font has them, hide none.
    const QByteArray segments = u16(4) + u16(40) + u16(0) + u16(6) + u32(0) + u16(0) + u16(0x50) + u16(0x90) + u16(0xffff) + u16(0)
        + u16(0x45) + u16(0x20) + u16(0xffff);
    const auto nested = fontCoverage(access({{"cmap", u16(0) + u16(1) + u16(0) + u16(3) + u32(12) + segments}}));
    QVERIFY(mayShow(nested, 0x20) && mayShow(nested, 0x48) && mayShow(nested, 0x90) && !mayShow(nested, 0x91));
}

QTEST_MAIN(TestFontChoice)
#include "tst_fontchoice.moc"
