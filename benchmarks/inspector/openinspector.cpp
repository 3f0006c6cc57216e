// Opens the inspector over a service of so many items and prints the CPU time, in milliseconds: until the first frame,
// and until every item is listened to. The services and their manifests are there before, as they are beside a page.

#include "inspector/inspectorpanel.h"
#include "ui_host/host.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>

using namespace uiutils;

namespace {

double cpuMs()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

bool writeService(const QString& path, int items)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("{ \"service\": \"many\", \"items\": [\n");
    for (int i = 0; i < items; ++i) {
        file.write(QStringLiteral("{ \"id\": \":result:many:group%1:n%2:\", \"type\": \"double\", \"value\": %2, "
                                  "\"label\": \"Item %2\", \"unit\": \"dB\" }%3\n")
                           .arg(i / 100)
                           .arg(i)
                           .arg(i + 1 < items ? QStringLiteral(",") : QString())
                           .toUtf8());
    }
    file.write("] }\n");
    return file.flush();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("KIV_PLATFORM", "embedded");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    const int items = argc == 2 ? QString::fromLocal8Bit(argv[1]).toInt() : 0;
    if (items <= 0 || !writeService(folder.filePath(QStringLiteral("many.service.json")), items)) {
        std::fprintf(stderr, "usage: uiutils-openinspector ITEMS\n");
        return 2;
    }
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    Host host;
    if (!host.start({{folder.path()}, folder.filePath(QStringLiteral("root"))}))
        return 1;

    const double begin = cpuMs();
    QQuickWindow window;
    inspector::InspectorPanel panel(&host);
    if (!panel.load())
        return 1;
    panel.item()->setParentItem(window.contentItem());
    panel.item()->setSize(QSizeF(500, 700));
    window.resize(500, 700);
    bool isDrawn = false;
    QObject::connect(
            &window, &QQuickWindow::frameSwapped, &window, [&isDrawn] { isDrawn = true; }, Qt::QueuedConnection);
    window.show();
    while (!isDrawn)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double drawn = cpuMs() - begin;
    while (!panel.isListening())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%.2f %.2f\n", drawn, cpuMs() - begin);
    return 0;
}
