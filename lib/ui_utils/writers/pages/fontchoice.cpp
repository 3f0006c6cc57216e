#include "writers/pages/fontchoice_p.h"

#include "writers/emitter/fontcoverage_p.h"
#include "writers/emitter/fontprogram_p.h"

#include <QFontDatabase>

#include <array>
#include <vector>

namespace uiutils {

namespace {

struct Candidate
{
    QString family;
    pdf::FontCoverage coverage;
    /// Opened again if it is chosen; open fonts take memory.
    QRawFont font;
};

QRawFont regularFont(const QString& family)
{
    QFont font(family);
    font.setStyleStrategy(QFont::NoFontMerging);
    return QRawFont::fromFont(font);
}

size_t rank(const QFontDatabase& database, const QString& family)
{
    if (database.isFixedPitch(family))
        return 2;
    return family.contains(QLatin1String("Sans"), Qt::CaseInsensitive) ? 0 : 1;
}

QStringList rankedFamilies()
{
    const QFontDatabase database;
    std::array<QStringList, 3> ranked;
    const QStringList families = database.families();
    for (const QString& family : families)
        ranked[rank(database, family)].append(family);
    return ranked[0] + ranked[1] + ranked[2];
}

class Candidates
{
public:
    QString familyFor(uint character)
    {
        for (size_t i = 0; i < m_known.size() || openNext(i); ++i) {
            if (pdf::mayShow(m_known[i].coverage, character) && shows(&m_known[i], character))
                return m_known[i].family;
        }
        return {};
    }

private:
    /// Opens families until there are more than `count` candidates.
    bool openNext(size_t count)
    {
        while (m_known.size() <= count && !m_waiting.isEmpty()) {
            const QString family = m_waiting.takeFirst();
            const QRawFont font = regularFont(family);
            if (pdf::embeddingOf(font) == pdf::Embedding::Allowed)
                m_known.push_back({family, pdf::fontCoverage(pdf::tablesOf(font)), {}});
        }
        return m_known.size() > count;
    }

    static bool shows(Candidate* candidate, uint character)
    {
        if (!candidate->font.isValid())
            candidate->font = regularFont(candidate->family);
        return candidate->font.supportsCharacter(character);
    }

    QStringList m_waiting = rankedFamilies();
    std::vector<Candidate> m_known;
};

} // namespace

QString embeddableFamily(uint character)
{
    static Candidates candidates;
    return candidates.familyFor(character);
}

} // namespace uiutils
