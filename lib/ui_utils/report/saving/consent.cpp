#include "report/saving/consent_p.h"

#include "base/paths_p.h"
#include "report/reportformats_p.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

namespace uiutils {

namespace {

/// A link that leads nowhere exists too.
bool isTaken(const QString& path)
{
    const QFileInfo file(onDisk(path));
    return file.exists() || file.isSymLink();
}

} // namespace

void Consent::begin(bool overwrite)
{
    end();
    m_overwrites = overwrite;
    m_taken = std::exchange(m_agreed, std::nullopt);
    if (!overwrite)
        m_taken.reset();
}

std::optional<ReportDestinations> Consent::destinations() const
{
    return m_taken ? std::optional(m_taken->destinations) : std::nullopt;
}

void Consent::lookAt(const QStringList& paths)
{
    m_lookedAt = paths;
    if (m_taken)
        m_allowed = m_taken->paths;
    else if (m_overwrites)
        m_allowed = paths;
}

void Consent::end()
{
    m_overwrites = false;
    m_lookedAt.clear();
    m_allowed.clear();
    m_taken.reset();
}

QStringList Consent::unasked(const QStringList& paths) const
{
    QStringList left;
    std::copy_if(paths.cbegin(), paths.cend(), std::back_inserter(left),
            [this](const QString& path) { return !allows(path); });
    return left;
}

void Consent::ask(const ReportDestinations& destinations, const QStringList& paths)
{
    m_asked = {destinations, m_lookedAt + paths};
}

void Consent::takeUp(const QString& path)
{
    if (m_agreed && m_agreed->paths.contains(path))
        m_agreed.reset();
}

QString firstTaken(const QStringList& paths, bool compressed)
{
    const auto taken = std::find_if(paths.cbegin(), paths.cend(),
            [compressed](const QString& path) { return isTaken(path) || (compressed && isTaken(path + gzipSuffix)); });
    return taken == paths.cend() ? QString() : *taken;
}

QStringList takenFiles(const QStringList& paths, bool compressed)
{
    QStringList taken;
    for (const QString& path : paths) {
        if (isTaken(path))
            taken += path;
        if (compressed && isTaken(path + gzipSuffix))
            taken += path + gzipSuffix;
    }
    return taken;
}

} // namespace uiutils
