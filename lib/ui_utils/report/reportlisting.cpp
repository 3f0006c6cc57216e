#include "report/reportlisting_p.h"

#include "base/paths.h"
#include "report/reportformats_p.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QVariantMap>
#include <QVector>

#include <algorithm>

namespace uiutils {

namespace {

struct SavedReport
{
    QString fileName;
    QString name;
    QString format;
    qint64 size = 0;
    QDateTime time;
    qint64 order = 0;
    bool isCompressed = false;
};

/// Takes the file's name apart. False when it is no report's.
bool readName(const QString& fileName, SavedReport* report)
{
    report->isCompressed = fileName.endsWith(gzipSuffix);
    const int end = fileName.size() - (report->isCompressed ? gzipSuffix.size() : 0);
    const QStringRef plain = fileName.leftRef(end);
    const QList<ReportFormat>& formats = allReportFormats();
    const auto format = std::find_if(formats.cbegin(), formats.cend(), [&](const ReportFormat& candidate) {
        return !candidate.suffix.isEmpty() && plain.endsWith(candidate.suffix);
    });
    if (format == formats.cend() || end == format->suffix.size())
        return false;
    report->fileName = fileName;
    report->name = fileName.left(end - format->suffix.size());
    report->format = QLatin1String(format->label);
    return true;
}

QVector<SavedReport> reportsIn(const QString& place)
{
    QVector<SavedReport> reports;
    const QFileInfoList files = QDir(place).entryInfoList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    reports.reserve(files.size());
    for (const QFileInfo& file : files) {
        SavedReport report;
        // Some desks put a companion of such a name beside each file of a stick.
        if (file.fileName().startsWith(QLatin1String("._")) || !readName(file.fileName(), &report))
            continue;
        report.size = file.size();
        report.time = file.lastModified();
        report.order = report.time.toMSecsSinceEpoch();
        reports.append(report);
    }
    return reports;
}

/// Reports of one name and time come in the order of their file names, so that no two calls differ.
bool comesBefore(const SavedReport& a, const SavedReport& b)
{
    if (a.order != b.order)
        return a.order > b.order;
    return a.name != b.name ? a.name < b.name : a.fileName < b.fileName;
}

} // namespace

QVariantList reportFiles(const QString& folder)
{
    // A path of nothing would mean the folder that the process runs in.
    if (folder.isEmpty() || folder.contains(QChar(QChar::Null)))
        return QVariantList();
    QVector<SavedReport> reports = reportsIn(onDisk(folder));
    std::sort(reports.begin(), reports.end(), comesBefore);
    const QString start = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    QVariantList list;
    list.reserve(reports.size());
    for (const SavedReport& report : qAsConst(reports)) {
        list += QVariantMap {{QStringLiteral("name"), report.name},
                {QStringLiteral("path"), QString(start + report.fileName)}, {QStringLiteral("format"), report.format},
                {QStringLiteral("size"), report.size}, {QStringLiteral("time"), report.time},
                {QStringLiteral("compressed"), report.isCompressed}};
    }
    return list;
}

} // namespace uiutils
