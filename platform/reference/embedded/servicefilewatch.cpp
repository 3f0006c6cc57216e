#include "servicefilewatch.h"

#include "base/folderwatch_p.h"
#include "embeddedbackend.h"

#include <kiv/plovjsondocument.h>

#include <QDir>
#include <QJsonObject>
#include <QMap>
#include <QPointer>

namespace kiv::embedded {

namespace {

const QString& serviceFiles()
{
    static const QString names = QStringLiteral("*.service.json");
    return names;
}

QJsonObject documentIn(const QString& file)
{
    PlovJsonDocument document;
    document.readFile(file);
    return document.object();
}

} // namespace

struct ServiceFileWatch::Private
{
    EmbeddedBackend* backend;
    /// What each file said when it was used last; by absolute paths.
    QMap<QString, QJsonObject> documents;
    QMap<QString, QStringList> problems;
    std::unique_ptr<uiutils::FolderWatch> watch;
};

ServiceFileWatch::ServiceFileWatch(EmbeddedBackend* backend, const QStringList& folders, QObject* parent)
    : QObject(parent)
    , d(new Private {backend, {}, {}, nullptr})
{
    for (const QString& folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList({serviceFiles()}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : files)
            d->documents.insert(file.absoluteFilePath(), documentIn(file.absoluteFilePath()));
    }
    d->watch = std::make_unique<uiutils::FolderWatch>(folders, QStringList(serviceFiles()),
            uiutils::FolderWatch::ThisFolder, [this](const QStringList& written, bool) { read(written); });
}

ServiceFileWatch::~ServiceFileWatch() = default;

void ServiceFileWatch::read(const QStringList& files)
{
    const QPointer<ServiceFileWatch> self(this);
    for (const QString& file : files) {
        const QStringList before = d->backend->serviceNames();
        QStringList problems;
        QJsonObject document = d->documents.value(file);
        const bool isRead = d->backend->reloadFile(file, &document, &problems);
        // What hears of new items may end everything.
        if (!self)
            return;
        if (isRead)
            d->documents.insert(file, document);
        d->problems.insert(file, problems);
        const QStringList names = d->backend->serviceNames();
        for (const QString& name : names) {
            if (!before.contains(name))
                Q_EMIT serviceAdded(name);
            if (!self)
                return;
        }
    }
    QStringList problems;
    for (const QStringList& ofFile : qAsConst(d->problems))
        problems += ofFile;
    if (!files.isEmpty())
        Q_EMIT filesRead(problems);
}

} // namespace kiv::embedded
