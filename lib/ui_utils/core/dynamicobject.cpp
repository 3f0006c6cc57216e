#include "core/dynamicobject_p.h"

#include <private/qmetaobject_p.h>
#include <private/qobject_p.h>
#include <private/qqmldata_p.h>
#include <private/qqmlpropertycache_p.h>

#include <cstring>
#include <vector>

namespace uiutils {

/// The tables that the meta-object compiler would write for such a class. QMetaObjectBuilder writes them too, but looks
/// each property's type up by its name, more than once, and so takes several times as long.
///
/// A meta-object that is marked as dynamic has to be one that can be asked for further properties.
class DynamicObject::Layout final : public QAbstractDynamicMetaObject
{
public:
    Layout(const char* className, const QVector<QByteArray>& names, int type)
        : m_names(names)
    {
        m_names.resize(qMin(names.size(), maximumProperties));
        m_names.append(className);
        fillStrings();
        fillNumbers(type);
        d.superdata = &QObject::staticMetaObject;
        d.stringdata = m_strings.get();
        d.data = m_numbers.data();
        d.static_metacall = nullptr;
        d.relatedMetaObjects = nullptr;
        d.extradata = nullptr;
    }
    virtual ~Layout() = default;

    int count() const { return m_names.size() - 1; }

private:
    void fillStrings()
    {
        m_strings = std::make_unique<QByteArrayData[]>(size_t(m_names.size()));
        for (int i = 0; i < m_names.size(); ++i) {
            QByteArrayData& string = m_strings[size_t(i)];
            string.ref.atomic.storeRelaxed(-1); // never freed by who reads it
            string.size = m_names.at(i).size();
            string.offset = m_names.at(i).constData() - reinterpret_cast<const char*>(&string);
        }
    }

    void fillNumbers(int type)
    {
        QMetaObjectPrivate header {};
        constexpr int headerSize = sizeof header / sizeof(uint);
        header.revision = QMetaObjectPrivate::OutputRevision;
        header.className = count();
        header.propertyCount = count();
        header.propertyData = headerSize;
        header.flags = DynamicMetaObject;
        m_numbers.reserve(headerSize + size_t(count()) * 3 + 1);
        m_numbers.resize(headerSize);
        std::memcpy(m_numbers.data(), &header, sizeof header);
        for (int i = 0; i < count(); ++i)
            m_numbers.insert(m_numbers.end(), {uint(i), uint(type), uint(Readable | Constant | Scriptable)});
        m_numbers.push_back(0);
    }

    /// The properties' names and behind them that of the class.
    QVector<QByteArray> m_names;
    std::unique_ptr<QByteArrayData[]> m_strings;
    std::vector<uint> m_numbers;
};

DynamicObject::DynamicObject(const char* className, const QVector<QByteArray>& names, int type, QObject* parent)
    : QObject(parent)
    , m_layout(std::make_unique<Layout>(className, names, type))
{
    // QML keeps what it learns of a meta-object under its address, for ever. What is learnt of this one must go with
    // it, because another one may lie at its address later.
    QQmlData* data = QQmlData::get(this, true);
    data->propertyCache = new QQmlPropertyCache(m_layout.get());
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
    const int count = m_layout->count();
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
