#pragma once

#include <QQmlEngine>
#include <QQmlError>
#include <QStringList>

/// Collects the warnings of engines. It must live at least as long as they do.
class QmlWarnings : public QObject
{
public:
    void watch(QQmlEngine* engine)
    {
        connect(engine, &QQmlEngine::warnings, this, [this](const QList<QQmlError>& warnings) {
            for (const QQmlError& warning : warnings)
                m_texts += warning.toString();
        });
    }

    /// The warnings since the last call.
    QStringList take()
    {
        QStringList taken;
        taken.swap(m_texts);
        return taken;
    }

private:
    QStringList m_texts;
};
