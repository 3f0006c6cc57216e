#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QString>
#include <QVariant>

/// Turns a value into the text that a user reads, in the user's locale.
///
/// A formatter holds one value and its own settings. **Ownership**: each caller of getFormatter() gets a formatter of
/// its own and owns it. **Errors**: a value that is no number gives the value's own text. No call blocks.
class KIV_EXPORT BaseFormatter : public QObject
{
    Q_OBJECT

public:
    explicit BaseFormatter(QObject* parent = nullptr);
    ~BaseFormatter() override;

    /// Decimals behind the point; below zero means as many as the kind of formatter finds fit.
    void setPrecision(int precision) { m_precision = precision; }
    int getPrecision() const { return m_precision; }

    /// Whether texts carry their unit; true at first.
    void setShowUnits(bool show) { m_showUnits = show; }
    bool getShowUnits() const { return m_showUnits; }

    /// Hands over the value that the formatter stands for.
    void setValue(const QVariant& value) { m_value = value; }
    QVariant getValue() const { return m_value; }

    /// The text of any value, with its unit when units are shown.
    Q_INVOKABLE virtual QString format(const QVariant& value) const = 0;

    /// The unit that the text of the held value carries, for example "dB" or "MHz"; empty without one.
    Q_INVOKABLE virtual QString getUnitString() const = 0;

private:
    QVariant m_value;
    int m_precision = -1;
    bool m_showUnits = true;
};

/// A new formatter of that name, owned by the caller; null without a back end, and for an unknown name, of which the
/// log tells once.
KIV_EXPORT BaseFormatter* getFormatter(const QString& name);
