#include "focuswatch.h"
#include "iconpicture.h"
#include "naturalwidth.h"

#include <QQmlExtensionPlugin>

/// Registers what the kit does not do in QML when a page imports the module.
class UiUtilsControlsPlugin final : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override
    {
        qmlRegisterType<uiutils::FocusWatch>(uri, 1, 0, "FocusWatch");
        qmlRegisterType<uiutils::IconPicture>(uri, 1, 0, "IconPicture");
        qmlRegisterType<uiutils::NaturalWidth>(uri, 1, 0, "NaturalWidth");
    }
};

#include "controlsplugin.moc"
