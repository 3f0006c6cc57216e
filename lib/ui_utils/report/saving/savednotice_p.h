#pragma once

#include <QString>

namespace uiutils {

/// The notice that a report was saved at the instrument path: its name without suffixes, and its folder, which is
/// relative to the unit's public folder, and "USB" anywhere on a USB drive.
QString savedMessage(const QString& path);

/// Puts the notices of saved reports into the tray: one for each file, or one for all files of a save.
class SavedNotices
{
public:
    /// From here on, the first file is remembered if `isOneForAll`, and end() posts its notice: the files of a save
    /// share name and folder.
    void begin(bool isOneForAll);
    void post(const QString& path);
    void end();

private:
    bool m_isOneForAll = false;
    QString m_first;
};

} // namespace uiutils
