#include "mounttable_p.h"

#include <QList>

namespace {

// Indexes of fields before the hyphen; the fields after it begin with the type.
constexpr int mountPointField = 4;

bool isOctal(char digit)
{
    return digit >= '0' && digit <= '7';
}

/// Blanks, line ends and backslashes are written as a backslash and three octal digits.
QByteArray unescaped(const QByteArray& field)
{
    QByteArray text;
    text.reserve(field.size());
    for (int i = 0; i < field.size(); ++i) {
        const bool isEscape = field.at(i) == '\\' && i + 3 < field.size() && isOctal(field.at(i + 1))
                && isOctal(field.at(i + 2)) && isOctal(field.at(i + 3));
        text += isEscape ? char(field.mid(i + 1, 3).toInt(nullptr, 8)) : field.at(i);
        i += isEscape ? 3 : 0;
    }
    return text;
}

bool isDriveAt(const QByteArray& line, const QByteArray& mountPoint)
{
    const QList<QByteArray> fields = line.split(' ');
    if (fields.size() <= mountPointField || unescaped(fields.at(mountPointField)) != mountPoint)
        return false;
    // The number of optional fields before the hyphen varies.
    const int hyphen = fields.indexOf("-", mountPointField + 1);
    return hyphen < 0 || fields.value(hyphen + 1) != "autofs";
}

} // namespace

bool kiv::listsMount(const QByteArray& table, const QByteArray& mountPoint)
{
    const QList<QByteArray> lines = table.split('\n');
    for (const QByteArray& line : lines) {
        if (isDriveAt(line, mountPoint))
            return true;
    }
    return false;
}
