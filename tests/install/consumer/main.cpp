#include <embedded/embeddedbackend.h>
#include <uiutils/reporttemplate.h>
#include <uiutils/templatetohtmlwriter.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    kiv::embedded::EmbeddedBackend backend;
    const QStringList problems = backend.loadFolders(app.arguments().mid(1));
    QTextStream(stderr) << problems.join(QLatin1Char('\n'));

    ReportTemplate report;
    report.beginReport(QStringLiteral("consumer"));
    report.endReport();
    TemplateToHtmlWriter writer(report, nullptr);
    return problems.isEmpty() && writer.getHtml().contains(QLatin1String("Software Revisions")) ? 0 : 1;
}
