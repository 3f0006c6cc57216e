#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

namespace kiv::replay {
class Recorder;
}

namespace uiutils {
class Host;
}

namespace uiutils::inspector {

/// Records all services of a host in memory, so that what has happened can be saved when the user finds it worth
/// saving.
class ServiceRecording : public QObject
{
    Q_OBJECT
    /// Where the last recording was saved, or why it was not; empty before the first.
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    /// Bytes that are kept in memory. A recording that grows beyond them begins anew, with all items as they are then.
    static constexpr int mostBytes = 32 * 1024 * 1024;

    /// Files are made in the folder, with the time in their names. The host must outlive the object.
    ServiceRecording(Host* host, const QString& folder, QObject* parent = nullptr);
    ~ServiceRecording() override;

    QString text() const { return m_text; }

    /// Begins with all items as they are now. Does nothing when it has begun already.
    Q_INVOKABLE void begin();
    /// Writes what was recorded so far into a new file, and goes on.
    Q_INVOKABLE void save();

Q_SIGNALS:
    void textChanged();

private:
    void restart();
    void follow(const QString& service);
    void take(const QByteArray& line);
    QString saved();

    Host* const m_host;
    const QString m_folder;
    QString m_text;
    QByteArray m_lines;
    std::unique_ptr<kiv::replay::Recorder> m_recorder;
};

/// The working folder of the program, or the user's home where the program may not write there.
QString recordingsFolder();

} // namespace uiutils::inspector
