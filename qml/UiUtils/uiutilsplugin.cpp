#include "languages/languages.h"
#include "module/uiutilsmodule.h"

#include <QQmlExtensionPlugin>

/// Registers the library's types when a page imports the module.
class UiUtilsPlugin final : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override { uiutils::registerTypes(uri); }
    /// Not only engines that ask for the languages show texts.
    void initializeEngine(QQmlEngine* engine, const char*) override { uiutils::Languages::instance()->follow(engine); }
};

#include "uiutilsplugin.moc"
