#include "benchmarks/rooms.h"
#include "benchmarks/timing.h"
#include "check/services/servicecheck.h"

#include <embedded/embeddedbackend.h>
#include <simulation/simulation_p.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

namespace bench {

namespace {

constexpr int files = 5;

/// Items of every kind, as a file holds them: half are settings with limits and an entry field, which read each other.
QByteArray itemText(const QString& service, int number)
{
    static const char* const kinds[] = {
            R"({ "id": ":config:%1:setup:mode%2:", "type": "int", "label": "Mode", "value": 0, "choices": [{ "value": 0, "name": "Auto", "label": "Automatic" }, { "value": 1, "name": "Manual" }] })",
            R"({ "id": ":config:%1:setup:range%2:", "type": "double", "label": "Range", "value": 20, "unit": "km", "precision": 1, "minimum": 0.5, "maximum": 260, "applicable": "cfg.mode%2 == 1", "attributes": { "inputType": 12 } })",
            R"({ "id": ":config:%1:setup:cable%2:", "type": "std::string", "label": "Cable", "value": "F17", "maximum": 20, "attributes": { "inputType": 8, "regex": "[A-Za-z0-9]+" } })",
            R"({ "id": ":result:%1:test:loss%2:", "type": "double", "label": "Loss", "value": 4.2, "judged": { "passing": { "to": 4.5 }, "warning": { "to": 5 } }, "attributes": { "formatter": "dB" } })",
            R"({ "id": ":result:%1:test:power%2:", "type": "double", "label": "Power", "value": -24, "moves": { "as": "walk", "from": -30, "to": -20, "step": 0.3 } })",
            R"({ "id": ":action:%1:test:start%2:", "type": "action", "label": "Start", "does": { "set": { ":result:%1:test:loss%2:": 4 }, "reply": "Started." } })",
    };
    constexpr int kindCount = int(std::size(kinds));
    // The items of a group name each other.
    return QString::fromLatin1(kinds[number % kindCount]).arg(service).arg(number / kindCount).toUtf8();
}

void writeService(const QString& path, const QString& name, int items)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(path));
    file.write("{ \"service\": \"" + name.toUtf8() + "\", \"items\": [\n");
    for (int i = 0; i < items; ++i)
        file.write((i > 0 ? ",\n" : "") + itemText(name, i));
    file.write("\n] }\n");
}

void load(const QString& folder)
{
    kiv::embedded::EmbeddedBackend backend;
    kiv::simulation::simulate(backend, kiv::simulation::Simulated::Actions);
    const QStringList problems = backend.loadFolders({folder});
    if (!problems.isEmpty())
        qFatal("%s", qPrintable(problems.first()));
}

void check(const QString& folder)
{
    const QVector<uiutils::check::Finding> findings = uiutils::check::checkServices({folder}, nullptr);
    if (!findings.isEmpty())
        qFatal("%s", qPrintable(toLine(findings.first())));
}

Result checkingOf(int items, int runs)
{
    const QTemporaryDir folder;
    for (int i = 0; i < files; ++i) {
        const QString name = QStringLiteral("bench%1").arg(i);
        writeService(folder.filePath(name + QStringLiteral(".service.json")), name, items / files);
    }
    const Timing timing = interleaved(
            runs, [&] { check(folder.path()); }, [&] { load(folder.path()); });
    return {QStringLiteral("check of %1 items in %2 files / loading them").arg(items).arg(files),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 3};
}

QVector<Result> checkCases(int runs)
{
    return {checkingOf(5000, runs), checkingOf(20000, runs)};
}

} // namespace

} // namespace bench

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    return bench::measureRooms(
            bench::readOptions(QStringLiteral("Measures the check of service files against loading them."),
                    {{"check", bench::checkCases}}));
}
