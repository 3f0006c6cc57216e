#pragma once

#include "service/inputvalidator_p.h"
#include "service/kivdata.h"

#include <kiv/kivclientitem.h>

#include <QPointer>

#include <memory>

class QQmlExpression;

namespace uiutils {

class Announcement;

/// What a wrapper keeps. Those of derived classes derive from this, so that an item takes one allocation for all.
class KivDataPrivate
{
public:
    KivDataPrivate();
    virtual ~KivDataPrivate();

    static KivDataPrivate* of(const KivData* wrapper) { return wrapper->d.get(); }

    /// getQmlTag(), also while the item is away.
    QString contextName() const;
    /// Follows another item, or none; called when the service's items have come or gone.
    void bindItem(KIVClientItem* other);
    void connectItem();
    void createFormatter();
    void announceItem();
    /// Whether a change waits to be sent.
    bool isPending() const { return isChanged && !isSent; }
    /// Forgets a change; returns whether it was pending.
    bool endChange();
    void announceValue();
    bool isBeingTold() const;
    bool isKnownToChain() const;
    void enterChain();
    bool isStopped();
    QVariant reportedValue() const;
    void refuse(const QString& reason);
    void compileApplicability(const QString& text);
    bool evaluateApplicability();
    void reportExpressionError(const QString& problem) const;
    InputRule inputRule() const;
    InputRule currentRule() const;
    QString arraySelectionKey() const;
    void followUserData();

    KivData* q = nullptr;
    QVariant value;
    BaseFormatter* formatter = nullptr;
    QValidator* validator = nullptr;
    QVariant previous;
    /// What the service had said when the pending change was written.
    QVariant reported;
    bool isChanged = false;
    /// The change went out with a batch that the service took.
    bool isSent = false;
    /// Follows an item, or did when the service was last heard of.
    bool isBound = false;
    /// Whether the item is an array, a text or a real number, or was when it was last there.
    bool isVector = false;
    bool isText = false;
    bool isReal = false;
    bool isExpressionRefused = false;
    /// The value did not settle in the chain that told of it last.
    bool stopped = false;
    bool followsUserData = false;
    QPointer<KIVClientItem> item;
    QString error;
    QQmlExpression* expression = nullptr;
    QString id;
    QObject* enums = nullptr;
    /// Counts the service's reports, so that a write knows whether it was answered meanwhile.
    unsigned reports = 0;
    /// Set while the value is told; the innermost one.
    Announcement* announcing = nullptr;
    /// The chain of announcements that told of the value last.
    unsigned toldIn = 0;
    QString selectionText;
    int selection = -1;
};

} // namespace uiutils
