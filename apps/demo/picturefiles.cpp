#include "picturefiles.h"

#include "files/diskpath.h"
#include "places.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace uiutils::demo {

namespace {

/// Of the pictures' records, in the form in which a screenshot writes them.
QString recordOf(const QString& path)
{
    return QStringLiteral("/cust/private/screenshots/metadata/%1.metadata").arg(QFileInfo(path).fileName());
}

} // namespace

PictureFiles::PictureFiles(QObject* parent)
    : QAbstractListModel(parent)
{
    refresh();
}

int PictureFiles::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_files.size();
}

QVariant PictureFiles::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const File& file = m_files.at(index.row());
    switch (role) {
    case NameRole:
        return QFileInfo(file.path).completeBaseName();
    case PathRole:
        return file.path;
    case SourceRole:
        return QUrl::fromLocalFile(diskPath(file.path));
    case SizeRole:
        return file.size;
    case TimeRole:
        return file.time;
    default:
        return {};
    }
}

QHash<int, QByteArray> PictureFiles::roleNames() const
{
    return {{NameRole, "name"}, {PathRole, "path"}, {SourceRole, "source"}, {SizeRole, "size"}, {TimeRole, "time"}};
}

void PictureFiles::refresh()
{
    const QDir folder(diskPath(places::screenshots));
    const QFileInfoList found = folder.entryInfoList({QStringLiteral("*.png")}, QDir::Files, QDir::Time);
    beginResetModel();
    m_files.clear();
    for (const QFileInfo& file : found)
        m_files += {places::screenshots + file.fileName(), file.size(), file.lastModified()};
    endResetModel();
    Q_EMIT countChanged();
}

bool PictureFiles::remove(const QString& path)
{
    const auto isPath = [&](const File& file) { return file.path == path; };
    if (std::none_of(m_files.cbegin(), m_files.cend(), isPath) || !QFile::remove(diskPath(path)))
        return false;
    QFile::remove(diskPath(recordOf(path)));
    refresh();
    return true;
}

} // namespace uiutils::demo
