#include "previewpage.h"

#include <QQmlExtensionPlugin>

/// Registers what draws pages when a page imports the module.
class UiUtilsPreviewPlugin final : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override { qmlRegisterType<uiutils::PreviewPage>(uri, 1, 0, "PreviewPage"); }
};

#include "previewplugin.moc"
