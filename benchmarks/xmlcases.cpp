#include "writercase.h"

#include "document/reporttemplate.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"

namespace bench {

QVector<Result> xmlCases(int runs)
{
    const Writer writer {QStringLiteral("XML text"),
            [](const ReportTemplate& report) { return TemplateToXmlWriter(report, false, true, true).getXml(); },
            // The custom fields leave an empty line, which is no token.
            [](QString text) { return text.replace(QLatin1String("\n\n"), QLatin1String("\n")); }};
    return writerCases(writer, runs, 10'000) + writerCases(writer, runs, 100'000);
}

} // namespace bench
