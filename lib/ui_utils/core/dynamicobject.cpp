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
/// Qt takes a meta-object that is marked as dynamic for a QAbstractDynamicMetaObject, which can be asked for further
/// properties.
class DynamicObject::Layout final : public QAbstractDynamicMetaObject
{
public:
    Layout(const char* className, const QVector<QByteArray>& names, int type, Changes changes)
        : m_strings(names)
        , m_count(qMin(names.size(), maximumProperties))
        , m_hasNotifier(changes == Changes::Told)
    {
        m_strings.resize(m_count);
        m_strings += {QByteArray(className), QByteArray("namesChanged"), QByteArray("")};
        fillStrings();
        fillNumbers(type);
        d.superdata = &QObject::staticMetaObject;
        d.stringdata = m_stringData.get();
        d.data = m_numbers.data();
        d.static_metacall = nullptr;
        d.relatedMetaObjects = nullptr;
        d.extradata = nullptr;
    }
    virtual ~Layout() = default;

    int count() const { return m_count; }
    int methodCount() const { return m_hasNotifier ? 1 : 0; }
    QByteArray nameOf(int index) const { return m_strings.at(index); }

private:
    void fillStrings()
    {
        m_stringData = std::make_unique<QByteArrayData[]>(size_t(m_strings.size()));
        for (int i = 0; i < m_strings.size(); ++i) {
            QByteArrayData& string = m_stringData[size_t(i)];
            string.ref.atomic.storeRelaxed(-1); // never freed by those who read it
            string.size = m_strings.at(i).size();
            string.offset = m_strings.at(i).constData() - reinterpret_cast<const char*>(&string);
        }
    }

    void fillNumbers(int type)
    {
        QMetaObjectPrivate header {};
        constexpr int headerSize = sizeof header / sizeof(uint);
        header.revision = QMetaObjectPrivate::OutputRevision;
        header.className = count();
        header.propertyCount = count();
        header.methodCount = methodCount();
        header.signalCount = methodCount();
        header.methodData = headerSize;
        header.propertyData = headerSize + methodCount() * methodSize;
        header.flags = DynamicMetaObject;
        m_numbers.reserve(size_t(header.propertyData) + size_t(count()) * 4 + 1);
        m_numbers.resize(headerSize);
        std::memcpy(m_numbers.data(), &header, sizeof header);
        if (m_hasNotifier)
            addNotifier();
        const uint changes = m_hasNotifier ? Notify : Constant;
        for (int i = 0; i < count(); ++i)
            m_numbers.insert(m_numbers.end(), {uint(i), uint(type), uint(Readable | Scriptable) | changes});
        if (m_hasNotifier)
            m_numbers.insert(m_numbers.end(), size_t(count()), 0); // the number of each one's notifier
        m_numbers.push_back(0);
    }

    /// Its name, the number and place of its parameters, its tag and its flags, then its return type.
    void addNotifier()
    {
        const uint name = uint(count()) + 1;
        const uint parameters = uint(m_numbers.size()) + methodSize - 1;
        m_numbers.insert(m_numbers.end(),
                {name, 0, parameters, name + 1, uint(AccessPublic | MethodSignal), uint(QMetaType::Void)});
    }

    static constexpr int methodSize = 6;

    /// The names of the properties, followed by those of the class and of the notifier, and an empty tag.
    QVector<QByteArray> m_strings;
    int m_count;
    bool m_hasNotifier;
    std::unique_ptr<QByteArrayData[]> m_stringData;
    std::vector<uint> m_numbers;
};

DynamicObject::DynamicObject(
        const char* className, const QVector<QByteArray>& names, int type, Changes changes, QObject* parent)
    : QObject(parent)
    , m_layout(std::make_unique<Layout>(className, names, type, changes))
{
    // QML keeps what it learns about a meta-object under its address, permanently. What it learns about this one must
    // be removed with it, because another one may have the same address later.
    QQmlData* data = QQmlData::get(this, true);
    data->propertyCache = new QQmlPropertyCache(m_layout.get());
}

DynamicObject::~DynamicObject() = default;

void DynamicObject::tellOfChanges()
{
    QMetaObject::activate(this, m_layout.get(), 0, nullptr);
}

QByteArray DynamicObject::nameOf(int index) const
{
    return m_layout->nameOf(index);
}

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
    case QMetaObject::InvokeMetaMethod:
        if (id < m_layout->methodCount())
            tellOfChanges();
        return id - m_layout->methodCount();
    case QMetaObject::RegisterMethodArgumentMetaType:
        return id - m_layout->methodCount();
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
