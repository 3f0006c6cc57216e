#pragma once

#include "touch.h"
#include "typist.h"

#include <QMap>
#include <QObject>
#include <QQueue>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSharedPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

namespace uiutils::demo {

class LoopbackMeasurement;
class LoopbackReport;
class ScreenCamera;

/// Goes the road of a job by itself, with touches where a user would press: takes a job, changes the set-up, measures,
/// looks at the results, saves the report, and looks at everything else. Takes pictures on the way.
///
/// It owns none of its arguments. Pictures are written to a folder, completely or not at all. What it changes is
/// restored, also after a failure.
class Tour : public QObject
{
    Q_OBJECT

public:
    /// `window` is the loaded main page; `pictures` the folder of the pictures, with a "/" at its end.
    Tour(QQuickWindow* window, LoopbackMeasurement* measurement, LoopbackReport* report, ScreenCamera* camera,
            const QString& pictures);

    /// The pictures written up to now.
    QStringList pictures() const { return m_pictures; }

    /// Whether the on-screen keyboard served.
    bool hasUsedScreenKeyboard() const { return m_typist.hasUsedScreen(); }

    void start();

Q_SIGNALS:
    /// Everything is done.
    void finished();
    /// The tour ended early; the text says what happened and what to do.
    void failed(const QString& text);

private:
    /// What is tried again and again until it returns true, and what it is for the user.
    struct Step
    {
        QString what;
        std::function<bool()> attempt;
    };

    void plan();
    void planJob();
    void planRun();
    void planReport();
    void planRest();
    void press(const QString& name, double along = 0.5);
    void type(const QString& field, const QString& text);
    void choose(const QString& entry, const std::function<QString()>& choice);
    void waitFor(const QString& what, const std::function<bool()>& condition);
    void picture(const QString& name);
    void step();
    bool keepPicture(const QString& path, const QSharedPointer<QQuickItemGrabResult>& grab);
    void remember();
    void restore();
    void fail(const QString& text);

    QQuickWindow* const m_window;
    LoopbackMeasurement* const m_measurement;
    LoopbackReport* const m_report;
    ScreenCamera* const m_camera;
    const QString m_folder;
    Touch m_touch;
    Typist m_typist;
    QStringList m_pictures;
    QQueue<Step> m_steps;
    /// The services' settings before the tour, by their ids.
    QMap<QString, QVariant> m_before;
    /// The report's own, by their names.
    QMap<QString, QVariant> m_ownBefore;
    /// Tries the first of the steps.
    QTimer m_clock;
    /// Runs out when a step cannot be done.
    QTimer m_patience;
    bool m_isOver = false;
};

} // namespace uiutils::demo
