#pragma once

#include <kiv/kiv_export.h>

#include <QString>

/// Facts about the unit.
class KIV_EXPORT System
{
public:
    /// The one object of the process.
    static System& getInstance();
    Q_DISABLE_COPY_MOVE(System)

    /// The time of day in the unit's time zone as reports show it, for example "14:05:09".
    QString getCurrentTime() const;

private:
    System() = default;
    ~System() = default;
};
