#pragma once

#include "judgement_p.h"

#include "embedded/servicedescription.h"

#include <QMap>
#include <QVector>

namespace kiv::simulation {

/// A value that an action or an event gives an item.
struct Assignment
{
    QString id;
    /// In a text "%1" stands for the action's argument.
    QVariant value;
    /// A KIVClientItem::TypeCode, and the members of an aggregate.
    unsigned type = 0;
    QVector<embedded::MemberDescription> members;
    /// The value is drawn from this range instead.
    std::optional<Range> drawnFrom;
};

/// An action that takes time, fails now and then, or stops another.
struct SimulatedAction
{
    QString id;
    QString title;
    QVector<Assignment> set;
    QString reply;
    /// With this text it fails, and how often: 1 for always.
    QString fail;
    double failingShare = 0;
    /// How long it runs after its answer; 0 for an action that is done when it answers.
    qint64 runsMs = 0;
    /// The item that counts from 0 to 100 while it runs; may be empty.
    QString progress;
    QVector<Assignment> whenDone;
    QVector<Assignment> whenStopped;
    QVector<Assignment> whenFailed;
    /// The action that it stops; may be empty.
    QString stops;
};

/// How an item is for clients, besides its value.
struct Condition
{
    QString refusal;
    bool isReady = true;
    bool isApplicable = true;
    KIVClientItem::Quality quality = KIVClientItem::QualityNone;
};

/// What befalls the service at a time. A field that is empty has no part in it.
struct Happening
{
    qint64 afterMs = 0;
    /// 0: it never ends.
    qint64 forMs = 0;
    /// 0: it does not begin again.
    qint64 everyMs = 0;
    std::optional<int> slowMs;
    bool isVanishing = false;
    bool isNotReady = false;
    bool isNotApplicable = false;
    std::optional<KIVClientItem::Quality> quality;
    QString refusal;
    QString error;
    QVector<Assignment> set;
    /// The items whose condition it changes, as their file describes them, by id.
    QMap<QString, Condition> items;

    bool changesConditions() const { return isNotReady || isNotApplicable || quality || !refusal.isEmpty(); }
};

/// What one service does by itself, and how its actions proceed.
struct Plan
{
    quint64 seed = 1;
    QVector<Motion> motions;
    QVector<Judgement> judgements;
    QVector<SimulatedAction> actions;
    QVector<Happening> happenings;
    /// The delay of the service where nothing makes it slow.
    int delayMs = 0;

    bool isEmpty() const
    {
        return motions.isEmpty() && judgements.isEmpty() && actions.isEmpty() && happenings.isEmpty();
    }
};

} // namespace kiv::simulation
