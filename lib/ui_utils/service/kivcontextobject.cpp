#include "service/kivcontextobject_p.h"

#include "service/kivdata.h"

#include <QDebug>

#include <algorithm>

KIVContextObject::KIVContextObject(const QMap<QString, KivData*>& items, QObject* parent)
    : KIVContextObject(namesOf(items), parent)
{
}

KIVContextObject::KIVContextObject(const Names& names, QObject* parent)
    : DynamicObject("KIVContextObject", names.names, qRegisterMetaType<KivData*>(), parent)
    , m_wrappers(names.wrappers)
{
}

KIVContextObject::~KIVContextObject() = default;

KIVContextObject::Names KIVContextObject::namesOf(const QMap<QString, KivData*>& items)
{
    QVector<QPair<QByteArray, KivData*>> named;
    named.reserve(items.size());
    for (KivData* wrapper : items) {
        QByteArray name = wrapper ? wrapper->getQmlTag().toUtf8() : QByteArray();
        if (!name.isEmpty())
            named.append({std::move(name), wrapper});
    }
    // Stable, so that of equal names the last one stays the last.
    std::stable_sort(named.begin(), named.end(), [](const auto& a, const auto& b) { return a.first < b.first; });

    Names names;
    names.names.reserve(named.size());
    names.wrappers.reserve(named.size());
    for (auto it = named.begin(); it != named.end(); ++it) {
        if (it + 1 != named.end() && (it + 1)->first == it->first)
            continue;
        names.names.append(std::move(it->first));
        names.wrappers.append(it->second);
    }
    static bool isReported = false;
    if (names.names.size() > maximumProperties && !isReported) {
        isReported = true;
        qWarning("%d service items have names, but QML can know only %d: those after %s are left out.",
                names.names.size(), maximumProperties, names.names.at(maximumProperties - 1).constData());
    }
    return names;
}

void KIVContextObject::readProperty(int index, void* result) const
{
    *static_cast<KivData**>(result) = m_wrappers.at(index);
}
