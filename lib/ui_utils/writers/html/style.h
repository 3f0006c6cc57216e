#pragma once

#include "core/uiutils_export.h"

#include <QMap>
#include <QString>
#include <QVariant>

/// One CSS rule: a selector and its properties. Setting a property again replaces its value; lengths are in pixels,
/// -1 stands for "auto".
class UIUTILS_EXPORT Style
{
public:
    /// A rule without properties.
    explicit Style(const QString& selector = QString());

    /// The selector, as it was given.
    QString selector() const { return m_selector; }

    /// In pixels; -1 for "auto".
    void setMarginTop(int px);
    /// In pixels; -1 for "auto".
    void setMarginBottom(int px);
    /// In pixels; -1 for "auto".
    void setMarginLeft(int px);
    /// Names of font families in the notation of CSS.
    void setFontFamily(const QString& family);
    /// A background in the notation of CSS.
    void setBackground(const QString& background);
    /// In pixels; -1 for "auto".
    void setPadding(int vertical, int horizontal);
    /// Any property by its name in CSS; the value is written as its text.
    void setProperty(const QString& name, const QVariant& value);

    /// The properties in the order of their names, for example "color:white; margin-top:12px".
    QString toCss() const;

private:
    QString m_selector;
    QMap<QString, QVariant> m_properties;
};
