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
    explicit Style(const QString& selector = QString());

    QString selector() const { return m_selector; }

    void setMarginTop(int px);
    void setMarginBottom(int px);
    void setMarginLeft(int px);
    void setFontFamily(const QString& family);
    void setBackground(const QString& background);
    void setPadding(int vertical, int horizontal);
    void setProperty(const QString& name, const QVariant& value);

    /// The properties in the order of their names, for example "color:white; margin-top:12px".
    QString toCss() const;

private:
    QString m_selector;
    QMap<QString, QVariant> m_properties;
};
