#pragma once

#include "instrument/job_p.h"
#include "report/saving/saveplan_p.h"
#include "report/saving/saving_p.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace uiutils {

/// One save: its steps, over a plan that is made once and a consent that says what may be replaced.
class SaveRun
{
public:
    SaveRun(std::shared_ptr<Saving> saving, bool overwrite);
    ~SaveRun();
    Q_DISABLE_COPY_MOVE(SaveRun)

    bool run();

private:
    bool getReady();
    bool takeName();
    void keepName();
    void takeDestinations();
    bool hasRoom();
    bool mayWrite();
    bool write();
    bool writeFiles();
    bool writeFile(const PlannedFile& file);
    void updateSyncList();
    bool mayCopy();
    bool copyToUsb();
    bool copyToUsb(const PlannedFile& file, const QString& written);
    bool announce();
    bool fail();

    SaveHooks& hooks() const { return *m_saving->hooks; }

    std::shared_ptr<Saving> m_saving;
    bool m_overwrite;
    FormatChoice m_choice;
    SavePlan m_plan;
    /// Another program may close the job while the files are written.
    const instrument::HeldJob m_job;
    /// The planned files that have been written, and their paths on the disk.
    QVector<PlannedFile> m_saved;
    QStringList m_written;
};

} // namespace uiutils
