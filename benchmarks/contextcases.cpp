#include "bindingcases.h"
#include "plainservice.h"

#include "service/kivdata.h"
#include "service/manifest.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace bench {

namespace {

constexpr int knownNames = 300;
constexpr int allNames = 5'000;
const QString knownService = QStringLiteral("known");
const QString lateService = QStringLiteral("late");

/// A page of `bindings` bindings to items of the first service, but for one to an item of the second.
QByteArray pageText(const PlainService& known, int bindings)
{
    QByteArray text("import QtQml 2.15\nQtObject {\n");
    for (int i = 1; i < bindings; ++i) {
        const QString name = known.items().at(i % knownNames)->getName();
        text += QStringLiteral("property var x%1: known_cfg_%2.value\n").arg(i).arg(name).toUtf8();
    }
    if (bindings > 0)
        text += "property var late: late_cfg_int_0.value\n";
    return text + "}\n";
}

void expect(bool isRight)
{
    if (isRight)
        return;
    fputs("uiutils-bench: the page does not know the names that it is to know\n", stderr);
    std::exit(1);
}

/// The names that a context object has, with their wrappers.
QVector<QQmlContext::PropertyPair> namedWrappers()
{
    QVector<QQmlContext::PropertyPair> pairs;
    const QStringList ids = Manifest::getKivIds(QString(), QString());
    for (const QString& id : ids) {
        if (KivData* wrapper = Manifest::getKivData(id))
            pairs.append({wrapper->getQmlTag(), QVariant::fromValue<QObject*>(wrapper)});
    }
    return pairs;
}

/// Two services that come one after the other, and a page between.
class Services
{
public:
    Services()
        : m_known(knownService, knownNames)
        , m_late(lateService, allNames - knownNames)
        , m_knownManifest(&m_known, QString(), knownService)
    {
    }

    /// CPU milliseconds that the names of both services take to become known to a page that knows those of
    /// the first.
    double contextObject(int bindings)
    {
        QQmlEngine engine;
        Manifest::setQmlContext(engine.rootContext());
        const std::unique_ptr<QObject> page = createPage(engine, bindings);
        expect(!page->property("late").isValid());
        const Manifest late(&m_late, QString(), lateService);
        const double time = measured([&] { Manifest::setQmlContext(engine.rootContext()); });
        expect(bindings == 0 || page->property("late").isValid());
        return time;
    }

    /// The same names as properties of the context, in one call.
    double contextProperties()
    {
        QQmlEngine engine;
        const std::unique_ptr<QObject> page = createPage(engine, 0);
        const Manifest late(&m_late, QString(), lateService);
        const QVector<QQmlContext::PropertyPair> pairs = namedWrappers();
        expect(pairs.size() == allNames);
        return measured([&] { engine.rootContext()->setContextProperties(pairs); });
    }

private:
    std::unique_ptr<QObject> createPage(QQmlEngine& engine, int bindings) const
    {
        engine.setOutputWarningsToStandardError(false);
        QQmlComponent component(&engine);
        component.setData(pageText(m_known, bindings), QUrl());
        std::unique_ptr<QObject> page(component.create());
        expect(page != nullptr);
        return page;
    }

    PlainService m_known;
    PlainService m_late;
    Manifest m_knownManifest;
};

} // namespace

QVector<Result> contextCases(int runs)
{
    Services services;
    QVector<Result> results;
    for (const int bindings : {0, 200, 2'000}) {
        const Timing timing = interleavedParts(
                runs, [&] { return services.contextObject(bindings); }, [&] { return services.contextProperties(); });
        results.append({QStringLiteral("binding: context of %L1 names, %L2 bindings / setContextProperties, none")
                                .arg(allNames)
                                .arg(bindings),
                QStringLiteral("ms CPU"), timing.ours, timing.floor, 1.6});
    }
    return results;
}

} // namespace bench
