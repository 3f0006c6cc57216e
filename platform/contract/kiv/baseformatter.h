#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QString>
#include <QVariant>

/// Turns a value into the text that a user reads, in the user's locale.
///
/// A formatter holds one value and its own settings. **Ownership**: each caller of getFormatter() gets a new formatter
/// and owns it. **Errors**: a value that is not a number gives the value's own text. No call blocks.
class KIV_EXPORT BaseFormatter : public QObject
{
    Q_OBJECT

public:
    explicit BaseFormatter(QObject* parent = nullptr);
    ~BaseFormatter() override;

    /// Digits after the decimal point; a negative number leaves the choice to the formatter.
    void setPrecision(int precision) { m_precision = precision; }
    int getPrecision() const { return m_precision; }

    /// Whether texts include the unit; initially true.
    void setShowUnits(bool show) { m_showUnits = show; }
    bool getShowUnits() const { return m_showUnits; }

    /// Sets the value that the formatter holds.
    void setValue(const QVariant& value) { m_value = value; }
    QVariant getValue() const { return m_value; }

    /// The text of any value, with its unit when units are shown.
    Q_INVOKABLE virtual QString format(const QVariant& value) const = 0;

    /// The unit in the text of the held value, for example "dB" or "MHz"; empty without one.
    Q_INVOKABLE virtual QString getUnitString() const = 0;

private:
    QVariant m_value;
    int m_precision = -1;
    bool m_showUnits = true;
};

/// A new formatter of that name, owned by the caller. Null without a back end and for an unknown name; the log has one
/// line for each unknown name.
KIV_EXPORT BaseFormatter* getFormatter(const QString& name);
