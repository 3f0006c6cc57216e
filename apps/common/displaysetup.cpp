#include "common/displaysetup.h"

#include "base/temporaries_p.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>

namespace uiutils::apps {

namespace {

bool isSet(const char* variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

} // namespace

DisplaySetup::DisplaySetup()
{
    ensureRuntimeFolder();
    if (isSet("QT_QPA_PLATFORM"))
        return;
    // The later ones are used when the display does not answer or its plug-in is missing.
    QByteArray platforms("offscreen");
    if (isSet("DISPLAY"))
        platforms.prepend("xcb;");
    if (isSet("WAYLAND_DISPLAY"))
        platforms.prepend("wayland;");
    qputenv("QT_QPA_PLATFORM", platforms);
    if (platforms == "offscreen" && !isSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
}

void DisplaySetup::offerScreenKeyboard()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (isSet("QT_IM_MODULE") || platform == "offscreen" || platform == "minimal")
        return;
    const QString plugin = QLibraryInfo::location(QLibraryInfo::PluginsPath)
            + QStringLiteral("/platforminputcontexts/libqtvirtualkeyboardplugin.so");
    if (QFile::exists(plugin))
        qputenv("QT_IM_MODULE", "qtvirtualkeyboard");
}

bool DisplaySetup::isOffScreen()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("offscreen") || platform == QLatin1String("minimal");
}

void DisplaySetup::ensureRuntimeFolder()
{
    if (isSet("XDG_RUNTIME_DIR"))
        return;
    // A process that was killed could not remove its folder.
    removeStaleTemporaries(QDir::tempPath());
    m_runtimeFolder = std::make_unique<TemporaryFolder>(QDir::tempPath());
    if (!m_runtimeFolder->path().isEmpty())
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtimeFolder->path()));
}

} // namespace uiutils::apps
