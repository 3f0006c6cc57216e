#pragma once

#include <QLatin1String>
#include <QString>

/// Ids of the service items that the library itself reads.
namespace uiutils::itemids {

/// The beginning of a system setting's id; the setting's own name and a colon follow.
inline const QLatin1String systemSetting(":config:basemgr:system:");
/// Names of the technician and customer fields that a report shows.
inline const QLatin1String technicianFields(":config:basemgr:system:techFieldsIncludedInReport:stringARRAY:");
inline const QLatin1String customerFields(":config:basemgr:system:customerFieldsIncludedInReport:stringARRAY:");

inline const QLatin1String technicianFirstName("userInfo_firstName");
inline const QLatin1String technicianLastName("userInfo_lastName");

/// Where reports are saved: 0 internal, 1 USB, 2 both.
inline const QLatin1String saveLocation(":config:basemgr:system:saveLocation:");
inline const QLatin1String usbAttached(":result:basemgr:system:usbAttached:");
/// Has the platform keep the report's name for the next report.
inline const QLatin1String updateNameConfigs(":action:basemgr:system:report_update_name_configs:");
/// The name that a test proposes for its reports; empty for none.
inline const QLatin1String customDefaultName(":result:basemgr:system:reportCustomDefaultName:");
inline const QLatin1String cdmTestType(":config:basemgr:system:report_cdm_testType:");
inline const QLatin1String cdmTestLabel(":config:basemgr:system:report_cdm_testLabel:");

inline const QLatin1String softwareNames(":result:basemgr:swrev:names:stringARRAY:");
inline const QLatin1String softwareVersions(":result:basemgr:swrev:versions:stringARRAY:");

/// Hardware assemblies: a name that ends in "_top" follows, the value reads "description|assembly id|barcode".
inline const QLatin1String hardware(":result:basemgr:eeprom:");
inline const QLatin1String hardwareNameEnd("_top");

inline const QLatin1String baseUnit(":result:basemgr:eeprom:base_barcode_top:");

/// Begins the ids of all items of the job.
inline const QLatin1String jobManager(":result:basemgr:jobmanager:");
inline const QLatin1String jobActive(":result:basemgr:jobmanager:isJobActive:");
inline const QLatin1String jobId(":result:basemgr:jobmanager:jobID:");
inline const QLatin1String jobBan(":result:basemgr:jobmanager:jobBAN:");
inline const QLatin1String jobTechnician(":result:basemgr:jobmanager:jobTechnician:");
/// Attaches the XML report that is its argument to the active job.
inline const QLatin1String attachReport(":action:basemgr:jobmanager:attachReport:");

/// Occurs in the ids of items that say whether a job is active.
inline const QLatin1String jobActiveWord("isJobActive");
/// Paths of the reports that the cloud does not sync.
inline const QLatin1String noSyncList(":config:basemgr:system:ss_nosync:stringARRAY:");

/// The service that leads users through the tests of a job.
inline const QLatin1String workflowManager("orb.base.workflow_manager_app");
/// Its items of the active work order.
inline const QLatin1String activeWorkOrder(
        ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderId:");
inline const QLatin1String activeWorkflow(
        ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderWorkflowId:");
inline const QLatin1String workflowSession(
        ":result:workflow_manager_app:workflow_manager_reg_module:internalSessionName:");

/// Ends the id of the item that stands for a complete service.
inline const QLatin1String manifest(":manifest:");
/// What takes its place in the ids of the actions on a complete service.
inline const QLatin1String applyConfig(":applyconfig:");
inline const QLatin1String saveConfig(":saveconfig:");

inline const QLatin1String configuration(":config:");
inline const QLatin1String result(":result:");
inline const QLatin1String action(":action:");

/// Ends the ids of arrays, after the item's own name.
inline const QLatin1String stringArray("stringARRAY:");
inline const QLatin1String doubleArray("doubleARRAY:");

/// The item's own name in its id.
inline QString nameOf(QString id)
{
    if (id.endsWith(stringArray) || id.endsWith(doubleArray))
        id.chop(stringArray.size());
    return id.section(QLatin1Char(':'), -1, -1, QString::SectionSkipEmpty);
}

} // namespace uiutils::itemids
