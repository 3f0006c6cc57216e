#pragma once

#include <QByteArray>
#include <QHash>
#include <QSocketNotifier>
#include <QStringList>
#include <QVector>

#include <functional>

namespace bench {

/// What the process that started this one tells it, a line on the standard input at a time: the name of a command and
/// whole numbers. The end of the input ends the application's event loop.
class Commands
{
public:
    using Handler = std::function<void(const QVector<int>& arguments)>;

    explicit Commands(const QHash<QString, Handler>& handlers);

private:
    void read();
    void carryOut(const QString& line) const;

    const QHash<QString, Handler> m_handlers;
    QByteArray m_line;
    QSocketNotifier m_input;
};

/// Answers with a line of numbers.
void answer(const QVector<double>& numbers);

} // namespace bench
