#pragma once

#include "service/inputvalidator_p.h"
#include "service/kivdata.h"

#include <kiv/kivclientitem.h>

#include <QPointer>

#include <memory>

class QQmlExpression;

namespace uiutils {

class Announcement;

/// What a wrapper keeps. The private parts of derived classes derive from this, so that an item takes one allocation.
class KivDataPrivate
{
public:
    KivDataPrivate();
    virtual ~KivDataPrivate();

    static KivDataPrivate* of(const KivData* wrapper) { return wrapper->d.get(); }

    /// getQmlTag(), also while the item is away.
    QString contextName() const;
    /// Follows another item, or none. Called after items of the service have appeared or vanished.
    void bindItem(KIVClientItem* other);
    void connectItem();
    void createFormatter();
    void announceItem();
    /// Whether a change waits to be sent.
    bool isPending() const { return isChanged && !isSent; }
    /// Forgets a change. Returns whether it was pending.
    bool endChange();
    /// Notes that a pending change began, has another value or has ended.
    void noteChange();
    /// Forgets the pending change: the wrapper holds what the service has.
    void withdraw();
    /// Makes revert() give what the service has, however often the value was written.
    void revertToReported();
    void announceValue();
    bool isAnnouncing() const;
    bool isKnownToChain() const;
    void enterChain(unsigned chain);
    bool isStopped();
    QVariant reportedValue() const;
    void reject(const QString& reason);
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
    /// The change was sent with a batch that the service accepted.
    bool isSent = false;
    /// Follows an item, or did when the service was last available.
    bool isBound = false;
    /// Whether the item is an array, a text or a real number, or was when it was last available.
    bool isVector = false;
    bool isText = false;
    bool isReal = false;
    bool isExpressionRejected = false;
    /// The value did not settle in the chain that announced it last.
    bool stopped = false;
    bool followsUserData = false;
    QPointer<KIVClientItem> item;
    QString error;
    QQmlExpression* expression = nullptr;
    QString id;
    QObject* enums = nullptr;
    /// Counts the service's reports, so that a write knows whether a report has answered it.
    unsigned reports = 0;
    /// Set while the value is being announced; the innermost one.
    Announcement* announcing = nullptr;
    /// The chain of announcements that announced the value last.
    unsigned announcedIn = 0;
    QString selectionText;
    int selection = -1;
};

} // namespace uiutils
