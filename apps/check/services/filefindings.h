#pragma once

#include "check/finding.h"
#include "check/services/jsontree.h"

#include <QByteArray>
#include <QVector>

#include <set>

namespace uiutils::check {

/// Collects what is wrong in one file by its places in the text.
class FileFindings
{
public:
    explicit FileFindings(const QString& file)
        : m_file(file)
    {
    }

    void error(int offset, const QString& message) { add(Finding::Error, offset, message); }
    void error(const JsonNode& node, const QString& message) { error(node.offset, message); }
    void warn(int offset, const QString& message) { add(Finding::Warning, offset, message); }
    void warn(const JsonNode& node, const QString& message) { warn(node.offset, message); }
    // Of the file as a whole.
    void errorOfFile(const QString& message) { add(Finding::Error, -1, message); }
    void warnOfFile(const QString& message) { add(Finding::Warning, -1, message); }

    bool hasErrors() const { return m_errors > 0; }
    /// Whether an error was found between two places.
    bool hasErrorWithin(int begin, int end) const;

    /// With lines and columns in `text`, and the ids of the elements of `items`, which may be null. What is beyond the
    /// first thousand is only counted.
    QVector<Finding> finish(const QByteArray& text, const JsonNode* items);

private:
    struct Found
    {
        Finding::Weight weight;
        int offset;
        QString message;
    };
    void add(Finding::Weight weight, int offset, const QString& message);

    const QString m_file;
    int m_errors = 0;
    QVector<Found> m_found;
    std::set<int> m_errorPlaces;
};

} // namespace uiutils::check
