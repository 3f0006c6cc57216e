#pragma once

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QHash>
#include <QVector>

namespace bench {

/// The value as a user reads it, made anew on each call.
QString valueText(const QVariant& value, const QString& unit);

/// An item that answers from its members, so that what a platform costs does not blur what its clients cost.
class PlainServiceItem final : public KIVClientItem
{
public:
    PlainServiceItem(TypeCode type, const QString& id, const QString& name, const QVariant& value);
    ~PlainServiceItem() override;

    /// What a report of the service does.
    void report(const QVariant& value);

    unsigned getType() const override { return m_type; }
    QString getTypeName() const override { return m_typeName; }
    QString getId() const override { return m_id; }
    QString getName() const override { return m_name; }
    QString getLabel() const override { return m_name; }
    QVariant getValue() const override { return m_value; }
    QString getValueString(bool showUnits) const override;
    QString getUnitString() const override { return m_unit; }
    QVariant getMinRange() const override { return m_minimum; }
    QVariant getMaxRange() const override { return m_maximum; }
    bool isReady() const override { return true; }
    int getQualityCode() const override { return QualityPassing; }
    bool isApplicable() const override { return true; }
    QString getApplicableExpr() const override { return QString(); }
    QVariant getAttribute(const QString&) const override { return QVariant(); }

private:
    TypeCode m_type;
    QString m_typeName;
    QString m_id;
    QString m_name;
    QString m_unit;
    QVariant m_value;
    QVariant m_minimum;
    QVariant m_maximum;
};

/// A service of settings of type int, string and double in equal parts, named "int_0", "string_1",
/// "double_2", "int_3" and so on, and listed in that order.
class PlainService final : public KIVClientInterface
{
public:
    PlainService(const QString& name, int count);
    ~PlainService() override;

    const QVector<PlainServiceItem*>& items() const { return m_items; }

    bool isValid() const override { return true; }
    QString getServiceName() const override { return m_name; }
    QStringList getItemIds(const QString&) const override { return m_ids; }
    KIVClientItem* getItem(const QString& id) const override;
    bool setItem(const QString&, const QVariant&) override { return false; }
    bool sendAction(const QString&, const QString&, QString*, int) override { return false; }
    bool invokeAction(const QString&) override { return false; }
    QString getLastError() const override { return QString(); }

private:
    QString m_name;
    QStringList m_ids;
    QVector<PlainServiceItem*> m_items;
    QHash<QString, PlainServiceItem*> m_itemOfId;
    mutable int m_next = 0;
};

} // namespace bench
