#include "linkreport.h"

#include "linkdrawing.h"

#include <uiutils/reportitem.h>

#include <QScopeGuard>
#include <QTextStream>

LinkReport::LinkReport(QObject* parent)
    : Report(parent)
{
    setFolder(QStringLiteral("link"));
    addFormat(formatCsv, QStringLiteral("CSV"), QStringLiteral(".csv"), [this] { return csv(); });
    setFormatApplicable(NSReport::REPORT_FORMAT_ALL, true);
}

QString LinkReport::proposedFileName()
{
    return QStringLiteral("fiber-7");
}

/// A save calls this once, before it writes the first file.
void LinkReport::prepareDocument()
{
    ReportTemplate& report = document();
    report.beginReport(QStringLiteral("link"));
    report.setKey(QStringLiteral("title"), tr("Fiber 7"));
    report.beginSection(QStringLiteral("events"), tr("Events"));
    report.beginTable(QStringLiteral("list"), tr("Loss by event"));
    for (const Event& event : m_events)
        report.addRow(QStringLiteral("loss"),
                tr("%1 at %2").arg(event.kind, shown(event.kilometre, QStringLiteral("km"))),
                shown(event.loss, QStringLiteral("dB")), {{QStringLiteral("status"), event.status}});
    report.endTable();
    report.endSection();
    report.endReport();
}

/// For programs: a point as decimal sign, and no units.
QByteArray LinkReport::csv() const
{
    QString text = QStringLiteral("km,kind,dB\r\n");
    for (const Event& event : m_events)
        text += QStringLiteral("%1,%2,%3\r\n")
                        .arg(QString::number(event.kilometre), event.kind, QString::number(event.loss));
    return text.toUtf8();
}

/// Items of an application's own are printed before those of the document.
QByteArray LinkReport::generatePDFReport()
{
    LinkDrawing drawing(m_events);
    m_reportItems.append(&drawing);
    const auto takeOff = qScopeGuard([&drawing] { m_reportItems.removeOne(&drawing); });
    return generateDefaultPDFReport();
}

void LinkReport::reportWritten(const QString& path)
{
    QTextStream(stdout) << path << Qt::endl;
}
