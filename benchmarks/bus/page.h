#pragma once

#include <QQmlEngine>
#include <QVector>

#include <functional>
#include <memory>

class QQmlContext;

namespace bench {

/// A page that is bound to the values of some items, in the order of their numbers.
class Page
{
public:
    /// `install` lets the context know the items.
    Page(const QVector<int>& items, const std::function<void(QQmlContext*)>& install);

    /// Calls the slot whenever the binding to that item has a new value.
    QMetaObject::Connection watch(int item, QObject* receiver, const char* slot) const;
    QVariant shown(int item) const;
    /// Whether all bindings show what so many changes gave their items.
    bool isSettled(int changes) const;

private:
    const QVector<int> m_items;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_object;
};

/// Every `step`th of the first `count` items, from `first` on.
QVector<int> everyItem(int count, int first, int step);

} // namespace bench
