#include "check/services/filefindings.h"

#include <algorithm>

namespace uiutils::check {

namespace {

/// More than anybody reads.
constexpr int mostFindings = 1000;

/// Lines and columns of places that come in ascending order, from 1, columns in characters.
class Places
{
public:
    explicit Places(const QByteArray& text)
        : m_text(text)
    {
    }

    void goTo(int offset)
    {
        int lineEnd = m_text.indexOf('\n', m_at);
        while (lineEnd >= 0 && lineEnd < offset) {
            ++m_line;
            m_column = 1;
            m_at = lineEnd + 1;
            lineEnd = m_text.indexOf('\n', m_at);
        }
        if (m_at == 0 && m_text.startsWith("\xef\xbb\xbf"))
            m_at = std::min(3, offset);
        m_column += QString::fromUtf8(m_text.constData() + m_at, std::max(offset - m_at, 0)).size();
        m_at = std::max(offset, m_at);
    }

    int line() const { return m_line; }
    int column() const { return m_column; }

private:
    const QByteArray& m_text;
    int m_at = 0;
    int m_line = 1;
    int m_column = 1;
};

QString itemAt(int offset, const JsonNode* items)
{
    if (!items || offset < items->offset || offset >= items->end || items->children.empty())
        return QString();
    auto next = std::upper_bound(items->children.cbegin(), items->children.cend(), offset,
            [](int place, const JsonNode& item) { return place < item.offset; });
    QString id = next == items->children.cbegin() ? QString() : std::prev(next)->textOf("id").left(300);
    // A finding is one line, whatever an id holds.
    std::replace_if(
            id.begin(), id.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QLatin1Char(' '));
    return id;
}

} // namespace

void FileFindings::add(Finding::Weight weight, int offset, const QString& message)
{
    if (weight == Finding::Error) {
        ++m_errors;
        m_errorPlaces.insert(offset);
    }
    m_found.append({weight, offset, message});
}

bool FileFindings::hasErrorWithin(int begin, int end) const
{
    const auto first = m_errorPlaces.lower_bound(begin);
    return first != m_errorPlaces.cend() && *first < end;
}

QVector<Finding> FileFindings::finish(const QByteArray& text, const JsonNode* items)
{
    // Errors first, where there is no place for all.
    if (m_found.size() > mostFindings)
        std::stable_sort(
                m_found.begin(), m_found.end(), [](const Found& a, const Found& b) { return a.weight < b.weight; });
    const int left = std::max(m_found.size() - mostFindings, 0);
    m_found.resize(m_found.size() - left);
    std::stable_sort(
            m_found.begin(), m_found.end(), [](const Found& a, const Found& b) { return a.offset < b.offset; });
    Places places(text);
    QVector<Finding> findings;
    for (const Found& found : qAsConst(m_found)) {
        if (found.offset < 0) {
            findings.append({found.weight, m_file, 0, 0, QString(), found.message});
            continue;
        }
        places.goTo(found.offset);
        findings.append(
                {found.weight, m_file, places.line(), places.column(), itemAt(found.offset, items), found.message});
    }
    if (left > 0)
        findings.append({m_errors > mostFindings ? Finding::Error : Finding::Warning, m_file, 0, 0, QString(),
                QStringLiteral("%1 more findings are not listed.").arg(left)});
    return findings;
}

} // namespace uiutils::check
