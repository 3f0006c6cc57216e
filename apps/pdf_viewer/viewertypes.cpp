#include "viewertypes.h"

#include "pageitem.h"
#include "pinchitem.h"
#include "viewerdocument.h"

#include <QUrl>
#include <QtQml>

namespace uiutils::viewer {

void registerViewerTypes()
{
    const char* const uri = "UiUtils.Viewer";
    qmlRegisterType<PageItem>(uri, 1, 0, "PageItem");
    qmlRegisterType<PinchItem>(uri, 1, 0, "PinchItem");
    qmlRegisterUncreatableType<ViewerDocument>(
            uri, 1, 0, "ViewerDocument", QStringLiteral("The program opens the document"));
    qmlRegisterSingletonType(QUrl(QStringLiteral("qrc:/uiutils/viewer/Theme.qml")), uri, 1, 0, "Theme");
}

} // namespace uiutils::viewer
