#pragma once

#include "files/fileutils.h"
#include "loopbackreport.h"
#include "report/reportlisting_p.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

namespace uiutils::demo {

/// What users can do with a saved report apart from opening it. They are asked before anything is lost, and notified of
/// errors.
///
/// Paths are the instrument's, as in the controller's `reportFiles`.
class SavedReportActions : public QObject
{
    Q_OBJECT
    /// The controller of the reports, which stays the caller's; it announces that its files have changed.
    Q_PROPERTY(uiutils::demo::LoopbackReport* report READ report WRITE setReport NOTIFY reportChanged)

public:
    explicit SavedReportActions(QObject* parent = nullptr);

    LoopbackReport* report() const { return m_report; }
    void setReport(LoopbackReport* report);

    /// Whether the program that the controller's showPDF() starts exists. showPDF() reports nothing when it does not.
    Q_INVOKABLE bool hasViewer() const;
    /// The reports in the unit's folder, wherever the next one is saved, in the order and form of `reportFiles`.
    Q_INVOKABLE QVariantList reportsInUnit();
    /// The reports on the USB drive, without those in its subfolders, in the order and form of `reportFiles`; none
    /// without a drive. As in `reportFiles`, the ending of its name makes a file a report.
    Q_INVOKABLE QVariantList reportsOnUsb() const;
    /// Asks whether the report may be deleted. After a yes its metadata record and its line in the no-sync list are
    /// removed too.
    Q_INVOKABLE void remove(const QString& path);
    /// Copies the report to the USB drive; asks before it replaces a file there. The tray notifies the user when the
    /// copy is safe.
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
