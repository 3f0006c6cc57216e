#pragma once

#include "core/uiutils_export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class UiEnumTypePrivate;
}

/// One choice of a local data item.
class UIUTILS_EXPORT UiEnumType : public QObject
{
    Q_OBJECT
    /// The text that the user reads. Every write emits labelChanged().
    Q_PROPERTY(QString label READ getLabel WRITE setLabel NOTIFY labelChanged)
    /// The key of the choice in the item's `enums`. Meant to be set once, where the choice is declared: writing emits
    /// nothing.
    Q_PROPERTY(QString name READ getName WRITE setName NOTIFY nameChanged)
    /// The value that the item takes with this choice. Every write emits valueChanged().
    Q_PROPERTY(int value READ getValue WRITE setValue NOTIFY valueChanged)
    /// Whether the choice may be selected now; true at first. A write emits applicableChanged() if it changes the flag.
    Q_PROPERTY(bool applicable READ isApplicable WRITE setApplicable NOTIFY applicableChanged)

public:
    explicit UiEnumType(QObject* parent = nullptr);
    /// A choice with everything set.
    UiEnumType(QObject* parent, const QString& label, const QString& name, int value, bool applicable);
    ~UiEnumType() override;

    QString getLabel() const;
    void setLabel(const QString& label);
    QString getName() const;
    void setName(const QString& name);
    int getValue() const;
    void setValue(int value);
    bool isApplicable() const;
    void setApplicable(bool applicable);

Q_SIGNALS:
    void applicableChanged();
    void labelChanged();
    void nameChanged();
    void valueChanged();

private:
    const std::unique_ptr<uiutils::UiEnumTypePrivate> d;
};
