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

    const ReportTemplate report;
    const QString html = TemplateToHtmlWriter(report, nullptr).getHtml();
    return problems.isEmpty() && html.contains(QLatin1String("Software Revisions")) ? 0 : 1;
}
