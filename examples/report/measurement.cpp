#include "measurement.h"

#include <uiutils/status.h>

#include <QLocale>

QVector<Event> measuredEvents()
{
    using namespace uiutils;
    return {{0, QStringLiteral("Connector"), 0.21, Status::Pass}, {6.104, QStringLiteral("Splice"), 0.08, Status::Pass},
            {11.87, QStringLiteral("Connector"), 0.71, Status::Fail},
            {18.453, QStringLiteral("Splice"), 0.19, Status::Marginal}};
}

QString shown(double value, const QString& unit)
{
    return QLocale().toString(value, 'f', 2) + QLatin1Char(' ') + unit;
}
