#pragma once

#include <QString>
#include <QVector>

/// An event on a fiber: where it is, what it is and what it loses.
struct Event
{
    double kilometre;
    QString kind;
    double loss;
    /// A code of uiutils::Status.
    int status;
};

/// What has been measured. Here it is always the same fiber.
QVector<Event> measuredEvents();

/// A length or a loss in the user's notation.
QString shown(double value, const QString& unit);
