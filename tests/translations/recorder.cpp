// Loaded into a program before everything else. Notes each text that the program requests, and answers as if all of
// ours were translated: with the text in quotation marks.

#include <QCoreApplication>
#include <QTranslator>

#include <fcntl.h>
#include <unistd.h>

namespace {

class Recorder : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        // One write for each text: threads request texts too, and a program may end at any moment.
        const QByteArray record = QByteArray(context) + '\x1f' + text + '\x1e';
        const bool isNoted = ::write(m_log, record.constData(), size_t(record.size())) == record.size();
        const bool isOfQt = context[0] == 'Q' && context[1] >= 'A' && context[1] <= 'Z';
        return isNoted && !isOfQt ? QStringLiteral("«%1»").arg(QString::fromUtf8(text)) : QString();
    }

private:
    const int m_log = ::open(qgetenv("TRANSLATION_LOG").constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
};

void install()
{
    // Programs that this one starts are left alone.
    qunsetenv("LD_PRELOAD");
    static auto* const recorder = new Recorder;
    QCoreApplication::installTranslator(recorder);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(install)
