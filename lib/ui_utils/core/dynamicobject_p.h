#pragma once

#include <QByteArray>
#include <QObject>
#include <QVector>

#include <memory>

namespace uiutils {

/// An object whose read-only properties are known only at run time. All are made at once: QQmlPropertyMap takes time
/// that grows with the square of the number of keys.
class DynamicObject : public QObject
{
public:
    /// A meta-object cannot number more; the rest is discarded.
    static constexpr int maximumProperties = 32767;

    ~DynamicObject() override;

    const QMetaObject* metaObject() const override;
    void* qt_metacast(const char* className) override;
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

protected:
    /// Whether the properties are constant or may change, all at once.
    enum class Changes {
        None,
        Told,
    };

    /// All properties have the registered type `type`. The names have to differ.
    DynamicObject(const char* className, const QVector<QByteArray>& names, int type, Changes changes, QObject* parent);

    /// Emits the notifier of the properties.
    void tellOfChanges();

    QByteArray nameOf(int index) const;

    /// Writes the property's value to `result`, which points to a value of the properties' type.
    virtual void readProperty(int index, void* result) const = 0;

private:
    class Layout;
    std::unique_ptr<Layout> m_layout;
};

} // namespace uiutils
