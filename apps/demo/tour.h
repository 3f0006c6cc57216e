#pragma once

#include <QMap>
#include <QObject>
#include <QQueue>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSharedPointer>
#include <QStringList>
#include <QTimer>

namespace uiutils::demo {

class LoopbackMeasurement;
class LoopbackReport;
class ScreenCamera;

/// Uses the demo the way a user does, by itself: measures, looks at each page, tries out settings, saves the report.
///
/// It owns none of its arguments. Pictures of the pages are written to a folder, completely or not at all.
class Tour : public QObject
{
    Q_OBJECT

public:
    /// `window` is the loaded main page; `pictures` the folder of the pictures, with a "/" at its end.
    Tour(QQuickWindow* window, LoopbackMeasurement* measurement, LoopbackReport* report, ScreenCamera* camera,
            const QString& pictures);

    /// The pictures written up to now.
    QStringList pictures() const { return m_pictures; }

    void start();

Q_SIGNALS:
    /// Everything is done.
    void finished();
    /// The tour ended early; the text says what happened and what to do.
    void failed(const QString& text);

private:
    enum Page { MeasurePage, ResultsPage, ReportPage, SettingsPage, GalleryPage };

    /// A page to show, the name of its picture, and what to do before the picture is taken; false on failure.
    struct Stop
    {
        Page page;
        QString picture;
        bool (Tour::*deed)() = nullptr;
    };

    void watchSamples();
    void visitAll();
    void visit(const Stop& stop);
    void visitNext();
    void takePicture(const QString& name);
    void keepPicture(const QString& path);
    bool takeScreenshot();
    bool saveReport();
    /// Saves again, which makes the demo ask a question.
    bool saveAgain();
    /// Answers no, and closes all other dialogs.
    bool leaveQuestion();
    bool changeSettings();
    bool applySettings();
    /// Restores the settings from before the tour; the tour is the user's guest.
    bool restoreSettings();
    bool enter(const QString& setting, const QString& text);
    /// Calls a function of the main page that returns an error text.
    bool doOnPage(const char* function);
    /// Presses Save on the report page; false without such a page.
    bool pressSave(bool* isSaved);
    bool failAsForeign();
    void fail(const QString& text);

    QQuickWindow* const m_window;
    LoopbackMeasurement* const m_measurement;
    LoopbackReport* const m_report;
    ScreenCamera* const m_camera;
    const QString m_folder;
    QStringList m_pictures;
    QQueue<Stop> m_stops;
    /// The texts of the fields before the tour, by the settings' ids.
    QMap<QString, QString> m_before;
    /// The format that was selected before the tour; invalid until the tour saves.
    QVariant m_formatBefore;
    /// The picture being taken; null between pictures.
    QSharedPointer<QQuickItemGrabResult> m_grab;
    /// Runs while a picture is being taken.
    QTimer m_patience;
    bool m_isMeasured = false;
    bool m_isOver = false;
};

} // namespace uiutils::demo
