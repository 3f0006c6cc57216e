#pragma once

#include "core/uiutils_export.h"
#include "service/manifest.h"

#include <QObject>
#include <QQmlParserStatus>
#include <QString>

#include <memory>

namespace uiutils {

class ServiceItemsPrivate;

/// The items of one service as properties: the root of the modules that uiutils-describe writes.
///
/// A document with this root declares a property for each item, named like the item in QML without the service's tag,
/// of the type KivData, KivAggregateData or KivListAggregateData:
///
///     ServiceItems {
///         tag: "optical"
///         readonly property KivData cfg_mode: null
///     }
///
/// When the document is complete, each property has the wrapper that the context has under the complete name, here
/// "optical_cfg_mode", and it follows that name from then on: it is null until the item is there, and another wrapper
/// after the wrapper was replaced. Properties of other types are left alone. An item that is of another kind than its
/// property says stays null, and one warning says so; another one names items that a service that is there does not
/// have.
class UIUTILS_EXPORT ServiceItems : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    /// What the names of the items in the context begin with, for example "optical".
    Q_PROPERTY(QString tag READ tag WRITE setTag NOTIFY tagChanged)
    /// The manifest of the service, for transactions; null until the service is there.
    Q_PROPERTY(Manifest* service READ service NOTIFY serviceChanged)

public:
    explicit ServiceItems(QObject* parent = nullptr);
    ~ServiceItems() override;

    QString tag() const;
    void setTag(const QString& tag);
    Manifest* service() const;

    void classBegin() override { }
    void componentComplete() override;

Q_SIGNALS:
    void tagChanged();
    void serviceChanged();

private:
    const std::unique_ptr<ServiceItemsPrivate> d;
};

} // namespace uiutils
