#include "common/serviceoptions.h"

#include "base/root_p.h"
#include "ui_host/describedservices_p.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace uiutils::apps {

namespace {

QString folderWord()
{
    return QCoreApplication::translate("CommandLine", "folder");
}

} // namespace

ServiceOptions::ServiceOptions(const QString& program, const QString& rootHelp)
    : m_ownRoot(defaultRoot(program))
    , m_ownFolders(defaultServiceFolders())
    , m_services({QStringLiteral("s"), QStringLiteral("services")},
              QCoreApplication::translate("CommandLine",
                      "Publish the services described in <folder>; may be given more than once (default: %1).")
                      .arg(m_ownFolders.join(QLatin1Char(':'))),
              folderWord())
    , m_root(QStringLiteral("root"), rootHelp.arg(m_ownRoot), folderWord(), m_ownRoot)
{
}

bool ServiceOptions::areGiven(const QCommandLineParser& parser) const
{
    return parser.isSet(m_services);
}

QStringList ServiceOptions::folders(const QCommandLineParser& parser) const
{
    return parser.isSet(m_services) ? parser.values(m_services) : m_ownFolders;
}

QString ServiceOptions::root(const QCommandLineParser& parser) const
{
    return QDir::cleanPath(QDir().absoluteFilePath(parser.value(m_root)));
}

QString missingName(const QCommandLineParser& parser, const QList<QCommandLineOption>& options)
{
    for (const QCommandLineOption& option : options) {
        if (parser.values(option).contains(QString()))
            return QCoreApplication::translate("CommandLine", "--%1 needs a name.").arg(option.names().constLast());
    }
    return QString();
}

} // namespace uiutils::apps
