#pragma once

#include "local/uidata.h"
#include "service/kivdata_p.h"

#include <QPointer>
#include <QQmlContext>

#include <optional>

class UiDataContainer;

namespace uiutils {

/// What a local item keeps: its attributes, elements and choices, and where it is known.
class UiDataPrivate : public KivDataPrivate
{
public:
    static UiDataPrivate* of(const UiData* item) { return item->d; }

    bool isVectorType() const;
    QVariant declared(const QVariant& given) const;
    QVariant element(const QVariant& given) const;
    void updateVectorValue();
    void joinElements();
    void holdText(const QString& text);
    void setQuality(int code);
    void updateContainers();
    void registerInEngine(QQmlContext* context);

    QMap<QString, QVariant> attributes;
    QVector<QVariant> elements;
    /// The elements have changed since their text was made; it is made again when it is requested.
    bool isTextStale = false;
    /// As it was set last.
    std::optional<int> arraySelection;
    /// QML is setting the properties that its file declares.
    bool isBeingDeclared = false;
    QPointer<UiDataEnums> enumList;
    QQmlPropertyMap* enumMap = nullptr;
    QStringList enumLabels;
    QList<int> enumValues;
    QPointer<QObject> declarer;
    QPointer<QQmlContext> rootContext;
    /// The containers that hold the item, and whether it keeps them from being ready.
    QVector<UiDataContainer*> containers;
    bool isHindrance = false;

private:
    UiData* owner() const { return static_cast<UiData*>(q); }
};

} // namespace uiutils
