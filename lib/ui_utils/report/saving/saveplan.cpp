#include "report/saving/saveplan_p.h"

#include "instrument/drives_p.h"
#include "report/reportnaming_p.h"
#include "report/reporttexts_p.h"

#include <QDir>

namespace uiutils {

QString formatProblem(const FormatChoice& choice)
{
    if (!choice.formats.isEmpty())
        return QString();
    if (choice.given.isEmpty() || choice.isFormat)
        return ReportTexts::tr("No format is chosen to save the report in.");
    return ReportTexts::tr("There is no format \"%1\" to save the report in.").arg(choice.given);
}

QStringList SavePlan::paths(bool isUsbThere) const
{
    QStringList paths;
    for (const PlannedFile& file : files) {
        paths += file.path;
        if (isUsbThere && !file.copy.isEmpty())
            paths += file.copy;
    }
    return paths;
}

PlannedFile plannedFile(const QString& path, const FormatInfo* format, bool copiesToUsb)
{
    const QString copy = instrument::usbPath(path);
    const bool isCopied = copiesToUsb && QDir::cleanPath(path) != copy;
    return {format, path, isCopied ? copy : QString()};
}

QVector<PlannedFile> plannedFiles(
        const QString& name, const FormatInfos& formats, bool copiesToUsb, const PathOf& pathOf)
{
    QVector<PlannedFile> files;
    for (const FormatInfo* format : formats)
        files += plannedFile(pathOf(name, format->suffix), format, copiesToUsb);
    return files;
}

QString planProblem(const QString& name, const FormatChoice& choice, bool compressed)
{
    if (choice.formats.isEmpty())
        return formatProblem(choice);
    for (const FormatInfo* format : choice.formats) {
        QString problem = nameProblem(name, format->suffix, compressed);
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

} // namespace uiutils
