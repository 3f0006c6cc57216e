#include "bindingcases.h"
#include "plainservice.h"
#include "plainwrapper.h"

#include "service/manifest.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace bench {

namespace {

constexpr int updates = 20'000;

const QByteArray bindingPage(R"(
    import QtQml 2.15
    QtObject { property var x: bench_cfg_int_0.value }
)");

const QByteArray labelsPage(R"(
    import QtQml 2.15
    QtObject {
        property var x: value.text
        property QtObject value: QtObject { property string text: bench_cfg_int_0.value }
        property QtObject valueString: QtObject { property string text: bench_cfg_int_0.valueString }
        property QtObject unitString: QtObject { property string text: bench_cfg_int_0.unitString }
        property QtObject qualityCode: QtObject { property string text: bench_cfg_int_0.qualityCode }
        property QtObject rangeDescription: QtObject { property string text: bench_cfg_int_0.rangeDescription }
        property QtObject isReady: QtObject { property string text: bench_cfg_int_0.isReady }
    }
)");

/// A page in an engine whose root context tells it of the item.
class Page
{
public:
    Page(const QByteArray& text, const std::function<void(QQmlContext*)>& install)
    {
        install(m_engine.rootContext());
        QQmlComponent component(&m_engine);
        component.setData(text, QUrl());
        m_object.reset(component.create());
        if (!m_object) {
            fprintf(stderr, "uiutils-bench: %s\n", qPrintable(component.errorString()));
            std::exit(1);
        }
    }

    /// Ends the program when the page does not show `value`, because then nothing was measured.
    void expect(int value) const
    {
        if (m_object->property("x").toInt() == value)
            return;
        fputs("uiutils-bench: a change of the value did not reach the page\n", stderr);
        std::exit(1);
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_object;
};

/// How a page comes to know an object written by hand.
enum class Known {
    /// As a property of the context, as is usual.
    AsContextProperty,
    /// By a context object, which bindings read faster, and which the library has too.
    ByContextObject,
};

/// Microseconds from a report of the service, or a write to the object written by hand, to the page's new
/// values.
Result updateCase(int runs, const QString& name, const QByteArray& text, Known known)
{
    PlainService service(QStringLiteral("bench"), 3);
    const Manifest manifest(&service, QString(), service.getServiceName());
    PlainServiceItem* item = service.items().constFirst();
    const Page page(text, [](QQmlContext* context) { Manifest::setQmlContext(context); });

    PlainLabels labels;
    PlainNames names(&labels);
    const Page plainPage(text, [&](QQmlContext* context) {
        if (known == Known::ByContextObject)
            context->setContextObject(&names);
        else
            context->setContextProperty(QStringLiteral("bench_cfg_int_0"), &labels);
    });

    int next = 1000;
    const Timing timing = interleaved(
            runs,
            [&] {
                for (int i = 0; i < updates; ++i)
                    item->report(++next);
                page.expect(next);
            },
            [&] {
                for (int i = 0; i < updates; ++i)
                    labels.setValue(++next);
                plainPage.expect(next);
            });
    return {name, QStringLiteral("us CPU"), timing.ours * 1e3 / updates, timing.floor * 1e3 / updates, 1.3};
}

} // namespace

QVector<Result> updateCases(int runs)
{
    return {updateCase(runs, QStringLiteral("binding: update of a binding / object written by hand"), bindingPage,
                    Known::AsContextProperty),
            updateCase(runs, QStringLiteral("binding: update of a binding / same, known by a context object"),
                    bindingPage, Known::ByContextObject),
            updateCase(runs, QStringLiteral("binding: update of six labels / object written by hand"), labelsPage,
                    Known::AsContextProperty),
            updateCase(runs, QStringLiteral("binding: update of six labels / same, known by a context object"),
                    labelsPage, Known::ByContextObject)};
}

} // namespace bench
