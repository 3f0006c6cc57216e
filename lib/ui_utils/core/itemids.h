#pragma once

#include <QLatin1String>

/// Ids of the service items that the library itself reads.
namespace uiutils::itemids {

/// The folder of a system setting; the setting's own name and a colon follow.
inline const QLatin1String systemSetting(":config:basemgr:system:");
/// Names of the technician and customer fields that a report shows.
inline const QLatin1String technicianFields(":config:basemgr:system:techFieldsIncludedInReport:stringARRAY:");
inline const QLatin1String customerFields(":config:basemgr:system:customerFieldsIncludedInReport:stringARRAY:");

inline const QLatin1String technicianFirstName("userInfo_firstName");
inline const QLatin1String technicianLastName("userInfo_lastName");

inline const QLatin1String softwareNames(":result:basemgr:swrev:names:stringARRAY:");
inline const QLatin1String softwareVersions(":result:basemgr:swrev:versions:stringARRAY:");

/// Hardware assemblies: a name that ends in "_top" follows, the value reads "description|assembly id|barcode".
inline const QLatin1String hardware(":result:basemgr:eeprom:");
inline const QLatin1String hardwareNameEnd("_top");

inline const QLatin1String baseUnit(":result:basemgr:eeprom:base_barcode_top:");

inline const QLatin1String jobId(":result:basemgr:jobmanager:jobID:");
inline const QLatin1String jobBan(":result:basemgr:jobmanager:jobBAN:");
inline const QLatin1String jobTechnician(":result:basemgr:jobmanager:jobTechnician:");

/// The service that knows the user's work orders, and what it says of the one that is worked on.
inline const QLatin1String workflowManager("orb.base.workflow_manager_app");
inline const QLatin1String activeWorkOrder(
        ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderId:");
inline const QLatin1String activeWorkflow(
        ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderWorkflowId:");
inline const QLatin1String workflowSession(
        ":result:workflow_manager_app:workflow_manager_reg_module:internalSessionName:");

/// Ends the id of the item that stands for a whole service.
inline const QLatin1String manifest(":manifest:");
/// What takes its place in the ids of the actions on a whole service.
inline const QLatin1String applyConfig(":applyconfig:");
inline const QLatin1String saveConfig(":saveconfig:");

inline const QLatin1String configuration(":config:");
inline const QLatin1String result(":result:");
inline const QLatin1String action(":action:");

} // namespace uiutils::itemids
