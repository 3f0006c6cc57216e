#pragma once

#include <QString>
#include <QVector>

namespace bench {

/// What one case came to.
struct Result
{
    QString name;
    /// What `ours` and `floor` are, for the reader of the table.
    QString unit;
    double ours = 0;
    double floor = 0;
    /// What the ratio ours / floor is to stay below; 0 where none is set.
    double limit = 0;

    double ratio() const { return floor > 0 ? ours / floor : 0; }
};

struct Room
{
    const char* name;
    QVector<Result> (*measure)(int runs);
};

/// What the command line asks for.
struct Options
{
    int runs = 0;
    /// Empty for no file.
    QString json;
    QVector<Room> rooms;
};

/// Reads the command line of the application; ends the program when it names a room that is none of `rooms`, or asks
/// for help.
Options readOptions(const QString& description, const QVector<Room>& rooms);

/// Measures the rooms, prints the table, writes the file. Returns the program's exit code.
int measureRooms(const Options& options);

} // namespace bench
