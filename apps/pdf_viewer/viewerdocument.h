#pragma once

#include "problem.h"
#include "renderjob.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSizeF>
#include <QThread>
#include <QVector>

#include <functional>
#include <memory>

namespace uiutils::viewer {

class PdfPages;

/// The file on the screen. Reading and drawing run in a thread of its own, so that the screen keeps responding; all
/// signals are emitted in the thread of this object.
class ViewerDocument : public QObject
{
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(QString path READ path NOTIFY stateChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY stateChanged)
    Q_PROPERTY(QString advice READ advice NOTIFY stateChanged)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY stateChanged)
    Q_PROPERTY(qreal widestPage READ widestPage NOTIFY stateChanged)
    Q_PROPERTY(bool isRepaired READ isRepaired NOTIFY stateChanged)

public:
    enum State {
        Loading,
        Ready,
        Failed,
    };
    Q_ENUM(State)

    using Receiver = std::function<void(const QImage&)>;

    explicit ViewerDocument(QObject* parent = nullptr);
    /// Cancels what is being drawn. If that can take long, call stop() first.
    ~ViewerDocument() override;

    /// Starts to read a file. Call it once for each object.
    void open(const QString& path);
    /// Ends the thread, or gives up after `patienceMs`: false while a file holds it up, in which case this object must
    /// not be destroyed.
    bool stop(int patienceMs);

    State state() const { return m_state; }
    QString path() const { return m_path; }
    /// What happened and what to do about it, in sentences, in the state Failed.
    QString problem() const { return descriptionOf(m_problem); }
    QString advice() const { return adviceOn(m_problem); }
    int pageCount() const { return m_sizes.size(); }
    /// Width of the widest page in points.
    qreal widestPage() const { return m_widestPage; }
    /// Whether the file was damaged, so that something may be missing.
    bool isRepaired() const { return m_isRepaired; }
    /// Size of a page, counted from 0, in points; empty when there is no such page.
    Q_INVOKABLE QSizeF pageSize(int page) const { return m_sizes.value(page); }

    /// Requests a picture of a page. `receive` gets it, or a null one, if `context` still exists and the job is still
    /// wanted.
    RenderJobPointer render(int page, QSize pixels, QObject* context, const Receiver& receive);

Q_SIGNALS:
    void stateChanged();

private:
    struct Opened;
    void take(const Opened& opened);
    void inThread(const std::function<void()>& work);

    State m_state = Loading;
    QString m_path;
    Problem m_problem = Problem::None;
    QVector<QSizeF> m_sizes;
    qreal m_widestPage = 0;
    bool m_isRepaired = false;
    QThread m_thread;
    /// Lives in the thread; work is queued on it.
    QObject m_worker;
    /// Used only in the thread.
    std::shared_ptr<std::unique_ptr<PdfPages>> m_pages;
    RenderJobPointer m_everything = std::make_shared<RenderJob>();
};

} // namespace uiutils::viewer
