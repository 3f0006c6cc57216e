#include "base/root_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace uiutils {

QString defaultRoot(const QString& program)
{
    const QString fromEnvironment = qEnvironmentVariable("UIUTILS_ROOT");
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QLatin1Char('/') + program;
}

bool useRoot(const QString& root, QStringList* problems)
{
    if (root.isEmpty())
        return true;
    const QByteArray name = QFile::encodeName(root);
    if (!root.contains(QChar(QChar::ReplacementCharacter)) && QFile::decodeName(name) == root)
        return qputenv("UIUTILS_ROOT", name);
    *problems += QCoreApplication::translate("CommandLine",
            "The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. "
            "Name another folder.")
                         .arg(root);
    return false;
}

} // namespace uiutils
