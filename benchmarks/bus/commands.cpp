#include "commands.h"

#include <QCoreApplication>

#include <cstdio>
#include <unistd.h>

namespace bench {

Commands::Commands(const QHash<QString, Handler>& handlers)
    : m_handlers(handlers)
    , m_input(STDIN_FILENO, QSocketNotifier::Read)
{
    QObject::connect(&m_input, &QSocketNotifier::activated, &m_input, [this] { read(); });
}

void Commands::read()
{
    char bytes[256];
    const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
    if (size <= 0) {
        m_input.setEnabled(false);
        QCoreApplication::quit();
        return;
    }
    m_line.append(bytes, int(size));
    for (int end = m_line.indexOf('\n'); end >= 0; end = m_line.indexOf('\n')) {
        const QString line = QString::fromLatin1(m_line.left(end));
        m_line.remove(0, end + 1);
        carryOut(line);
    }
}

void Commands::carryOut(const QString& line) const
{
    QStringList words = line.split(QLatin1Char(' '));
    const Handler handler = m_handlers.value(words.takeFirst());
    if (!handler)
        qFatal("There is no command \"%s\".", qPrintable(line));
    QVector<int> arguments;
    for (const QString& word : qAsConst(words))
        arguments += word.toInt();
    handler(arguments);
}

void answer(const QVector<double>& numbers)
{
    QByteArray line;
    for (const double number : numbers)
        line += QByteArray::number(number, 'g', 15) + ' ';
    line.append('\n');
    fwrite(line.constData(), 1, size_t(line.size()), stdout);
    fflush(stdout);
}

} // namespace bench
