#include <uiutils/htmlstreamwriter.h>
#include <uiutils/pdffile.h>
#include <uiutils/plotimage.h>
#include <uiutils/reporttable.h>
#include <uiutils/reporttemplate.h>
#include <uiutils/style.h>
#include <uiutils/templatetohtmlwriter.h>
#include <uiutils/textreport.h>
#include <uiutils/uiutilsmodule.h>

int main(int, char** argv)
{
    // Any value will do: the log says when a file was not tried first.
    PDFFile().setFilename(QString::fromLocal8Bit(argv[0]));
    uiutils::registerTypes();
    const ReportTemplate report;
    return TemplateToHtmlWriter(report, nullptr).getHtml().isEmpty() || uiutils::reportText(report).isEmpty() ? 1 : 0;
}
