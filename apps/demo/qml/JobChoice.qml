import QtQuick 2.15
import UiUtils 1.0

// Makes a job the one in hand: customer and work order in one transaction, then the job manager's own values.
QtObject {
    id: choice

    property string technician
    // Why the last job could not be chosen; empty when it was.
    property string problem

    // What open() was last given; null before.
    property var taken: null

    readonly property var workflow: services["orb.base.workflow_manager_app"]
    readonly property Connections refusals: Connections {
        target: typeof basemgr_cfg_customerInfo_name === "undefined" ? null : basemgr_cfg_customerInfo_name
        function onErrorChanged(id, error) { choice.problem = error }
    }

    // Takes over the customer of a row of the service's tables; false when the services reject it.
    function takeCustomer(row) {
        return write([[basemgr_cfg_customerInfo_name, row.customer], [basemgr_cfg_customerInfo_address, row.address],
                      [basemgr_cfg_customerInfo_circuitID, row.circuit], [basemgr_cfg_customerInfo_contact, row.contact]])
    }

    // Opens the job of a row of the service's table.
    function open(job) {
        const orders = workflow === undefined ? [] : [[workflow_manager_app_cfg_activeWorkOrderId, job.jobId],
                                                      [workflow_manager_app_cfg_activeWorkOrderWorkflowId, job.workflow]]
        if (!write([[basemgr_cfg_customerInfo_name, job.customer], [basemgr_cfg_customerInfo_address, job.address],
                    [basemgr_cfg_customerInfo_circuitID, job.circuit], [basemgr_cfg_customerInfo_contact, job.contact]].concat(orders)))
            return false
        basemgr_act_setJobBAN.invokeWithStringArg(job.ban)
        basemgr_act_setJobTechnician.invokeWithStringArg(technician)
        basemgr_act_openJob.invokeWithStringArg(job.jobId)
        problem = basemgr_res_jobID.value === job.jobId ? "" : basemgr_act_openJob.error
        if (problem === "")
            taken = { jobId: job.jobId, customer: job.customer, address: job.address, circuit: job.circuit, contact: job.contact,
                      ban: job.ban, workflow: job.workflow }
        return problem === ""
    }

    // All or none: one action carries the changes of both services.
    function write(pairs) {
        problem = ""
        const manifests = [services.basemgr].concat(workflow === undefined ? [] : [workflow])
        manifests.forEach(manifest => manifest.startChanges())
        pairs.forEach(pair => pair[0].value = pair[1])
        services.basemgr.applyChanges()
        if (problem !== "")
            pairs.forEach(pair => pair[0].revert())
        manifests.slice(1).forEach(manifest => problem === "" ? manifest.applyChanges() : manifest.revertChanges())
        return problem === ""
    }
}
