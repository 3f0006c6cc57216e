#pragma once

#include <QMap>
#include <QObject>
#include <QString>

/// What a client may also know: which settings of a batch its service has rejected. A platform may do without it; the
/// users of its applications then read one reason for the complete batch.
///
/// A client that knows derives from this class too, and names it with Q_INTERFACES; qobject_cast finds it.
class KIVRejectedSettings
{
public:
    /// Why each setting was rejected, in words for the user, by the names under which the batch had them. Of the last
    /// call that sent a batch (the action ":applyconfig:"); empty after any other call, after a batch that was accepted,
    /// and when the service named no setting.
    virtual QMap<QString, QString> rejectedSettings() const = 0;

protected:
    ~KIVRejectedSettings() = default;
};

Q_DECLARE_INTERFACE(KIVRejectedSettings, "org.uiutils.kiv.RejectedSettings/1.0")
