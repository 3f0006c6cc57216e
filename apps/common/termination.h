#pragma once

#include <QObject>

class QSocketNotifier;

namespace uiutils::apps {

/// Turns what ends a program from outside (SIGINT, SIGTERM, SIGHUP) into a signal of the event loop, so that the
/// program can store what it has. Signals that the caller had ignored stay ignored. Make it before any thread starts.
class Termination : public QObject
{
    Q_OBJECT

public:
    explicit Termination(QObject* parent = nullptr);
    ~Termination() override;

Q_SIGNALS:
    void requested();

private:
    void read();

    const int m_descriptor;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace uiutils::apps
