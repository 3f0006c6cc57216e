#include "writers/pages/readingside_p.h"

#include <QChar>

namespace uiutils {

namespace {

constexpr int examinedLength = 400;

struct Letters
{
    int fromLeft = 0;
    int fromRight = 0;
};

Letters lettersOf(QStringView text)
{
    Letters letters;
    for (const QChar c : text.left(qMin(int(text.size()), examinedLength))) {
        switch (c.direction()) {
        case QChar::DirL:
            ++letters.fromLeft;
            break;
        case QChar::DirR:
        case QChar::DirAL:
            ++letters.fromRight;
            break;
        default:
            break;
        }
    }
    return letters;
}

} // namespace

bool isReadFromRight(QStringView text)
{
    const Letters letters = lettersOf(text);
    return letters.fromRight > letters.fromLeft;
}

bool hasReadingSide(QStringView text)
{
    const Letters letters = lettersOf(text);
    return letters.fromRight != letters.fromLeft;
}

Qt::Alignment readingSideOf(QStringView text)
{
    return isReadFromRight(text) ? Qt::AlignRight : Qt::AlignLeft;
}

} // namespace uiutils
