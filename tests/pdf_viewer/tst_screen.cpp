#include "columns.h"

#include "language.h"
#include "pageitem.h"
#include "viewerdocument.h"
#include "viewersamples.h"
#include "viewertypes.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QTouchDevice>

#include <memory>

using namespace uiutils::viewer;

/// The screen with real files, operated as users do, and compared with what it shows.
class ScreenTest : public QObject
{
    Q_OBJECT

private:
    void show(const QByteArray& contents)
    {
        m_document = std::make_unique<ViewerDocument>();
        const QString file = m_folder.filePath(contents.isEmpty() ? "none.pdf" : "a.pdf");
        m_document->open(contents.isEmpty() ? file : writeFile(file, contents));
        m_engine = std::make_unique<QQmlApplicationEngine>();
        connect(m_engine.get(), &QQmlEngine::warnings, this, [this](const QList<QQmlError>& warnings) {
            for (const QQmlError& warning : warnings)
                m_warnings += warning.toString();
        });
        m_engine->setInitialProperties({{"document", QVariant::fromValue(m_document.get())}, {"title", "A title"},
                {"dotsPerInch", 72}});
        m_engine->load(QUrl("qrc:/uiutils/viewer/Main.qml"));
        QVERIFY(!m_engine->rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        QTRY_VERIFY(m_document->state() != ViewerDocument::Loading);
        m_pages = m_window->findChild<QQuickItem*>("pages");
    }

    static QList<PageItem*> picturesIn(const QQuickItem* item)
    {
        QList<PageItem*> found;
        const QList<QQuickItem*> children = item->childItems();
        for (QQuickItem* child : children) {
            if (auto* picture = qobject_cast<PageItem*>(child))
                found.append(picture);
            found += picturesIn(child);
        }
        return found;
    }
    QList<PageItem*> pictures() const { return picturesIn(m_pages); }

    PageItem* picture(int page) const
    {
        for (PageItem* item : pictures()) {
            if (item->page() == page)
                return item;
        }
        return nullptr;
    }

    /// A page that exists and is drawn at full sharpness.
    bool isSharp(int page) const
    {
        const PageItem* const item = picture(page);
        return item && item->status() == PageItem::Drawn && item->pictureSize() == item->size().toSize();
    }

    /// The window's colour at a point of a page, each coordinate from 0 to 1; invalid if the page is out of view.
    QColor colorAt(int page, qreal across, qreal down) const
    {
        const PageItem* const item = picture(page);
        const QPoint place = item->mapToScene({across * item->width(), down * item->height()}).toPoint();
        const QSharedPointer<QQuickItemGrabResult> grabbed = m_window->contentItem()->grabToImage();
        QSignalSpy ready(grabbed.data(), &QQuickItemGrabResult::ready);
        const bool isVisible = ready.wait() && grabbed->image().rect().contains(place);
        return isVisible ? grabbed->image().pixelColor(place) : QColor();
    }

    /// Moves of fingers within a frame become one.
    void nextFrame()
    {
        QSignalSpy frames(m_window, &QQuickWindow::frameSwapped);
        m_window->update();
        QVERIFY(frames.wait());
    }

    void click(const char* name)
    {
        auto* const button = m_window->findChild<QQuickItem*>(name);
        const QPointF middle = button->mapToScene({button->width() / 2, button->height() / 2});
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
    }

    QString text(const char* name) const { return m_window->findChild<QQuickItem*>(name)->property("text").toString(); }
    qreal zoom() const { return m_pages->property("zoom").toReal(); }

    QTemporaryDir m_folder;
    std::unique_ptr<ViewerDocument> m_document;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow* m_window = nullptr;
    QQuickItem* m_pages = nullptr;
    QStringList m_warnings;
    // Qt keeps a list of them.
    QTouchDevice* m_screen = QTest::createTouchDevice();

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        registerViewerTypes();
    }

    void cleanup()
    {
        m_engine.reset();
        m_document.reset();
        QCOMPARE(m_warnings, QStringList());
    }

    void pagesByButtons()
    {
        show(samples::barred(3));
        QTRY_VERIFY(isSharp(0));
        QCOMPARE(text("pageText"), QString("Page 1 of 3"));
        QCOMPARE(m_window->title(), QString("A title"));
        QCOMPARE(colorAt(0, 0.5, 0.05), QColor(Qt::black));
        QCOMPARE(colorAt(0, 0.5, 0.15), QColor(Qt::white));

        click("nextButton");
        QCOMPARE(text("pageText"), QString("Page 2 of 3"));
        QTRY_VERIFY(isSharp(1));
        QCOMPARE(colorAt(1, 0.5, 0.05), QColor(Qt::white));
        QCOMPARE(colorAt(1, 0.5, 0.15), QColor(Qt::black));
        click("nextButton");
        click("nextButton");
        QCOMPARE(text("pageText"), QString("Page 3 of 3"));
        click("previousButton");
        QCOMPARE(text("pageText"), QString("Page 2 of 3"));
    }

    void zoomByButtons()
    {
        show(samples::barred(2));
        QTRY_VERIFY(isSharp(0));
        // The width of the view without its margins.
        QCOMPARE(picture(0)->width() + 2, m_window->width() - 2.0 * 12);
        click("fitPageButton");
        QTRY_VERIFY(isSharp(0));
        QVERIFY(picture(0)->height() <= m_pages->height() && picture(0)->height() > m_pages->height() - 20);
        const qreal whole = zoom();
        click("zoomInButton");
        QCOMPARE(zoom(), whole * 1.25);
        click("zoomOutButton");
        QCOMPARE(zoom(), whole);
        for (int clicks = 0; clicks < 12; ++clicks)
            click("zoomInButton");
        QCOMPARE(text("zoomText"), QString("300 %"));
        QTRY_VERIFY(isSharp(0));
        QCOMPARE(picture(0)->pictureSize(), QSize(612 * 3 - 2, 792 * 3 - 2));
        QVERIFY(m_pages->property("contentWidth").toReal() > m_pages->width());
    }

    void keys()
    {
        show(samples::barred(12));
        QTRY_VERIFY(isSharp(0));
        QTest::keyClick(m_window, Qt::Key_End);
        QCOMPARE(text("pageText"), QString("Page 12 of 12"));
        QTest::keyClick(m_window, Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(text("pageText"), QString("Page 11 of 12"));
        QTest::keyClick(m_window, Qt::Key_Home);
        QCOMPARE(text("pageText"), QString("Page 1 of 12"));
        QTest::keyClick(m_window, Qt::Key_PageDown);
        QVERIFY(qAbs(m_pages->property("contentY").toReal() - 0.9 * m_pages->height()) < 1);
        const qreal before = zoom();
        QTest::keyClick(m_window, Qt::Key_Plus);
        QVERIFY(zoom() > before);
        QTest::keyClick(m_window, Qt::Key_Escape);
        QTRY_VERIFY(!m_window->isVisible());
    }

    /// The bar and the notes in the language, from right to left where it is written so; pages are the same in every one.
    void speaks_data()
    {
        addColumns<QString, QString, bool>();
        QTest::newRow("German") << "de" << "Seite 1 von 3" << false;
        QTest::newRow("right to left") << "ar" << QString::fromUtf8(u8"الصفحة 1 من 3") << true;
        QTest::newRow("unknown") << "xx" << "Page 1 of 3" << false;
    }
    void speaks()
    {
        const auto [code, words, isMirrored] = currentRow<QString, QString, bool>();
        const QLocale locale;
        {
            const Language language(code);
            QCOMPARE(language.isKnown(), code != "xx");
            show(samples::barred(3));
            QTRY_VERIFY(isSharp(0));
            QCOMPARE(text("pageText"), words);
            const auto left = [this](const char* name) { return m_window->findChild<QQuickItem*>(name)->mapToScene({}).x(); };
            QCOMPARE(left("closeButton") < left("nextButton"), isMirrored);
            QCOMPARE(left("nextButton") < left("previousButton"), isMirrored);
            QCOMPARE(text("previousButton"), QString::fromUtf8(isMirrored ? u8"›" : u8"‹"));
            QCOMPARE(colorAt(0, 0.5, 0.05), QColor(Qt::black));
            click("nextButton");
            QTRY_VERIFY(isSharp(1));
            QCOMPARE(colorAt(1, 0.5, 0.15), QColor(Qt::black));
            m_engine.reset();
        }
        QLocale::setDefault(locale);
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

    /// Two fingers move apart: what is between them grows and stays in place.
    void pinch_data()
    {
        addColumns<QPoint, int>();
        QTest::newRow("across") << QPoint(1, 0) << 0;
        QTest::newRow("down, as pages flick") << QPoint(0, 1) << 0;
        QTest::newRow("askew") << QPoint(1, 1) << 0;
        QTest::newRow("the first finger has flicked already") << QPoint(1, 1) << 4;
    }
    void pinch()
    {
        const auto [direction, early] = currentRow<QPoint, int>();
        show(samples::barred(3));
        QTRY_VERIFY(isSharp(0));
        const QPoint middle(512, 320);
        const auto at = [&middle, direction = direction](int distance) { return middle + direction * distance; };
        QTest::touchEvent(m_window, m_screen).press(0, at(-60 + 10 * early), m_window);
        for (int step = early - 1; step >= 0; --step) {
            QTest::touchEvent(m_window, m_screen).move(0, at(-60 + 10 * step), m_window);
            nextFrame();
        }
        const QPointF before = picture(0)->mapFromScene(middle) / picture(0)->height();
        const qreal zoomBefore = zoom();
        QTest::touchEvent(m_window, m_screen).stationary(0).press(1, at(60), m_window);
        for (int distance = 70; distance <= 150; distance += 10) {
            QTest::touchEvent(m_window, m_screen).move(0, at(-distance), m_window).move(1, at(distance), m_window);
            nextFrame();
        }
        QTest::touchEvent(m_window, m_screen).release(0, at(-150), m_window).release(1, at(150), m_window);
        QVERIFY2(zoom() > 1.4 * zoomBefore, qPrintable(QString::number(zoom() / zoomBefore)));
        const QPointF after = picture(0)->mapFromScene(middle) / picture(0)->height();
        QVERIFY2(qAbs(after.x() - before.x()) < 0.02 && qAbs(after.y() - before.y()) < 0.02,
                qPrintable(QString("%1 %2").arg(after.x() - before.x()).arg(after.y() - before.y())));
        QTRY_VERIFY(isSharp(0));
    }

    /// With Ctrl it zooms, without it scrolls.
    void wheel()
    {
        show(samples::barred(3));
        QTRY_VERIFY(isSharp(0));
        const auto turn = [this](int angle, Qt::KeyboardModifiers modifiers) {
            const QPoint place(500, 300);
            QWheelEvent event(place, m_window->mapToGlobal(place), QPoint(), QPoint(0, angle), Qt::NoButton, modifiers,
                    Qt::NoScrollPhase, false);
            event.setTimestamp(QDateTime::currentMSecsSinceEpoch() & INT_MAX);
            QCoreApplication::sendEvent(m_window, &event);
        };
        const qreal before = zoom();
        turn(120, Qt::ControlModifier);
        QCOMPARE(zoom(), before * 1.25);
        turn(-120, Qt::ControlModifier);
        QCOMPARE(zoom(), before);
        turn(-120, Qt::NoModifier);
        QTRY_VERIFY(m_pages->property("contentY").toReal() > 20);
        QCOMPARE(zoom(), before);
    }

    void aThousandPages()
    {
        show(samples::barred(1000));
        QTRY_VERIFY(isSharp(0));
        click("fitPageButton");
        QTest::keyClick(m_window, Qt::Key_End);
        QTRY_VERIFY(isSharp(999));
        QCOMPARE(colorAt(999, 0.5, 0.95), QColor(Qt::black));
        QVERIFY2(pictures().size() <= 5, qPrintable(QString::number(pictures().size())));
        // A window without space for a page has no more of them.
        m_window->setMinimumSize({1, 1});
        for (const QSize& size : {QSize(20, 300), QSize(300, 62), QSize(1, 1)}) {
            m_window->resize(size);
            QTRY_COMPARE(m_pages->width(), qreal(size.width()));
            QVERIFY2(zoom() > 0 && pictures().size() < 100, qPrintable(QString::number(pictures().size())));
        }
    }

    /// Sideways pages, and one that would need more memory than any machine has.
    void pagesOfManySizes()
    {
        show("%PDF-1.4\n1 0 obj\n<</Type/Catalog/Pages 2 0 R>>\nendobj\n2 0 obj\n<</Type/Pages/Kids[3 0 R 4 0 R 5 0 R]/Count 3>>\n"
             "endobj\n3 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]/Rotate 90>>\nendobj\n"
             "4 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 14000 14000]>>\nendobj\n"
             "5 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 1e9 1e-9]>>\nendobj\ntrailer<</Size 6/Root 1 0 R>>\n%%EOF\n");
        QCOMPARE(m_document->problem(), QString());
        QCOMPARE(m_document->pageCount(), 3);
        QCOMPARE(m_document->pageSize(0), QSizeF(200, 100));
        QCOMPARE(m_document->pageSize(2), QSizeF(612, 792));
        QVERIFY(m_document->isRepaired());
        click("fitPageButton");
        click("nextButton");
        QTRY_VERIFY(isSharp(1));
        QCOMPARE(colorAt(1, 0.5, 0.5), QColor(Qt::white));
        while (m_pages->property("canZoomIn").toBool())
            click("zoomInButton");
        QTRY_VERIFY(picture(1) && picture(1)->pictureSize() == QSize(2549, 2549));
    }

    void aMissingFile()
    {
        show({});
        QVERIFY(m_window->findChild<QQuickItem*>("problem")->isVisible());
        QVERIFY(!m_window->findChild<QQuickItem*>("nextButton")->isVisible());
        click("closeButton");
        QTRY_VERIFY(!m_window->isVisible());
    }
};

QTEST_MAIN(ScreenTest)
#include "tst_screen.moc"
