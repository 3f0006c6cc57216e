#pragma once

#include "files/fileutils.h"
#include "loopbackreport.h"
#include "report/reportlisting_p.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

namespace uiutils::demo {

/// What users do with a saved report beside opening it. They are asked before anything is lost, and told what went
/// wrong.
///
/// Paths are the instrument's, as `reportFiles` of the controller has them.
class SavedReportActions : public QObject
{
    Q_OBJECT
    /// Whose reports they are; stays the caller's. It tells that its files have changed.
    Q_PROPERTY(uiutils::demo::LoopbackReport* report READ report WRITE setReport NOTIFY reportChanged)

public:
    explicit SavedReportActions(QObject* parent = nullptr);

    LoopbackReport* report() const { return m_report; }
    void setReport(LoopbackReport* report);

    /// Whether there is what the controller's showPDF() starts, which says nothing when there is not.
    Q_INVOKABLE bool hasViewer() const;
    /// The reports in the unit's folder, wherever the next one is saved, in the order and form of `reportFiles`.
    Q_INVOKABLE QVariantList reportsInUnit();
    /// The reports on the USB drive, but not those of its folders, in the order and form of `reportFiles`; none without
    /// a drive. As there, a file is a report when its name ends like one.
    Q_INVOKABLE QVariantList reportsOnUsb() const;
    /// Asks whether the report may be deleted. A yes takes along its metadata record and what keeps it from the cloud.
    Q_INVOKABLE void remove(const QString& path);
    /// Copies the report to the USB drive; asks before it takes the place of a file there. The tray tells when the copy
    /// is safe.
    Q_INVOKABLE void copyToUsb(const QString& path);

Q_SIGNALS:
    void reportChanged();

private:
    void removeNow(const QString& path);
    void forget(const QString& path);
    void copyNow(const QString& path);

    QPointer<LoopbackReport> m_report;
    ReportListing m_unit;
    /// Each has a question of its own.
    FileUtils m_removal;
    FileUtils m_copying;
};

} // namespace uiutils::demo
