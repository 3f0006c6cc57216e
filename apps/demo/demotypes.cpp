#include "demotypes.h"

#include "desk.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "picturefiles.h"
#include "samplemodel.h"
#include "screencamera.h"
#include "usbstick.h"

#include <QtQml>

namespace uiutils::demo {

void registerDemoTypes()
{
    const char* const uri = "UiUtils.Demo";
    qmlRegisterType<Desk>(uri, 1, 0, "Desk");
    qmlRegisterType<LoopbackMeasurement>(uri, 1, 0, "LoopbackMeasurement");
    qmlRegisterType<LoopbackReport>(uri, 1, 0, "LoopbackReport");
    qmlRegisterType<PictureFiles>(uri, 1, 0, "PictureFiles");
    qmlRegisterType<ScreenCamera>(uri, 1, 0, "ScreenCamera");
    qmlRegisterType<UsbStick>(uri, 1, 0, "UsbStick");
    qmlRegisterUncreatableType<SampleModel>(
            uri, 1, 0, "SampleModel", QStringLiteral("A SampleModel comes from a LoopbackMeasurement"));
}

} // namespace uiutils::demo
