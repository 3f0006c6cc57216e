#include "plottypes.h"

#include <QQmlExtensionPlugin>

/// Registers the live plot when a page imports the module.
class UiUtilsPlotPlugin final : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override { uiutils::registerPlotTypes(uri); }
};

#include "plotplugin.moc"
