#include "report/drafts/reportdraft.h"

#include "core/plainvalue_p.h"
#include "report/drafts/reportdraft_p.h"

#include <QCoreApplication>

#include <utility>

namespace uiutils {

ReportDraft::ReportDraft(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ReportDraftPrivate>(this))
{
    if (const QCoreApplication* application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, &ReportDraft::flush);
}

ReportDraft::~ReportDraft()
{
    // Nobody expects to be notified by an object that is being deleted.
    blockSignals(true);
    d->flush();
}

QString ReportDraft::draftId() const
{
    return d->id;
}

void ReportDraft::setDraftId(const QString& id)
{
    if (id == d->id)
        return;
    const QPointer<ReportDraft> self(this);
    d->takeId(id);
    if (self)
        Q_EMIT draftIdChanged();
}

Report* ReportDraft::report() const
{
    return d->report;
}

void ReportDraft::setReport(Report* report)
{
    if (report == d->report)
        return;
    if (d->report)
        d->report->disconnect(this);
    d->report = report;
    d->hasReport = report;
    if (report) {
        connect(report, &Report::savingChanged, this, [this] { d->noteSave(); });
        connect(report, &Report::reportGenerated, this, [this] { d->endSave(); });
        connect(report, &QObject::destroyed, this, &ReportDraft::reportChanged);
    }
    Q_EMIT reportChanged();
}

ReportTemplate* ReportDraft::document() const
{
    return d->document;
}

void ReportDraft::setDocument(ReportTemplate* document)
{
    if (document == d->document)
        return;
    d->document = document;
    d->hasDocument = document;
    Q_EMIT documentChanged();
}

QVariantMap ReportDraft::data() const
{
    return d->data;
}

void ReportDraft::setData(const QVariantMap& data)
{
    const QVariantMap plain = plainValue(data).toMap();
    if (std::exchange(d->data, plain) == plain)
        return;
    const QPointer<ReportDraft> self(this);
    if (!d->isBeingCreated)
        d->keep();
    if (self)
        Q_EMIT dataChanged();
}

int ReportDraft::interval() const
{
    return d->interval;
}

void ReportDraft::setInterval(int interval)
{
    if (std::exchange(d->interval, qMax(0, interval)) != d->interval)
        Q_EMIT intervalChanged();
}

bool ReportDraft::isAvailable() const
{
    return !d->offered.isEmpty();
}

int ReportDraft::availableCount() const
{
    return d->offered.size();
}

QDateTime ReportDraft::savedAt() const
{
    return d->offered.value(0).header.savedAt;
}

QString ReportDraft::availableTitle() const
{
    return d->offered.value(0).header.title;
}

bool ReportDraft::isPending() const
{
    return d->isPending();
}

QString ReportDraft::problem() const
{
    return d->problem;
}

void ReportDraft::keep()
{
    d->keep();
}

bool ReportDraft::flush()
{
    return d->flush();
}

bool ReportDraft::restore()
{
    return d->restore();
}

void ReportDraft::discard()
{
    d->discard();
}

void ReportDraft::forget()
{
    d->forget();
}

void ReportDraft::classBegin()
{
    d->isBeingCreated = true;
}

void ReportDraft::componentComplete()
{
    d->isBeingCreated = false;
}

} // namespace uiutils
