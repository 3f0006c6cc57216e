#include <uiutils/htmlstreamwriter.h>
#include <uiutils/plotimage.h>
#include <uiutils/reporttable.h>
#include <uiutils/reporttemplate.h>
#include <uiutils/style.h>
#include <uiutils/templatetohtmlwriter.h>
#include <uiutils/uiutilsmodule.h>

int main()
{
    uiutils::registerTypes();
    return TemplateToHtmlWriter(ReportTemplate(), nullptr).getHtml().isEmpty() ? 1 : 0;
}
