#pragma once

#include "inifile.h"

#include <kiv/kivclientitem.h>

/// An item of a service: one section of its file.
class IniItem final : public KIVClientItem
{
    Q_OBJECT

public:
    IniItem(const QString& id, const IniSection& section, QObject* parent);

    unsigned getType() const override;
    QString getTypeName() const override { return m_type; }
    QString getId() const override { return m_id; }
    QString getLabel() const override { return text("label"); }
    QVariant getValue() const override { return valueOf(m_section); }
    QString getValueString(bool showUnits = true) const override;
    QString getUnitString() const override { return text("unit"); }
    QVariant getMinRange() const override { return limit("minimum"); }
    QVariant getMaxRange() const override { return limit("maximum"); }
    bool isReady() const override { return text("ready") != QLatin1String("false"); }
    int getQualityCode() const override { return qualityOf(m_section); }
    bool isApplicable() const override { return true; }
    QString getApplicableExpr() const override { return {}; }
    QVariant getAttribute(const QString& name) const override;

    /// Takes over what the file says now. Call notify() when all items have done so: a slot may read any of them.
    void take(const IniSection& section);
    /// Emits what has changed by take(). A slot may delete the item.
    void notify();

    /// The text that stands for `value` in the file; null, with the reason in `problem`, for a value that the item
    /// cannot have.
    QString accepted(const QVariant& value, QString* problem) const;

private:
    QString text(const char* key) const { return m_section.value(QLatin1String(key)); }
    QVariant converted(const QString& text) const;
    QVariant limit(const char* key) const;
    QVariant valueOf(const IniSection& section) const;
    static int qualityOf(const IniSection& section);

    const QString m_id;
    const QString m_type;
    IniSection m_section;
    IniSection m_before;
};
