#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace kiv::replay {
class Recorder;
class RecordingFile;
} // namespace kiv::replay

namespace uiutils {
class Host;
}

namespace uiutils::inspector {

/// Records all services of a host into a file, from the moment when the user wants it.
class ServiceRecording : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    /// Where the recording goes, what became of the last one, or why there is none; empty before the first.
    Q_PROPERTY(QString text READ text NOTIFY changed)

public:
    /// Files are made in the folder, with the time in their names. The host must outlive the object.
    ServiceRecording(Host* host, const QString& folder, QObject* parent = nullptr);
    /// Ends the recording.
    ~ServiceRecording() override;

    bool isRunning() const { return m_recorder != nullptr; }
    QString text() const { return m_text; }

    /// Begins with all items as they are now. Does nothing while a recording runs.
    Q_INVOKABLE void begin();
    Q_INVOKABLE void end();

Q_SIGNALS:
    void changed();

private:
    void follow(const QString& service);
    void say(const QString& text);

    Host* const m_host;
    const QString m_folder;
    QString m_path;
    QString m_text;
    std::unique_ptr<kiv::replay::RecordingFile> m_file;
    std::unique_ptr<kiv::replay::Recorder> m_recorder;
};

/// The working folder of the program, or the user's home where the program may not write there.
QString recordingsFolder();

} // namespace uiutils::inspector
