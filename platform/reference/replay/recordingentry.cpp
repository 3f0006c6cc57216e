#include "recordingentry_p.h"

#include "jsonline_p.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kiv::replay {

namespace {

const QLatin1String formatName("kiv-recording");
constexpr int memoryPerValue = 40;
constexpr int longestName = 255;

/// Walks a line of JSON that may be wrong, and finds names that stand twice in one object: the parser would lose the
/// memory of what the first of them holds.
class NameCheck
{
public:
    explicit NameCheck(const QByteArray& line)
        : m_at(line.constData())
        , m_end(line.constData() + line.size())
    {
    }

    bool findsRepeated()
    {
        for (; m_at < m_end; ++m_at) {
            if (*m_at == '{' || *m_at == '[')
                m_names.emplace_back();
            else if ((*m_at == '}' || *m_at == ']') && !m_names.empty())
                m_names.pop_back();
            else if (*m_at == '"' && isRepeated(text()))
                return true;
        }
        return false;
    }

private:
    /// The text that begins here, as it is written; goes to its end.
    QByteArray text()
    {
        const char* const begin = ++m_at;
        while (m_at < m_end && *m_at != '"')
            m_at += *m_at == '\\' ? 2 : 1;
        m_at = std::min(m_at, m_end);
        return QByteArray::fromRawData(begin, int(m_at - begin));
    }

    bool isRepeated(const QByteArray& name)
    {
        const char* next = m_at < m_end ? m_at + 1 : m_end;
        while (next < m_end && (*next == ' ' || *next == '\t'))
            ++next;
        if (next == m_end || *next != ':' || m_names.empty())
            return false;
        QSet<QByteArray>& names = m_names.back();
        const int before = names.size();
        names.insert(name.contains('\\') ? withoutEscapes(name) : name);
        return names.size() == before;
    }

    /// A name can be written in several ways.
    static QByteArray withoutEscapes(const QByteArray& name)
    {
        return QJsonDocument::fromJson("[\"" + name + "\"]")[0].toString().toUtf8();
    }

    const char* m_at;
    const char* m_end;
    std::vector<QSet<QByteArray>> m_names;
};

bool readTime(const QJsonValue& value, qint64* time)
{
    const double number = value.toDouble(-1);
    if (!(number >= 0 && number <= double(latestTime)))
        return false;
    *time = qint64(number);
    return true;
}

std::optional<Entry::Kind> kindOf(const QJsonObject& fields)
{
    const auto has = [&fields](const char* name) { return fields.contains(QLatin1String(name)); };
    if (has("id"))
        return has("removed") ? Entry::Removed : has("type") ? Entry::Item : Entry::Change;
    if (has("snapshot"))
        return Entry::Snapshot;
    if (has("gone"))
        return Entry::Gone;
    if (has("error"))
        return Entry::Error;
    return std::nullopt;
}

} // namespace

QByteArray headerLine()
{
    QByteArray line("{\"format\":\"");
    line += formatName.data();
    line += "\",\"version\":" + QByteArray::number(formatVersion);
    appendField(&line, "started", QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    appendField(&line, "program",
            QString(QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion())
                    .trimmed());
    return line + "}\n";
}

bool isReadable(const QByteArray& line)
{
    if (line.size() > longestLine)
        return false;
    // Most lines are too short to hold too much.
    if (line.size() <= std::min(mostValues, mostContainers))
        return true;
    const auto containers = std::count_if(line.cbegin(), line.cend(), [](char c) { return c == '{' || c == '['; });
    return containers <= mostContainers && line.count(',') <= mostValues;
}

qint64 memoryOf(const QJsonValue& value)
{
    qint64 memory = memoryPerValue;
    if (value.isString()) {
        memory += qint64(sizeof(QChar)) * value.toString().size();
    } else if (value.isArray()) {
        const QJsonArray elements = value.toArray();
        for (const QJsonValue& element : elements)
            memory += memoryOf(element);
    } else if (value.isObject()) {
        const QJsonObject members = value.toObject();
        for (auto it = members.begin(); it != members.end(); ++it)
            memory += memoryOf(it.value()) + qint64(sizeof(QChar)) * it.key().size();
    }
    return memory;
}

std::optional<Entry> readEntry(const QByteArray& line)
{
    if (!line.startsWith('{') || !isReadable(line) || NameCheck(line).findsRepeated())
        return std::nullopt;
    Entry entry;
    entry.fields = QJsonDocument::fromJson(line).object();
    if (entry.fields.value(QLatin1String("format")) == QJsonValue(formatName))
        return entry;
    const std::optional<Entry::Kind> kind = kindOf(entry.fields);
    entry.service = entry.fields.value(QLatin1String("service")).toString();
    entry.id = entry.fields.value(QLatin1String("id")).toString();
    const bool isNamed
            = !entry.service.isEmpty() && entry.service.size() <= longestName && entry.id.size() <= longestName;
    if (!kind || !isNamed || !readTime(entry.fields.value(QLatin1String("t")), &entry.time))
        return std::nullopt;
    entry.kind = *kind;
    return entry;
}

bool isKnownVersion(const Entry& header)
{
    const int version = header.fields.value(QLatin1String("version")).toInt();
    return version >= 1 && version <= formatVersion;
}

} // namespace kiv::replay
