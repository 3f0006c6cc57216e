#include "demotypes.h"

#include "itementry.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "samplemodel.h"
#include "screencamera.h"
#include "usbstick.h"

#include <QUrl>
#include <QtQml>

namespace uiutils::demo {

void registerDemoTypes()
{
    const char* const uri = "UiUtils.Demo";
    qmlRegisterType<ItemEntry>(uri, 1, 0, "ItemEntry");
    qmlRegisterType<LoopbackMeasurement>(uri, 1, 0, "LoopbackMeasurement");
    qmlRegisterType<LoopbackReport>(uri, 1, 0, "LoopbackReport");
    qmlRegisterType<ScreenCamera>(uri, 1, 0, "ScreenCamera");
    qmlRegisterType<UsbStick>(uri, 1, 0, "UsbStick");
    qmlRegisterUncreatableType<SampleModel>(
            uri, 1, 0, "SampleModel", QStringLiteral("A SampleModel comes from a LoopbackMeasurement"));
    qmlRegisterSingletonType(QUrl(QStringLiteral("qrc:/uiutils/demo/Theme.qml")), uri, 1, 0, "Theme");
}

} // namespace uiutils::demo
