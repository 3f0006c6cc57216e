#pragma once

#include "servicefile_p.h"

#include <kiv/kivclientitem.h>

namespace kiv::embedded {

/// An item that lives in this process.
class EmbeddedItem final : public KIVClientItem
{
    Q_OBJECT

public:
    EmbeddedItem(ItemDescription description, QObject* parent);

    unsigned getType() const override;
    QString getTypeName() const override;
    QString getId() const override { return m_description.id; }
    QString getLabel() const override { return m_description.label; }
    QVariant getValue() const override { return m_description.value; }
    QString getValueString(bool showUnits = true) const override;
    QString getUnitString() const override { return m_description.unit; }
    QVariant getMinRange() const override { return QVariant(); }
    QVariant getMaxRange() const override { return QVariant(); }
    bool isReady() const override { return true; }
    int getQualityCode() const override { return QualityNone; }
    bool isApplicable() const override { return true; }
    QString getApplicableExpr() const override { return QString(); }
    QVariant getAttribute(const QString& name) const override { return m_description.attributes.value(name); }

    /// Takes the value and tells the clients when it differs.
    void setValue(const QVariant& value);
    void setAttribute(const QString& name, const QVariant& value) { m_description.attributes.insert(name, value); }

private:
    ItemDescription m_description;
};

} // namespace kiv::embedded
