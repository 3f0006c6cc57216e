#include "document/compactobject_p.h"

#include <private/qcborvalue_p.h>
#include <private/qjson_p.h>

namespace uiutils {

void compact(const QJsonObject& object)
{
    // Qt offers no operation for it. A value of this type refers to the object's own container.
    const QCborValue value = QCborValue::fromJsonValue(object);
    if (QCborContainerPrivate* container = QJsonPrivate::Value::container(value)) {
        container->data.squeeze();
        container->elements.squeeze();
    }
}

} // namespace uiutils
