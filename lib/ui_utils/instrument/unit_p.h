#pragma once

#include "instrument/labelledtext_p.h"

#include <kiv/kivitemsnapshot.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::instrument {

/// The barcode of the base unit.
QString unitId();

/// Name and version of the installed components; ends with the shorter of the two lists.
LabelledTexts softwareRevisions();

/// One entry for each hardware assembly: the parts of its description, empty ones included.
QVector<QStringList> hardwareAssemblies();

/// The settings of the service as they are now, in the order of their ids. An empty name means the base manager.
KIVItemSnapshot settingsOf(const QString& service);

/// The settings of `module` among those of a service, in their order there; "default" for one without a value.
LabelledTexts configurationValues(const KIVItemSnapshot& settings, const QString& module);

} // namespace uiutils::instrument
