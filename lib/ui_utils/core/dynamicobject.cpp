#include "core/dynamicobject_p.h"

#include <private/qmetaobjectbuilder_p.h>
#include <private/qobject_p.h>

#include <cstdlib>
#include <cstring>

namespace uiutils {

/// A meta-object that is marked as dynamic, so that QML does not keep what it learnt of it longer than it lives, has to be
/// one that can be asked for further properties.
class DynamicObject::Layout final : public QAbstractDynamicMetaObject
{
public:
    explicit Layout(QMetaObject* built)
        : m_built(built, &std::free)
    {
        static_cast<QMetaObject&>(*this) = *built;
    }
    virtual ~Layout() = default;

private:
    std::unique_ptr<QMetaObject, decltype(&std::free)> m_built;
};

DynamicObject::DynamicObject(
        const char* className, const QVector<QByteArray>& names, const QByteArray& typeName, QObject* parent)
    : QObject(parent)
{
    QMetaObjectBuilder builder;
    builder.setClassName(className);
    builder.setSuperClass(&QObject::staticMetaObject);
    builder.setFlags(QMetaObjectBuilder::DynamicMetaObject);
    const int count = qMin(names.size(), maximumProperties);
    for (int i = 0; i < count; ++i) {
        QMetaPropertyBuilder property = builder.addProperty(names.at(i), typeName);
        property.setReadable(true);
        property.setWritable(false);
        property.setConstant(true);
    }
    m_layout = std::make_unique<Layout>(builder.toMetaObject());
}

DynamicObject::~DynamicObject() = default;

const QMetaObject* DynamicObject::metaObject() const
{
    return m_layout.get();
}

void* DynamicObject::qt_metacast(const char* className)
{
    if (className && std::strcmp(className, m_layout->className()) == 0)
        return this;
    return QObject::qt_metacast(className);
}

int DynamicObject::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0)
        return id;
    const int count = m_layout->propertyCount() - m_layout->propertyOffset();
    switch (call) {
    case QMetaObject::ReadProperty:
        if (id < count)
            readProperty(id, arguments[0]);
        return id - count;
    case QMetaObject::WriteProperty:
    case QMetaObject::ResetProperty:
    case QMetaObject::RegisterPropertyMetaType:
    case QMetaObject::QueryPropertyDesignable:
    case QMetaObject::QueryPropertyScriptable:
    case QMetaObject::QueryPropertyStored:
    case QMetaObject::QueryPropertyEditable:
    case QMetaObject::QueryPropertyUser:
        return id - count;
    default:
        return id;
    }
}

} // namespace uiutils
