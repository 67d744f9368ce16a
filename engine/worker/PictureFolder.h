#pragma once

#include "pictures/PictureTarget.h"
#include "worker/AbandonableOutput.h"
#include "worker/LockedPart.h"

#include <filesystem>
#include <mutex>
#include <optional>

namespace orvane::worker {

/// The folder that a job fills with pictures. Each grows as a part file and gets its name in one step, and never that
/// of a file that is there.
class PictureFolder : public pictures::PictureTarget, public AbandonableOutput {
public:
    /// Makes the folder where there is none, and a first part file, to know that it can. `part` lies in the folder.
    /// Errors: Failure(TargetUnwritable), Failure(TargetInUse) when another job writes pictures of this source there.
    PictureFolder(std::filesystem::path folder, std::filesystem::path part);
    ~PictureFolder() override;

    std::filesystem::path begin() override;
    bool commit(const std::string& name) override;
    void discard() override;

    /// From now on all that was to be written is there. False when the job was given up before.
    bool finish();
    bool abandon() override;

private:
    void removePart();

    std::filesystem::path m_folder;
    std::filesystem::path m_partPath;
    std::mutex m_mutex; // of all below
    std::optional<LockedPart> m_part;
    enum class State { Filling, Finished, Abandoned } m_state = State::Filling;
};

} // namespace orvane::worker
