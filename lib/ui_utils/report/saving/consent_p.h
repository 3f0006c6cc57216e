#pragma once

#include "report/reportdestinations_p.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace uiutils {

/// What a save may replace: which paths it checked, which files a question was about, and which of them the user has
/// released.
///
/// An answer holds for the files of its question, where these lay then, and for one save. A caller that overwrites
/// without a question has released what that save has checked, and nothing else.
class Consent
{
public:
    /// A save begins. With `overwrite` it uses the answer that was given, if there is one; without, that answer came
    /// too late and is discarded.
    void begin(bool overwrite);
    /// Where the files of the question lie, and where the save therefore writes; none without a question.
    std::optional<ReportDestinations> destinations() const;
    /// The save has checked these before it wrote anything.
    void lookAt(const QStringList& paths);
    /// Nothing may be replaced any more, except by the answer to a question that is still open.
    void end();

    bool allows(const QString& path) const { return m_allowed.contains(path); }
    /// Those of the paths that nobody has released.
    QStringList unasked(const QStringList& paths) const;

    /// The user is asked about these, and about all that the save has checked.
    void ask(const ReportDestinations& destinations, const QStringList& paths);
    /// The user has answered yes.
    void agree() { m_agreed = m_asked; }
    /// A writer that was called directly has replaced the file: the answer is used up, so that no later save takes it.
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
    /// The answer that the running save uses.
    std::optional<Agreement> m_taken;
};

/// The first of the instrument paths at which something exists; if `compressed`, the path with ".gz" appended counts
/// too. Empty if all are free.
QString firstTaken(const QStringList& paths, bool compressed);

/// All files that exist at the instrument paths, compressed or not, if `compressed`.
QStringList takenFiles(const QStringList& paths, bool compressed);

} // namespace uiutils
