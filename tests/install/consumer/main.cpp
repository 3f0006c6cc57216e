#include <embedded/embeddedbackend.h>
#include <kiv/schemavalidator.h>
#include <uiutils/reporttemplate.h>
#include <uiutils/templatetohtmlwriter.h>

#include <QCoreApplication>
#include <QTextStream>

namespace {

/// Whether the library that checks XML is found: a schema that does not exist cannot be read.
bool knowsSchemas()
{
    SchemaValidator validator;
    return !validator.setSchemaFile(QStringLiteral("none.xsd")) && validator.errors().join(QString()).contains(QLatin1String("none.xsd"));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    kiv::embedded::EmbeddedBackend backend;
    const QStringList problems = backend.loadFolders(app.arguments().mid(1));
    QTextStream(stderr) << problems.join(QLatin1Char('\n'));

    const ReportTemplate report;
    const QString html = TemplateToHtmlWriter(report, nullptr).getHtml();
    return problems.isEmpty() && knowsSchemas() && html.contains(QLatin1String("Software Revisions")) ? 0 : 1;
}
