#pragma once

#include "core/uiutils_export.h"
#include "local/uienumtype.h"

#include <QList>
#include <QObject>
#include <QQmlListProperty>
#include <QQmlParserStatus>

#include <memory>

namespace uiutils {
class UiDataEnumsPrivate;
}

/// The choices of a local data item, in their order.
///
/// The list owns no choice; a destroyed choice is removed from it. Choices are added silently until
/// componentComplete(), which announces them at once. From then on every further one emits itemsChanged(). A choice
/// whose applicability changes always does.
class UIUTILS_EXPORT UiDataEnums : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_CLASSINFO("DefaultProperty", "items")
    /// The choices as QML declares them; only UiEnumType objects are accepted.
    Q_PROPERTY(QQmlListProperty<QObject> items READ getItems NOTIFY itemsChanged)

public:
    explicit UiDataEnums(QObject* parent = nullptr);
    ~UiDataEnums() override;

    /// The choice at a position from 0; null outside.
    Q_INVOKABLE UiEnumType* at(int i) const;
    /// Adds a choice at the end; null is ignored.
    Q_INVOKABLE void append(UiEnumType* a);

    /// The choices in their order; the list owns none.
    QList<UiEnumType*> getEnumList() const;
    /// Whether componentComplete() was called, or the list was never QML's.
    bool isComplete() const;
    QQmlListProperty<QObject> getItems();

    void classBegin() override;
    /// Ends the silent filling and emits itemsChanged() once.
    void componentComplete() override;

Q_SIGNALS:
    void itemsChanged();

private:
    void forget(QObject* choice);

    const std::unique_ptr<uiutils::UiDataEnumsPrivate> d;
};
