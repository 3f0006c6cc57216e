#pragma once

#include <QHash>
#include <QString>

namespace uiutils {

/// Makes the names of files out of the titles of tables.
class CsvNames
{
public:
    /// "Events.csv"; "Events 2.csv" if that is taken. What names of files cannot have on some system becomes "_".
    QString nameFor(const QString& title);

private:
    /// The number of names made of each title, by the title as systems compare it that ignore the case of letters.
    QHash<QString, int> m_counts;
};

} // namespace uiutils
