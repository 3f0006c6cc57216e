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
    QList<QFontDatabase::WritingSystem> writingSystems;
    bool isOpened = false;
    /// Empty too if the font cannot be embedded.
    pdf::FontCoverage coverage;
    /// Opened again if it is chosen: open fonts take memory.
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

QStringList rankedFamilies(const QFontDatabase& database)
{
    std::array<QStringList, 3> ranked;
    const QStringList families = database.families();
    for (const QString& family : families)
        ranked[rank(database, family)].append(family);
    return ranked[0] + ranked[1] + ranked[2];
}

std::vector<Candidate> allCandidates()
{
    const QFontDatabase database;
    std::vector<Candidate> candidates;
    const QStringList families = rankedFamilies(database);
    for (const QString& family : families)
        candidates.push_back({family, database.writingSystems(family), false, {}, {}});
    return candidates;
}

/// What families claim to show, if they claim it for this character; otherwise any.
QFontDatabase::WritingSystem writingSystem(uint character)
{
    const QChar::Script script = QChar::script(character);
    // From Latin to Georgian both lists have the same order.
    constexpr int offset = int(QChar::Script_Latin) - int(QFontDatabase::Latin);
    static_assert(int(QChar::Script_Thai) - int(QFontDatabase::Thai) == offset);
    static_assert(int(QChar::Script_Georgian) - int(QFontDatabase::Georgian) == offset);
    if (script >= QChar::Script_Latin && script <= QChar::Script_Georgian)
        return QFontDatabase::WritingSystem(script - offset);
    switch (script) {
    case QChar::Script_Han:
        return QFontDatabase::SimplifiedChinese;
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return QFontDatabase::Japanese;
    case QChar::Script_Hangul:
        return QFontDatabase::Korean;
    case QChar::Script_Khmer:
        return QFontDatabase::Khmer;
    default:
        return QFontDatabase::Any;
    }
}

bool shows(Candidate* candidate, uint character)
{
    if (!candidate->isOpened) {
        candidate->isOpened = true;
        const QRawFont font = regularFont(candidate->family);
        if (pdf::embeddingOf(font) == pdf::Embedding::Allowed)
            candidate->coverage = pdf::fontCoverage(pdf::tablesOf(font));
    }
    if (!pdf::mayShow(candidate->coverage, character))
        return false;
    if (!candidate->font.isValid())
        candidate->font = regularFont(candidate->family);
    return candidate->font.supportsCharacter(character);
}

} // namespace

QString embeddableFamily(uint character)
{
    static std::vector<Candidate> candidates = allCandidates();
    const QFontDatabase::WritingSystem wanted = writingSystem(character);
    for (Candidate& candidate : candidates) {
        if (candidate.writingSystems.contains(wanted) && shows(&candidate, character))
            return candidate.family;
    }
    for (Candidate& candidate : candidates) {
        if (shows(&candidate, character))
            return candidate.family;
    }
    return {};
}

} // namespace uiutils
