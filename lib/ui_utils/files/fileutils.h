#pragma once

#include "core/uiutils_export.h"

#include <kiv/kivnotification.h>

#include <QMap>
#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class FileUtilsPrivate;
}

/// What users see of work on files: whether there is space for what is to be written, what went wrong, and what may be
/// overwritten or deleted.
///
/// Paths are the instrument's ("/cust/public/a.html"); texts show them as getSanitizedPathName() makes them.
///
/// At most one notification of an object is pending: raising one withdraws the one before it. accepted() and rejected()
/// report the answer to that one, which has the optional arguments as values. Nothing here copies, moves or deletes
/// files.
///
/// Requests have the words of their answers as the values "acceptText" ("Overwrite", "Delete") and "rejectText"
/// ("Keep"), and the value "details", with a file in each line, if they are about several files. An optional argument
/// of the name replaces each of these.
class UIUTILS_EXPORT FileUtils : public QObject
{
    Q_OBJECT

public:
    explicit FileUtils(QObject* parent = nullptr);
    ~FileUtils() override;

public Q_SLOTS:
    /// Receives the answers of all dialogs.
    void onNotificationAccepted(KIVNotification* notification);
    /// See onNotificationAccepted().
    void onNotificationRejected(KIVNotification* notification);

public:
    /// The path as users read it: without "copy:" or "cut:" in front, with "Internal:" for "/cust/public" and "USB:"
    /// for "/mnt/usb".
    Q_INVOKABLE QString getSanitizedPathName(QString path);

    /// Whether `src_file_size` bytes fit at `dest_path`, where a file that exists is overwritten. If not, notifies the
    /// user how much is missing. False without a message if nothing can be found out about the drive.
    Q_INVOKABLE bool checkDriveSpaceForFile(qint64 src_file_size, QString dest_path);
    /// The same for the size of the file `src_file`, 0 bytes if there is none.
    Q_INVOKABLE bool checkDriveSpaceForFile(QString src_file, QString dest_path);
    /// The same for everything that getDirSize() counts below the folder `src_path`, copied into the folder
    /// `dest_path`. False, with a line in the log, if `src_path` does not exist or cannot be counted.
    Q_INVOKABLE bool checkDriveSpaceForDir(QString src_path, QString dest_path);

    /// The drive of the path is full. In the tray and in a dialog.
    Q_INVOKABLE void sendNotificationDriveFull(QString real_path);
    /// The file or folder cannot be read. In the tray and in a dialog.
    Q_INVOKABLE void sendNotificationReadError(QString real_path);
    /// The file or folder cannot be written. In the tray and in a dialog.
    Q_INVOKABLE void sendNotificationWriteError(QString real_path);
    /// An error in a dialog alone; `needed` in bytes.
    Q_INVOKABLE void sendNotificationNotEnoughSpace(QString real_path, qint64 needed);

    /// Asks whether the file or folder may be overwritten; an empty path means all of them. `optional_args` become
    /// values of the notification.
    Q_INVOKABLE void sendNotificationOverwriteRequest(QString real_file_path_to, QMap<QString, QString> optional_args);
    /// Asks whether the file or folder, or several separated by line feeds, may be deleted. The value "Filename" is
    /// `real_file_path`.
    Q_INVOKABLE void sendNotificationDeleteRequest(QString real_file_path, QMap<QString, QString> optional_args);
    /// Asks whether the report may be overwritten; a compressed PDF is shown without ".gz". The value "Filename" is
    /// `real_file_path`.
    void sendNotificationOverwriteReportRequest(QString real_file_path, QMap<QString, QString> optional_args);
    /// Asks whether the screenshot may be overwritten. The value "Filename" is `real_file_path`, "IconFile"
    /// `icon_file`.
    void sendNotificationOverwriteScreenshotRequest(
            QString real_file_path, QString icon_file, QMap<QString, QString> optional_args);

    /// How many blocks of `fs_block_size` bytes the files below `src_path` need, less those that files of the same
    /// names below `dest_path` free. Links to folders are followed on the drive of `src_path`; each folder counts once,
    /// however many links lead there. 0, with a line in the log, if `src_path` does not exist; 0 for a block size below
    /// 1. The largest number, with a line in the log, if a folder, which the line names, cannot be read, or if there
    /// are more than 100,000 files and folders.
    Q_INVOKABLE qint64 getDirSize(QString src_path, QString dest_path, qint64 fs_block_size);

    /// What is wrong with a file name, in words that can be shown where it is typed; empty if nothing is. The rules are
    /// those of USB drives that other computers read: no / \ : * ? " < > |, control characters and such as turn the
    /// direction of text, no space at the ends, no point at the end, no name of a device such as "CON", at most 255
    /// bytes.
    Q_INVOKABLE QString fileNameProblem(const QString& name) const;

Q_SIGNALS:
    /// The user has answered the pending request with yes.
    void accepted(KIVNotification* notification);
    /// The user has answered the pending request with no.
    void rejected(KIVNotification* notification);

private:
    const std::unique_ptr<uiutils::FileUtilsPrivate> d;
};
