#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class KivData;
class QObject;

namespace uiutils {

/// A change that waits for the end of a transaction, or that a report of the service has overtaken. What it shows is
/// kept, because a service that goes takes labels, units and choices along.
struct PendingChange
{
    enum State { Waiting, Overtaken, Refused };

    /// Null after the wrapper has been deleted.
    KivData* item = nullptr;
    /// The manifest of the item; only to be compared.
    const QObject* owner = nullptr;
    /// Increases from change to change.
    quint64 serial = 0;
    State state = Waiting;
    QVariant oldValue;
    QVariant newValue;
    QString id;
    QString service;
    QString label;
    QString oldText;
    QString newText;
    /// Why the service has rejected it.
    QString problem;
    /// It is to be announced.
    bool isNoted = false;
    /// It is nobody's any more.
    bool isGone = false;

    bool isOvertaken() const { return state == Overtaken; }
};

using PendingChangePtr = std::shared_ptr<PendingChange>;

/// Takes from the item what the service has and how users read both values. Returns whether that differs from what was
/// known.
bool renew(PendingChange& change);

/// Whether two values mean the same to a service: 5 and 5.0 do.
bool meansSame(const QVariant& a, const QVariant& b);

/// Any value of the item as users read it: its choice, or its number in their locale, with the unit.
QString settingText(KivData& item, const QVariant& value);

} // namespace uiutils
