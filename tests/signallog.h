#pragma once

#include <QMetaMethod>
#include <QStringList>

#include <utility>

/// Names of an object's signals in the order of emission, with their texts; signals of a base that the class declares
/// again are marked.
class SignalLog : public QObject
{
public:
    /// The lines are added to `log`, if there is one.
    explicit SignalLog(const QObject* object, QStringList* log = nullptr)
        : m_type(object->metaObject())
        , m_log(log ? log : &names)
    {
        const int first = QObject::staticMetaObject.methodCount();
        for (int i = first; i < m_type->methodCount(); ++i) {
            if (m_type->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(object, i, this, first + i);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QMetaMethod method = m_type->method(id);
        const bool isHidden = m_type->indexOfSignal(method.methodSignature()) != id;
        QStringList words(isHidden ? "KivData::" + method.name() : method.name());
        for (int i = 0; i < method.parameterCount(); ++i)
            words += *static_cast<const QString*>(arguments[i + 1]);
        m_log->append(words.join(' '));
        return -1;
    }

    QStringList take() { return std::exchange(names, {}); }

    QStringList names;

private:
    const QMetaObject* m_type;
    QStringList* m_log;
};
