#pragma once

#include <QFont>
#include <QObject>
#include <QQmlParserStatus>

namespace uiutils {

/// How wide a text is in one line: a text that got its width from its own implicit one would go in circles.
///
/// A page measures many texts when it is made. Each is therefore measured once, when text and font are both known: to
/// measure it before, in a font that nobody uses, would load that font. The engine completes objects from the last to
/// the first, so that an object below the text that it serves knows the width when the text is laid out.
class NaturalWidth : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    /// In whole pixels, with room for what rounding takes; 0 for an empty text.
    Q_PROPERTY(int oneLine READ oneLine NOTIFY oneLineChanged)

public:
    using QObject::QObject;

    QString text() const { return m_text; }
    void setText(const QString& text);
    QFont font() const { return m_font; }
    void setFont(const QFont& font);
    int oneLine() const { return m_oneLine; }

    void classBegin() override { m_isComplete = false; }
    void componentComplete() override;

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void oneLineChanged();

private:
    void measure();

    QString m_text;
    QFont m_font;
    int m_oneLine = 0;
    /// Objects that are made in C++ have no beginning and no end.
    bool m_isComplete = true;
};

} // namespace uiutils
