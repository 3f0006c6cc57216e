#pragma once

#include <QString>

/// The names of a local item's attributes.
namespace uiutils::attributekeys {

inline const QString name = QStringLiteral("name");
inline const QString label = QStringLiteral("label");
inline const QString type = QStringLiteral("type");
inline const QString registerId = QStringLiteral("registerId");
inline const QString readOnly = QStringLiteral("readOnly");
inline const QString ready = QStringLiteral("ready");
inline const QString applicable = QStringLiteral("applicable");
inline const QString qualityCode = QStringLiteral("qualityCode");
inline const QString precision = QStringLiteral("precision");
inline const QString inputType = QStringLiteral("inputType");
inline const QString minRange = QStringLiteral("minRange");
inline const QString maxRange = QStringLiteral("maxRange");
inline const QString regex = QStringLiteral("regex");
inline const QString persistent = QStringLiteral("persistent");
inline const QString mandatory = QStringLiteral("mandatory");
inline const QString valueOk = QStringLiteral("valueOk");
inline const QString formatter = QStringLiteral("formatter");

} // namespace uiutils::attributekeys
