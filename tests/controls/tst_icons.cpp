#include "columns.h"

#include "icondrawing.h"
#include "iconpath.h"
#include "iconpicture.h"
#include "iconpictures.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace uiutils;

namespace {

constexpr int side = 48;

/// The picture of a drawing with that contents: two pixels for each unit.
QImage pictureOf(const QByteArray& contents, const QColor& color = Qt::black, bool isMirrored = false)
{
    QByteArray text = "<svg viewBox=\"0 0 24 24\" fill=\"none\" stroke=\"#000000\" stroke-width=\"2\">" + contents + "</svg>";
    QBuffer file(&text);
    IconDrawing drawing;
    if (!file.open(QIODevice::ReadOnly) || !drawing.read(&file).isEmpty())
        return QImage();
    return drawing.picture(side, color, isMirrored);
}

QString problemOf(QByteArray text)
{
    QBuffer file(&text);
    IconDrawing drawing;
    return file.open(QIODevice::ReadOnly) ? drawing.read(&file) : QString();
}

/// At a place in units.
int alphaAt(const QImage& picture, double x, double y)
{
    return qAlpha(picture.pixel(int(x * 2), int(y * 2)));
}

} // namespace

class IconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A drawing that is in the tree is in the module, can be read, and stays within its square.
    void everyDrawing()
    {
        const QStringList drawings = QDir(UIUTILS_SOURCE_DIR "/assets/icons").entryList({"*.svg"});
        QCOMPARE(QDir(":/uiutils/icons").entryList({"*.svg"}), drawings);
        QVERIFY(drawings.size() > 40);
        for (const QString& drawing : drawings) {
            const QImage picture = iconPicture(drawing.chopped(4), side, Qt::black, false);
            QCOMPARE(picture.size(), QSize(side, side));
            int ink = 0;
            for (int i = 0; i < side * side; ++i) {
                const int alpha = qAlpha(picture.pixel(i % side, i / side));
                const bool isAtEdge = i % side == 0 || i % side == side - 1 || i / side == 0 || i / side == side - 1;
                QVERIFY2(!isAtEdge || alpha < 128, qPrintable(drawing));
                ink += alpha > 128;
            }
            // From a single line to a full square.
            QVERIFY2(ink > side && ink < side * side * 2 / 3, qPrintable(drawing));
        }
    }

    /// Through two points go two circles of a radius, with two arcs each.
    void arcs_data()
    {
        addColumns<QString, QPointF, QPointF>();
        // A chord of 12 in a circle of radius 10: the middle is 8 above or below it.
        QTest::newRow("short, clockwise") << "M0 0 A10 10 0 0 1 12 0" << QPointF(6, 8) << QPointF(6, -2);
        QTest::newRow("long, clockwise") << "M0 0 A10 10 0 1 1 12 0" << QPointF(6, -8) << QPointF(6, -18);
        QTest::newRow("short, against the clock") << "M0 0 A10 10 0 0 0 12 0" << QPointF(6, -8) << QPointF(6, 2);
        QTest::newRow("long, against the clock") << "M0 0 A10 10 0 1 0 12 0" << QPointF(6, 8) << QPointF(6, 18);
        QTest::newRow("too small") << "M0 0 A2 2 0 0 1 12 0" << QPointF(6, 0) << QPointF(6, -6);
        QTest::newRow("upwards") << "M0 12 A10 10 0 0 1 0 0" << QPointF(8, 6) << QPointF(-2, 6);
    }

    void arcs()
    {
        const auto [text, middle, apex] = currentRow<QString, QPointF, QPointF>();
        QPainterPath path;
        QCOMPARE(readIconPath(QStringRef(&text), &path), QString());
        const QPointF end = path.currentPosition();
        QVERIFY(QLineF(end, text.startsWith("M0 0") ? QPointF(12, 0) : QPointF(0, 0)).length() < 0.01);
        const double radius = QLineF(middle, apex).length();
        for (double share = 0; share <= 1; share += 0.125)
            QVERIFY(qAbs(QLineF(middle, path.pointAtPercent(share)).length() - radius) < 0.01);
        QVERIFY(QLineF(path.pointAtPercent(0.5), apex).length() < 0.01);
    }

    void outlines()
    {
        const QString text = "M1 2 H5 V-3.5 L4,1 C4 2 5 3 6 4 Z";
        QPainterPath path;
        // A comma would be another notation.
        QVERIFY(!readIconPath(QStringRef(&text), &path).isEmpty());
        const QString right = "M1 2H5 V-3.5 L4 1 C4 2 5 3 6 4 Z";
        QPainterPath expected({1, 2});
        expected.lineTo(5, 2);
        expected.lineTo(5, -3.5);
        expected.lineTo(4, 1);
        expected.cubicTo(4, 2, 5, 3, 6, 4);
        expected.closeSubpath();
        QPainterPath read;
        QCOMPARE(readIconPath(QStringRef(&right), &read), QString());
        QCOMPARE(read, expected);
    }

    /// What is not drawn must not be taken for something else.
    void whatIsNotRead_data()
    {
        addColumns<QByteArray>();
        const auto drawing = [](const QByteArray& contents) { return "<svg viewBox=\"0 0 24 24\">" + contents + "</svg>"; };
        QTest::newRow("another square") << QByteArray("<svg viewBox=\"0 0 48 48\"/>");
        QTest::newRow("no end") << QByteArray("<svg viewBox=\"0 0 24 24\"><g>");
        QTest::newRow("unknown element") << drawing("<ellipse/>");
        QTest::newRow("unknown transform") << drawing("<g transform=\"scale(2)\"/>");
        QTest::newRow("unknown command") << drawing("<path d=\"M1 2 Q3 4 5 6\"/>");
        QTest::newRow("relative") << drawing("<path d=\"M1 2 l3 4\"/>");
        QTest::newRow("number missing") << drawing("<path d=\"M1 2 L3\"/>");
        QTest::newRow("number too many") << drawing("<path d=\"M1 2 L3 4 5\"/>");
        QTest::newRow("no circle") << drawing("<path d=\"M1 2 A3 4 0 0 1 5 6\"/>");
    }

    void whatIsNotRead()
    {
        const auto [text] = currentRow<QByteArray>();
        QVERIFY(!problemOf(text).isEmpty());
        QCOMPARE(problemOf("<svg viewBox=\"0 0 24 24\"><path d=\"M1 2 L3 4\"/></svg>"), QString());
    }

    /// Lines have the width of the drawing unless they have their own; areas are filled on request.
    void shapes()
    {
        const QImage frame = pictureOf("<rect x=\"4\" y=\"4\" width=\"16\" height=\"8\"/>");
        QCOMPARE(alphaAt(frame, 3.25, 8), 255);
        QCOMPARE(alphaAt(frame, 4.75, 8), 255);
        QCOMPARE(alphaAt(frame, 5.25, 8), 0);
        const QImage thin = pictureOf("<rect x=\"4\" y=\"4\" width=\"16\" height=\"8\" stroke-width=\"1\" fill=\"#000000\"/>");
        QCOMPARE(alphaAt(thin, 3.25, 8), 0);
        QCOMPARE(alphaAt(thin, 8, 8), 255);
        const QImage dot = pictureOf("<circle cx=\"12\" cy=\"12\" r=\"4\" fill=\"#000000\" stroke=\"none\"/>");
        QCOMPARE(alphaAt(dot, 12, 15), 255);
        QCOMPARE(alphaAt(dot, 12, 16.5), 0);
        const QImage round = pictureOf("<rect x=\"4\" y=\"4\" width=\"16\" height=\"16\" rx=\"8\" fill=\"#000000\" stroke=\"none\"/>");
        QCOMPARE(alphaAt(round, 5, 5), 0);
    }

    /// A line to the right, turned to point upwards, and what is outside of the group.
    void rotation()
    {
        const QImage turned = pictureOf("<g transform=\"rotate(-90 12 12)\"><path d=\"M12 12 H20\"/></g><path d=\"M2 20 H4\"/>");
        QCOMPARE(alphaAt(turned, 12, 6), 255);
        QCOMPARE(alphaAt(turned, 18, 12), 0);
        QCOMPARE(alphaAt(turned, 3, 20), 255);
    }

    /// What a mask cuts out shows what is behind the icon; the colour is the same wherever shapes overlap.
    void cutsAndColours()
    {
        const QImage cut = pictureOf("<mask id=\"cut\"><rect width=\"24\" height=\"24\" fill=\"#ffffff\" stroke=\"none\"/>"
                                     "<path d=\"M8 12 H16\" stroke=\"#000000\"/></mask>"
                                     "<g mask=\"url(#cut)\"><rect x=\"4\" y=\"4\" width=\"16\" height=\"16\" fill=\"#000000\"/></g>");
        QCOMPARE(alphaAt(cut, 12, 12), 0);
        QCOMPARE(alphaAt(cut, 12, 8), 255);
        const QImage faint = pictureOf("<path d=\"M4 12 H20\"/><path d=\"M12 4 V20\"/>", QColor(200, 100, 0, 128));
        QCOMPARE(faint.pixelColor(24, 24).alpha(), 128);
        QCOMPARE(faint.pixelColor(24, 24), faint.pixelColor(14, 24));
        QVERIFY(qAbs(faint.pixelColor(24, 24).red() - 200) <= 1);
    }

    void mirrored()
    {
        const QByteArray left = "<path d=\"M4 6 H8\"/>";
        QCOMPARE(alphaAt(pictureOf(left), 6, 6), 255);
        QCOMPARE(alphaAt(pictureOf(left, Qt::black, true), 6, 6), 0);
        QCOMPARE(alphaAt(pictureOf(left, Qt::black, true), 18, 6), 255);
        const QImage back = iconPicture("back", side, Qt::red, false);
        QCOMPARE(alphaAt(back, 8.5, 12), 255);
        QCOMPARE(alphaAt(back, 15.5, 12), 0);
        QCOMPARE(alphaAt(iconPicture("back", side, Qt::red, true), 15.5, 12), 255);
        // A clock goes the same way everywhere.
        QCOMPARE(iconPicture("clock", side, Qt::red, true), iconPicture("clock", side, Qt::red, false));
    }

    /// Pictures are kept, each for its own size and colour.
    void kept()
    {
        for (const QColor& color : {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::red)})
            QCOMPARE(iconPicture("stop", side, color, false).pixelColor(side / 2, side / 2), color);
        QCOMPARE(iconPicture("stop", side + 1, Qt::red, false).width(), side + 1);
        QVERIFY(iconPicture("stop", 0, Qt::red, false).isNull());
    }

    /// An icon on the screen follows its name, size and colour, and the layout of the application.
    void shown()
    {
        QQuickWindow window;
        window.resize(100, 100);
        IconPicture icon(window.contentItem());
        icon.setName("back");
        icon.setSize(40);
        icon.setColor(Qt::red);
        QCOMPARE(QSizeF(icon.width(), icon.height()), QSizeF(40, 40));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto isShown = [&](const QString& name, int size, const QColor& color, bool isMirrored) {
            const QSharedPointer<QQuickItemGrabResult> grabbed = window.contentItem()->grabToImage();
            if (!grabbed || !QSignalSpy(grabbed.data(), &QQuickItemGrabResult::ready).wait(60000))
                return false;
            const QImage seen = grabbed->image().convertToFormat(QImage::Format_ARGB32_Premultiplied);
            QImage expected(100, 100, seen.format());
            expected.fill(Qt::transparent);
            QPainter(&expected).drawImage(0, 0, iconPicture(name, size, color, isMirrored));
            return seen == expected;
        };
        QVERIFY(isShown("back", 40, Qt::red, false));
        icon.setColor(Qt::blue);
        QVERIFY(isShown("back", 40, Qt::blue, false));
        icon.setSize(25);
        QVERIFY(isShown("back", 25, Qt::blue, false));
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(isShown("back", 25, Qt::blue, true));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        icon.setName("home");
        QVERIFY(isShown("home", 25, Qt::blue, false));
        QTest::ignoreMessage(QtWarningMsg, "The icon \"hom\" does not exist.");
        icon.setName("hom");
        QVERIFY(isShown(QString(), 25, Qt::blue, false));
        icon.setName("home");
        QVERIFY(isShown("home", 25, Qt::blue, false));
    }
};

QTEST_MAIN(IconsTest)
#include "tst_icons.moc"
