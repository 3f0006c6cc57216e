#include "pagetest.h"

#include "golden.h"
#include "options.h"
#include "steppedtime.h"
#include "texts.h"

#include "base/durablefile_p.h"
#include "common/complaint.h"

#include "replay/player_p.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace uiutils::qmltool {

namespace {

using kiv::replay::Player;

constexpr qint64 frameMs = 16;

/// Plays up to a moment, frame by frame, as on a screen that never lags. Every change comes in its own moment, so that
/// what it sets in motion does not depend on the moments that are looked at.
void playTo(qint64 moment, Player* player, SteppedTime* time)
{
    do {
        const qint64 frame = (time->now() / frameMs + 1) * frameMs;
        const qint64 now = std::min({frame, moment, std::max(player->nextTime().value_or(moment), time->now())});
        player->advanceTo(now);
        time->stepTo(now);
        QCoreApplication::processEvents();
    } while (time->now() < moment);
}

/// Null when the window cannot be drawn.
QImage drawn(QQuickWindow* window)
{
    // Longer than any page takes.
    constexpr int patienceMs = 20000;
    const QSharedPointer<QQuickItemGrabResult> result = window->contentItem()->grabToImage();
    if (!result)
        return QImage();
    QEventLoop loop;
    QObject::connect(result.data(), &QQuickItemGrabResult::ready, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QTimer::singleShot(patienceMs, &loop, &QEventLoop::quit);
    loop.exec();
    return result->image();
}

/// What the window shows when everything that a change leads to has been done: layouts and lists follow when they are
/// drawn.
QImage settled(QQuickWindow* window)
{
    drawn(window);
    QCoreApplication::processEvents();
    return drawn(window);
}

QByteArray pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

bool writeDown(const QString& path, const QByteArray& contents)
{
    QString error;
    if (writeFileDurably(path, contents, &error))
        return true;
    apps::complain(error);
    return false;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The expectations of one page in their folder.
class Expectations
{
public:
    explicit Expectations(const Options& options)
        : m_options(options)
    {
    }

    /// Both return whether the page is as expected.
    bool checkTexts(qint64 moment, const QStringList& texts) const
    {
        const QByteArray actual = (texts + QStringList(QString())).join(QLatin1Char('\n')).toUtf8();
        const auto differences = [&texts](const QByteArray& expected) {
            QStringList lines = QString::fromUtf8(expected).split(QLatin1Char('\n'));
            lines.removeLast();
            return lineDifferences(lines, texts);
        };
        return check(moment, QStringLiteral("txt"), actual, differences);
    }

    bool checkPicture(qint64 moment, const QImage& picture) const
    {
        const auto differences = [&picture](const QByteArray& expected) {
            const QString difference = pictureDifference(QImage::fromData(expected, "PNG"), picture);
            return difference.isEmpty() ? QStringList() : QStringList(difference);
        };
        return check(moment, QStringLiteral("png"), pngOf(picture), differences);
    }

private:
    /// "page@2.5s.txt", and "page@2.5s.actual.txt" beside it.
    QString path(qint64 moment, const QString& suffix) const
    {
        const QString name = QStringLiteral("%1@%2s.%3")
                                     .arg(QFileInfo(m_options.page).completeBaseName(),
                                             QString::number(double(moment) / 1000), suffix);
        return QDir(m_options.expectations).filePath(name);
    }

    template<class Differences>
    bool check(qint64 moment, const QString& suffix, const QByteArray& actual, const Differences& differences) const
    {
        const QString expectedPath = path(moment, suffix);
        const QString actualPath = path(moment, QLatin1String("actual.") + suffix);
        QFile::remove(actualPath);
        if (m_options.isUpdate)
            return writeDown(expectedPath, actual);
        const bool isThere = QFileInfo(expectedPath).isFile();
        const QStringList lines = isThere ? differences(readAll(expectedPath)) : QStringList();
        if (isThere && lines.isEmpty())
            return true;
        std::printf("%s\n",
                qUtf8Printable(isThere
                                ? Texts::tr("%1 differs; what the page shows is in %2:").arg(expectedPath, actualPath)
                                : Texts::tr("There is no %1, which --update writes; what the page shows is in %2.")
                                          .arg(expectedPath, actualPath)));
        for (const QString& line : lines)
            std::printf("    %s\n", qUtf8Printable(line));
        writeDown(actualPath, actual);
        return false;
    }

    const Options& m_options;
};

} // namespace

int testPage(QQuickWindow* window, Player* player, SteppedTime* time, const Options& options)
{
    if (!QDir().mkpath(options.expectations))
        return apps::complain(Texts::tr("The folder %1 cannot be made.").arg(options.expectations));
    const Expectations expectations(options);
    bool isAsExpected = true;
    for (const qint64 moment : options.moments) {
        playTo(moment, player, time);
        const QImage picture = settled(window);
        if (picture.isNull())
            return apps::complain(Texts::tr("The page was not drawn."));
        isAsExpected = expectations.checkTexts(moment, shownTexts(window)) && isAsExpected;
        if (options.hasPictures)
            isAsExpected = expectations.checkPicture(moment, picture) && isAsExpected;
    }
    const QString troubles = player->troubles();
    if (!troubles.isEmpty())
        apps::complain(troubles);
    return isAsExpected ? apps::exitDone : apps::exitFailed;
}

} // namespace uiutils::qmltool
