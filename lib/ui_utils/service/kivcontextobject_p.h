#pragma once

#include "core/dynamicobject_p.h"

#include <QMap>
#include <QPointer>
#include <QString>
#include <QVector>

class KivData;

/// The wrappers of service items as properties that bear their names, for QQmlContext::setContextObject().
///
/// Up to DynamicObject::maximumProperties names have room; the rest, in the order of names, is left out and the log
/// says so once.
class KIVContextObject final : public uiutils::DynamicObject
{
public:
    /// One property per name of a wrapper, see KivData::getQmlTag(); of wrappers with one name the last in the order of
    /// ids counts. A wrapper that goes later reads as null.
    KIVContextObject(const QMap<QString, KivData*>& items, QObject* parent);
    ~KIVContextObject() override;

private:
    struct Names
    {
        QVector<QByteArray> names;
        QVector<QPointer<KivData>> wrappers;
    };
    static Names namesOf(const QMap<QString, KivData*>& items);
    KIVContextObject(const Names& names, QObject* parent);
    void readProperty(int index, void* result) const override;

    QVector<QPointer<KivData>> m_wrappers;
};
