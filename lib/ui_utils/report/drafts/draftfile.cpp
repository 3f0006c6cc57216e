#include "report/drafts/draftfile_p.h"

#include "core/inflated_p.h"
#include "report/reporttexts_p.h"

#include <kiv/plovjsondocument.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <zlib.h>

namespace uiutils {

namespace {

constexpr int version = 1;
constexpr int longestHeader = 4096;
constexpr int longestTitle = 200;
/// Qt's parser, and all code that walks JSON, stop at 1,024 levels.
constexpr int deepestLevel = 1000;

const QLatin1String versionKey("version");
const QLatin1String sizeKey("size");
const QLatin1String savedAtKey("savedAt");
const QLatin1String titleKey("title");

/// How many objects and lists a text has, and how deep they are nested.
struct Extent
{
    int containers = 0;
    int depth = 0;

    bool isReadable() const { return containers <= PlovJsonDocument::maximumContainers && depth <= deepestLevel; }
};

Extent extentOf(const QByteArray& json)
{
    Extent extent;
    int depth = 0;
    bool isText = false;
    for (auto it = json.cbegin(); it != json.cend(); ++it) {
        if (*it == '"')
            isText = !isText;
        else if (isText && *it == '\\' && it + 1 != json.cend())
            ++it;
        else if (!isText && (*it == '{' || *it == '['))
            extent = {extent.containers + 1, qMax(extent.depth, ++depth)};
        else if (!isText && (*it == '}' || *it == ']'))
            --depth;
    }
    return extent;
}

/// Compact JSON has no line feed.
QByteArray lineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray headerLine(const DraftHeader& header, int size)
{
    return lineOf(
            {{versionKey, version}, {sizeKey, size}, {savedAtKey, header.savedAt.toUTC().toString(Qt::ISODateWithMs)},
                    {titleKey, header.title.left(longestTitle)}});
}

/// The fastest level: the time counts, and rows of tables become a tenth of their size.
QByteArray deflated(const QByteArray& bytes)
{
    uLongf size = ::compressBound(uLong(bytes.size()));
    QByteArray packed(int(size), Qt::Uninitialized);
    const int status = ::compress2(reinterpret_cast<Bytef*>(packed.data()), &size,
            reinterpret_cast<const Bytef*>(bytes.constData()), uLong(bytes.size()), Z_BEST_SPEED);
    packed.truncate(status == Z_OK ? int(size) : 0);
    return packed;
}

/// The header of an open file, which is then at the contents.
DraftState readHeader(QFile& file, DraftHeader* header)
{
    const QByteArray line = file.readLine(longestHeader);
    if (file.error() != QFileDevice::NoError)
        return DraftState::Unreadable;
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QJsonValue found = object.value(versionKey);
    if (!line.endsWith('\n') || !found.isDouble())
        return DraftState::Damaged;
    if (found.toDouble() != version)
        return DraftState::Foreign;
    header->savedAt = QDateTime::fromString(object.value(savedAtKey).toString(), Qt::ISODateWithMs).toLocalTime();
    header->title = object.value(titleKey).toString().left(longestTitle);
    const qint64 size = file.size() - line.size();
    const bool isComplete = header->savedAt.isValid() && object.value(sizeKey).toDouble() == double(size);
    return isComplete && size <= largestDraft ? DraftState::Good : DraftState::Damaged;
}

/// A pipe or a device could keep the reader waiting forever.
bool open(QFile& file)
{
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly);
}

bool readLine(const QByteArray& line, QJsonObject* object)
{
    QJsonParseError error {};
    const bool isReadable = extentOf(line).isReadable();
    const QJsonDocument document = isReadable ? QJsonDocument::fromJson(line, &error) : QJsonDocument();
    *object = document.object();
    return error.error == QJsonParseError::NoError && document.isObject();
}

bool readLines(const QByteArray& text, DraftContents* contents)
{
    const QByteArrayList lines = text.count('\n') == 3 ? text.split('\n') : QByteArrayList();
    return lines.size() == 4 && lines.at(3).isEmpty() && readLine(lines.at(0), &contents->data)
            && readLine(lines.at(1), &contents->report) && readLine(lines.at(2), &contents->document);
}

} // namespace

std::optional<QByteArray> draftFile(const DraftHeader& header, const DraftContents& contents, QString* problem)
{
    const QByteArrayList lines {lineOf(contents.data), lineOf(contents.report), lineOf(contents.document)};
    const bool isReadable = std::all_of(
            lines.cbegin(), lines.cend(), [](const QByteArray& line) { return extentOf(line).isReadable(); });
    const qint64 size = qint64(lines.at(0).size()) + lines.at(1).size() + lines.at(2).size();
    if (!isReadable || size > largestDraft) {
        *problem = ReportTexts::tr("The results are too large to be kept before they are saved");
        return std::nullopt;
    }
    const QByteArray packed = deflated(lines.join());
    return headerLine(header, packed.size()) + packed;
}

DraftState readDraftHeader(const QString& path, DraftHeader* header)
{
    QFile file(path);
    return open(file) ? readHeader(file, header) : DraftState::Unreadable;
}

DraftState readDraft(const QString& path, DraftContents* contents)
{
    QFile file(path);
    if (!open(file))
        return DraftState::Unreadable;
    DraftHeader header;
    const DraftState state = readHeader(file, &header);
    if (state != DraftState::Good)
        return state;
    const Inflated text = inflated(file.read(largestDraft), largestDraft);
    if (file.error() != QFileDevice::NoError)
        return DraftState::Unreadable;
    return text.state == Inflated::Complete && readLines(text.bytes, contents) ? DraftState::Good : DraftState::Damaged;
}

} // namespace uiutils
