#pragma once

#include "measurement.h"

#include <uiutils/nsreport.h>
#include <uiutils/report.h>

/// Saves what has been measured: as PDF with a drawing of its own, and as CSV, a format that only this report has.
class LinkReport : public Report
{
    Q_OBJECT

public:
    /// What the setting of the format holds for CSV.
    static constexpr int formatCsv = NSReport::firstOwnFormat;

    explicit LinkReport(QObject* parent = nullptr);

    QString proposedFileName() override;
    bool hasCustomPDF() override { return true; }
    QByteArray generatePDFReport() override;

protected:
    void prepareDocument() override;
    void reportWritten(const QString& path) override;

private:
    QByteArray csv() const;

    const QVector<Event> m_events = measuredEvents();
};
