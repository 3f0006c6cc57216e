#pragma once

#include "core/uiutils_export.h"
#include "report/report.h"

namespace uiutils {

/// A report whose content a page builds. In QML: PageReport.
///
/// Users choose between PDF, XML, HTML, text and JSON, and all of them at once. The HTML page is the modern one, which
/// needs no other file.
class UIUTILS_EXPORT PageReport : public Report
{
    Q_OBJECT
    /// The document. It belongs to the report.
    Q_PROPERTY(ReportTemplate* content READ content CONSTANT)

public:
    explicit PageReport(QObject* parent = nullptr);

    ReportTemplate* content();

    /// The name that every report proposes. Where the test has no short label, it begins with the last part of
    /// `folder`.
    QString proposedFileName() override;
    QString generateTxtReport() override;
    QString generateJsonReport() override;

Q_SIGNALS:
    /// A save or a preview needs the content: the receiver builds it before it returns.
    void contentWanted();

protected:
    void prepareDocument() override;
};

} // namespace uiutils
