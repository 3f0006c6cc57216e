// Shows a page that is a window, says so, and ends when its standard input is closed: what tools/measure-start runs
// with and without the module. It links Quick only, so that whatever the module needs comes with the import.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSocketNotifier>

#include <cstdio>

#include <unistd.h>

namespace {

void sayShown()
{
    static bool said = false;
    if (!said)
        std::puts("shown");
    std::fflush(stdout);
    said = true;
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QQmlApplicationEngine engine(QGuiApplication::arguments().value(1));
    const QObjectList roots = engine.rootObjects();
    const auto* window = qobject_cast<QQuickWindow*>(roots.isEmpty() ? nullptr : roots.constFirst());
    if (!window) {
        std::fputs("the page is not a window\n", stderr);
        return 1;
    }
    QObject::connect(window, &QQuickWindow::frameSwapped, qApp, sayShown, Qt::QueuedConnection);
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    return QGuiApplication::exec();
}
