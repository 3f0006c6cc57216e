#include "bindingcases.h"
#include "plainservice.h"

#include "module/uiutilsmodule.h"
#include "service/manifest.h"

#include <QFile>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace bench {

namespace {

constexpr int updates = 20'000;
/// A page uses one of them.
constexpr int items = 100;

[[noreturn]] void fail(const QString& text)
{
    std::fprintf(stderr, "uiutils-bench: %s\n", qPrintable(text));
    std::exit(1);
}

void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        fail(path + QStringLiteral(" cannot be written"));
}

/// The module of the service in a folder of its own, as uiutils-describe writes it.
void writeModule(const QTemporaryDir& folder, const PlainService& of)
{
    QByteArray text("pragma Singleton\nimport UiUtils 1.0\nServiceItems {\n    tag: \"modular\"\n");
    for (const PlainServiceItem* item : of.items())
        text += "    readonly property KivData cfg_" + item->getName().toUtf8() + ": null\n";
    writeFile(folder.filePath(QStringLiteral("qmldir")), "singleton Modular 1.0 Modular.qml\n");
    writeFile(folder.filePath(QStringLiteral("Modular.qml")), text + "}\n");
}

/// A page in an engine of its own.
class Page
{
public:
    Page(const QByteArray& text, const QString& folder)
    {
        Manifest::setQmlContext(m_engine.rootContext());
        QQmlComponent component(&m_engine);
        component.setData(text, QUrl::fromLocalFile(folder + QStringLiteral("/Page.qml")));
        m_object.reset(component.create());
        if (!m_object)
            fail(component.errorString());
    }
    void expect(int value) const
    {
        if (m_object->property("x").toInt() != value)
            fail(QStringLiteral("a change of the value did not reach the page"));
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_object;
};

} // namespace

QVector<Result> moduleCases(int runs)
{
    static bool areRegistered = false;
    if (!areRegistered)
        uiutils::registerTypes();
    areRegistered = true;

    PlainService modular(QStringLiteral("modular"), items);
    PlainService named(QStringLiteral("named"), items);
    const Manifest modularManifest(&modular, QString(), modular.getServiceName());
    const Manifest namedManifest(&named, QString(), named.getServiceName());
    const QTemporaryDir folder;
    writeModule(folder, modular);
    const Page byModule(
            "import QtQml 2.15\nimport \".\"\nQtObject { property var x: Modular.cfg_int_0.value }\n", folder.path());
    const Page byName(
            "import QtQml 2.15\nimport \".\"\nQtObject { property var x: named_cfg_int_0.value }\n", folder.path());

    int next = 1000;
    const auto update = [&next](const PlainService& service, const Page& page) {
        for (int i = 0; i < updates; ++i)
            service.items().constFirst()->report(++next);
        page.expect(next);
    };
    const Timing timing = interleaved(
            runs, [&] { update(modular, byModule); }, [&] { update(named, byName); });
    return {{QStringLiteral("binding: update of a binding by a module / by the name in the context"),
            QStringLiteral("us CPU"), timing.ours * 1e3 / updates, timing.floor * 1e3 / updates, 1.1}};
}

} // namespace bench
