#pragma once

#include "report/reportdestinations_p.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace uiutils {

/// What a save may replace: where it looked, what the user was asked about, and what the user let go of.
///
/// An answer holds for the files of its question, where these lay then, and for one save. Who overwrites without a
/// question has let go of what that save has looked at, and of nothing else.
class Consent
{
public:
    /// A save begins: it takes up an answer that overwrites; any other has come too late.
    void begin(bool overwrite);
    /// Where the question was about, and the save therefore goes; none without a question.
    std::optional<ReportDestinations> destinations() const;
    /// The save has looked at these before it wrote anything.
    void lookAt(const QStringList& paths);
    /// Nothing may be replaced any more, except by the answer to a question that is still open.
    void end();

    bool allows(const QString& path) const { return m_allowed.contains(path); }
    /// Those of the paths that nobody has let go of.
    QStringList unasked(const QStringList& paths) const;

    /// The question about these, and all that the save has looked at, is put.
    void ask(const ReportDestinations& destinations, const QStringList& paths);
    /// The user has said yes to it.
    void agree() { m_agreed = m_asked; }
    /// A writer alone has replaced the file: the answer is not for a save that comes much later.
    void takeUp(const QString& path);

private:
    struct Agreement
    {
        ReportDestinations destinations;
        QStringList paths;
    };

    bool m_overwrites = false;
    QStringList m_lookedAt;
    QStringList m_allowed;
    Agreement m_asked;
    std::optional<Agreement> m_agreed;
    /// The answer that the running save has taken up.
    std::optional<Agreement> m_taken;
};

/// The first of the instrument paths at which something lies; with `compressed` behind it ".gz" counts, too. Empty when
/// all are free.
QString firstTaken(const QStringList& paths, bool compressed);

} // namespace uiutils
