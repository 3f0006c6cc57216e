#pragma once

#include "core/dynamicobject_p.h"

#include <QMap>
#include <QPointer>
#include <QString>
#include <QVector>

class KivData;

/// The wrappers of service items as properties that bear their names, for QQmlContext::setContextObject().
///
/// At most DynamicObject::maximumProperties names are included. The rest, in the order of names, is left out, and the
/// log has a line about it once.
class KIVContextObject final : public uiutils::DynamicObject
{
public:
    /// One property per name of a wrapper, see KivData::getQmlTag(), whether its service is available or not; of
    /// wrappers with one name the last in the order of ids counts. A wrapper that is deleted later reads as null, or as
    /// the wrapper that has its id and name then.
    KIVContextObject(const QMap<QString, KivData*>& items, QObject* parent);
    ~KIVContextObject() override;

    /// Makes everything that uses a name of any of these objects read it again.
    static void evaluateNames();

private:
    struct Item
    {
        QString id;
        QPointer<KivData> wrapper;
    };
    struct Names
    {
        QVector<QByteArray> names;
        QVector<Item> items;
    };
    static Names namesOf(const QMap<QString, KivData*>& items);
    KIVContextObject(const Names& names, QObject* parent);
    void readProperty(int index, void* result) const override;

    QVector<Item> m_items;
};
