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
    QVector<QPair<QString, KivData*>> named;
    named.reserve(items.size());
    for (KivData* wrapper : items) {
        const QString name = wrapper ? wrapper->getQmlTag() : QString();
        if (!name.isEmpty())
            named.append({name, wrapper});
    }
    // Stable, so that of equal names the last one stays the last.
    std::stable_sort(named.begin(), named.end(), [](const auto& a, const auto& b) { return a.first < b.first; });

    Names names;
    names.names.reserve(named.size());
    names.wrappers.reserve(named.size());
    for (int i = 0; i < named.size(); ++i) {
        if (i + 1 < named.size() && named.at(i + 1).first == named.at(i).first)
            continue;
        names.names.append(named.at(i).first.toUtf8());
        names.wrappers.append(named.at(i).second);
    }
    static bool isReported = false;
    if (names.names.size() > maximumProperties && !isReported) {
        isReported = true;
        qWarning("%d service items have names, but QML can know only %d: those after %s are left out.", names.names.size(),
                maximumProperties, names.names.at(maximumProperties - 1).constData());
    }
    return names;
}

void KIVContextObject::readProperty(int index, void* result) const
{
    *static_cast<KivData**>(result) = m_wrappers.at(index);
}
