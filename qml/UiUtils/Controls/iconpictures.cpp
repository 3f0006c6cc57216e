#include "iconpictures.h"

#include "icondrawing.h"

#include <QCache>
#include <QFile>

namespace uiutils {

namespace {

/// What the pictures of a few pages take, in bytes.
constexpr int keptBytes = 512 * 1024;

/// Drawings that point along the text.
bool turns(const QString& name)
{
    static const QStringList turning {QStringLiteral("back"), QStringLiteral("forward"), QStringLiteral("drawer"),
            QStringLiteral("open"), QStringLiteral("results"), QStringLiteral("report")};
    return turning.contains(name);
}

QImage draw(const QString& name, int side, const QColor& color, bool isMirrored)
{
    QFile file(QStringLiteral(":/uiutils/icons/%1.svg").arg(name));
    IconDrawing drawing;
    const QString problem = file.open(QIODevice::ReadOnly) ? drawing.read(&file) : QStringLiteral("does not exist");
    if (!problem.isEmpty())
        qWarning("The icon \"%s\" %s.", qUtf8Printable(name), qUtf8Printable(problem));
    return problem.isEmpty() ? drawing.picture(side, color, isMirrored) : QImage();
}

} // namespace

QImage iconPicture(const QString& name, int side, const QColor& color, bool isMirrored)
{
    static QCache<QString, QImage> pictures(keptBytes);
    if (name.isEmpty() || side <= 0)
        return QImage();
    const bool isTurned = isMirrored && turns(name);
    const QString key
            = QStringLiteral("%1 %2 %3 %4")
                      .arg(name, QString::number(side), color.name(QColor::HexArgb), QString::number(isTurned));
    if (const QImage* kept = pictures.object(key))
        return *kept;
    const QImage picture = draw(name, side, color, isTurned);
    pictures.insert(key, new QImage(picture), qMax(1, int(picture.sizeInBytes())));
    return picture;
}

} // namespace uiutils
