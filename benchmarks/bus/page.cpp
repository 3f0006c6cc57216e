#include "page.h"

#include "workload.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QQmlComponent>

#include <algorithm>

namespace bench {

namespace {

QString propertyName(int item)
{
    return QStringLiteral("value%1").arg(item);
}

} // namespace

Page::Page(const QVector<int>& items, const std::function<void(QQmlContext*)>& install)
    : m_items(items)
{
    install(m_engine.rootContext());
    QString text = QStringLiteral("import QtQml 2.15\nQtObject {\n");
    for (const int item : items)
        text += QStringLiteral("property var %1: %2.value\n").arg(propertyName(item), itemName(item));
    QQmlComponent component(&m_engine);
    component.setData((text + QLatin1Char('}')).toUtf8(), QUrl());
    m_object.reset(component.create());
    if (!m_object)
        qFatal("%s", qPrintable(component.errorString()));
}

QMetaObject::Connection Page::watch(int item, QObject* receiver, const char* slot) const
{
    const QMetaObject* page = m_object->metaObject();
    const QMetaObject* hearer = receiver->metaObject();
    return QObject::connect(m_object.get(),
            page->property(page->indexOfProperty(propertyName(item).toLatin1())).notifySignal(), receiver,
            hearer->method(hearer->indexOfSlot(slot)));
}

QVariant Page::shown(int item) const
{
    return m_object->property(propertyName(item).toLatin1());
}

bool Page::isSettled(int changes) const
{
    return std::all_of(m_items.cbegin(), m_items.cend(),
            [this, changes](int item) { return shown(item) == lastValue(item, changes); });
}

QVector<int> everyItem(int count, int first, int step)
{
    QVector<int> items;
    for (int item = first; item < count; item += step)
        items += item;
    return items;
}

} // namespace bench
