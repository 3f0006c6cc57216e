#include "replicasource.h"

namespace bench {

ReplicaSource::ReplicaSource(QObject* parent)
    : QObject(parent)
    , m_text(QStringLiteral("seven"))
    , m_value(7)
{
}

ReplicaSource::~ReplicaSource() = default;

} // namespace bench
