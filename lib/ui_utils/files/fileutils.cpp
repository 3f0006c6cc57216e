#include "files/fileutils.h"

#include "base/paths_p.h"
#include "files/drivespace_p.h"
#include "files/filename_p.h"
#include "instrument/drives_p.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <limits>

using uiutils::onDisk;

/// The notifications of one object, of which one may be pending.
class uiutils::FileUtilsPrivate
{
public:
    explicit FileUtilsPrivate(FileUtils* owner)
        : q(owner)
    {
    }

    KIVNotification* freshNotification(const QString& title, const QString& text);
    void sendError(const QString& title, const QString& text);
    void sendRequest(const QString& title, const QString& text, const QMap<QString, QString>& values);
    bool isPending(const KIVNotification* notification) const;
    bool hasRoom(const QString& path, const DriveSpace& space, qint64 blocks);

    QPointer<KIVNotification> pending;

private:
    FileUtils* q;
};

using uiutils::FileUtilsPrivate;

namespace {

const QLatin1String uidKey("uid");
const QLatin1String fileNameKey("Filename");
const QLatin1String iconFileKey("IconFile");
// What a dialog shows besides title and text.
const QLatin1String acceptKey("acceptText");
const QLatin1String rejectKey("rejectText");
const QLatin1String detailsKey("details");

QString kindOf(const QString& path)
{
    return QFileInfo(onDisk(uiutils::instrument::withoutClipboardMark(path))).isDir() ? FileUtils::tr("Directory")
                                                                                      : FileUtils::tr("File");
}

/// `first` with the pairs of `others`, which override those of the same key.
QMap<QString, QString> joined(QMap<QString, QString> first, const QMap<QString, QString>& others)
{
    for (auto it = others.cbegin(); it != others.cend(); ++it)
        first.insert(it.key(), it.value());
    return first;
}

QMap<QString, QString> overwriteValues(const QMap<QString, QString>& others)
{
    return joined({{acceptKey, FileUtils::tr("Overwrite")}, {rejectKey, FileUtils::tr("Keep")}}, others);
}

/// The files, one in each line.
QString shownFiles(const QString& paths)
{
    constexpr int most = 100;
    QStringList shown = paths.split(QLatin1Char('\n'));
    const int others = shown.size() - most;
    shown = shown.mid(0, most);
    for (QString& path : shown)
        path = uiutils::instrument::shownPath(path);
    if (others > 0)
        shown += FileUtils::tr("and %1 more").arg(others);
    return shown.join(QLatin1Char('\n'));
}

std::optional<qint64> countedBlocks(
        const char* operation, const QString& source, const QString& destination, qint64 size)
{
    QString problem;
    const auto blocks = uiutils::blocksOfTree(source, destination, size, &problem);
    if (!blocks)
        qCritical("FileUtils::%s - source path %s %s", operation, qUtf8Printable(source), qUtf8Printable(problem));
    return blocks;
}

} // namespace

FileUtils::FileUtils(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<FileUtilsPrivate>(this))
{
    KIVNotificationModelManager* manager = KIVNotificationModelManager::instance();
    connect(manager, &KIVNotificationModelManager::notificationAccepted, this, &FileUtils::onNotificationAccepted);
    connect(manager, &KIVNotificationModelManager::notificationRejected, this, &FileUtils::onNotificationRejected);
}

/// An open dialog closes at once. One that is no longer open may just be being answered: other objects still have to be
/// notified.
FileUtils::~FileUtils()
{
    KIVNotification* pending = d->pending;
    if (!pending || pending == KIVNotificationModelManager::instance()->currentDialog())
        return;
    pending->setParent(nullptr);
    pending->deleteLater();
}

void FileUtils::onNotificationAccepted(KIVNotification* notification)
{
    if (d->isPending(notification))
        Q_EMIT accepted(notification);
}

void FileUtils::onNotificationRejected(KIVNotification* notification)
{
    if (d->isPending(notification))
        Q_EMIT rejected(notification);
}

QString FileUtils::getSanitizedPathName(QString path)
{
    return uiutils::instrument::shownPath(path);
}

bool FileUtils::checkDriveSpaceForFile(qint64 src_file_size, QString dest_path)
{
    const auto space = uiutils::driveSpaceAt(dest_path);
    if (!space)
        return false;
    const qint64 freed = uiutils::blocksOfFile(dest_path, space->blockSize);
    return d->hasRoom(dest_path, *space, uiutils::blocksFor(src_file_size, space->blockSize) - freed);
}

bool FileUtils::checkDriveSpaceForFile(QString src_file, QString dest_path)
{
    return checkDriveSpaceForFile(QFileInfo(onDisk(src_file)).size(), dest_path);
}

bool FileUtils::checkDriveSpaceForDir(QString src_path, QString dest_path)
{
    if (!QFileInfo::exists(onDisk(src_path))) {
        qCritical("FileUtils::checkDriveSpaceForDir - source path %s does not exist", qUtf8Printable(src_path));
        return false;
    }
    const auto space = uiutils::driveSpaceAt(dest_path);
    if (!space)
        return false;
    const auto blocks = countedBlocks("checkDriveSpaceForDir", src_path, dest_path, space->blockSize);
    return blocks && d->hasRoom(dest_path, *space, *blocks);
}

void FileUtils::sendNotificationDriveFull(QString real_path)
{
    d->sendError(tr("I/O Error"), tr("Drive %1 is full").arg(getSanitizedPathName(real_path)));
}

void FileUtils::sendNotificationReadError(QString real_path)
{
    d->sendError(tr("Read Error"), tr("There was an error reading %1").arg(getSanitizedPathName(real_path)));
}

void FileUtils::sendNotificationWriteError(QString real_path)
{
    d->sendError(tr("Write Error"), tr("There was an error writing to %1").arg(getSanitizedPathName(real_path)));
}

void FileUtils::sendNotificationNotEnoughSpace(QString real_path, qint64 needed)
{
    const QString text = tr("Not enough disk space for %1 - would need %2");
    KIVNotification* notification = d->freshNotification(
            tr("Not Enough Space"), text.arg(getSanitizedPathName(real_path), uiutils::sizeText(needed)));
    notification->setError();
    notification->notifyDialog();
}

void FileUtils::sendNotificationOverwriteRequest(QString real_file_path_to, QMap<QString, QString> optional_args)
{
    const QString name = getSanitizedPathName(real_file_path_to);
    const QString text = real_file_path_to.isEmpty()
            ? tr("Do you want to overwrite all files/directories?")
            : tr("Do you want to overwrite %1 %2?").arg(kindOf(real_file_path_to), name);
    d->sendRequest(tr("File Exists"), text, overwriteValues(optional_args));
}

void FileUtils::sendNotificationDeleteRequest(QString real_file_path, QMap<QString, QString> optional_args)
{
    const int count = real_file_path.count(QLatin1Char('\n')) + 1;
    const QString kind = count > 1 ? tr("Files") : kindOf(real_file_path);
    const QString text = count > 1
            ? tr("Do you want to delete these %1 files?").arg(count)
            : tr("Do you want to delete the %1 %2?").arg(kind, getSanitizedPathName(real_file_path));
    QMap<QString, QString> values {{fileNameKey, real_file_path}, {acceptKey, tr("Delete")}, {rejectKey, tr("Keep")}};
    if (count > 1)
        values.insert(detailsKey, shownFiles(real_file_path));
    d->sendRequest(tr("Delete %1").arg(kind), text, joined(values, optional_args));
}

void FileUtils::sendNotificationOverwriteReportRequest(QString real_file_path, QMap<QString, QString> optional_args)
{
    const QLatin1String compression(".gz");
    QString name = getSanitizedPathName(real_file_path);
    if (name.endsWith(QLatin1String(".pdf.gz")))
        name.chop(compression.size());
    d->sendRequest(tr("Report Exists"), tr("Do you want to overwrite report %1?").arg(name),
            overwriteValues(joined({{fileNameKey, real_file_path}}, optional_args)));
}

void FileUtils::sendNotificationOverwriteScreenshotRequest(
        QString real_file_path, QString icon_file, QMap<QString, QString> optional_args)
{
    const QString name = getSanitizedPathName(real_file_path);
    d->sendRequest(tr("File Exists"), tr("Do you want to overwrite screenshot %1?").arg(name),
            overwriteValues(joined({{fileNameKey, real_file_path}, {iconFileKey, icon_file}}, optional_args)));
}

qint64 FileUtils::getDirSize(QString src_path, QString dest_path, qint64 fs_block_size)
{
    if (!QFileInfo::exists(onDisk(src_path))) {
        qCritical("FileUtils::getDirSize - source path %s does not exist", qUtf8Printable(src_path));
        return 0;
    }
    if (fs_block_size < 1)
        return 0;
    const auto blocks = countedBlocks("getDirSize", src_path, dest_path, fs_block_size);
    return blocks.value_or(std::numeric_limits<qint64>::max());
}

QString FileUtils::fileNameProblem(const QString& name) const
{
    return uiutils::fileNameProblem(name);
}

KIVNotification* FileUtilsPrivate::freshNotification(const QString& title, const QString& text)
{
    // The slot that is notified of its answer may be what raises the next.
    if (pending)
        pending->deleteLater();
    pending = new KIVNotification(q);
    pending->setLongLabel(title);
    pending->setMsg(text);
    return pending;
}

void FileUtilsPrivate::sendError(const QString& title, const QString& text)
{
    KIVNotification* notification = freshNotification(title, text);
    notification->setError();
    // A slot that watches the tray may delete this object.
    const QPointer<FileUtils> self(q);
    notification->notifyTray();
    if (self)
        notification->notifyDialog();
}

void FileUtilsPrivate::sendRequest(const QString& title, const QString& text, const QMap<QString, QString>& values)
{
    KIVNotification* notification = freshNotification(title, text);
    notification->setRequest();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        notification->setValue(it.key(), it.value());
    notification->notifyDialog();
}

bool FileUtilsPrivate::isPending(const KIVNotification* notification) const
{
    if (!pending || !notification)
        return false;
    const QVariant uid = pending->value(uidKey);
    return uid.isValid() && uid == notification->value(uidKey);
}

bool FileUtilsPrivate::hasRoom(const QString& path, const DriveSpace& space, qint64 blocks)
{
    if (blocks <= space.available)
        return true;
    q->sendNotificationNotEnoughSpace(path, bytesIn(blocks - space.available, space.blockSize));
    return false;
}
