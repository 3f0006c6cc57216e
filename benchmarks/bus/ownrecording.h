#pragma once

#include "replay/recorder_p.h"
#include "replay/recordingfile_p.h"

#include <QTemporaryDir>

#include <memory>

class KIVClientInterface;

namespace bench {

/// A recording that a client makes while it shows its page.
class OwnRecording
{
public:
    OwnRecording(KIVClientInterface* client, bool isCompressed);

    /// Ends it. Returns whether it holds every change of so many loads, in their order.
    bool isComplete(int loads);

private:
    QByteArray contents() const;

    QTemporaryDir m_folder;
    std::unique_ptr<kiv::replay::RecordingFile> m_file;
    std::unique_ptr<kiv::replay::Recorder> m_recorder;
};

} // namespace bench
