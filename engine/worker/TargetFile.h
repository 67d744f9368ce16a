#pragma once

#include "worker/AbandonableOutput.h"
#include "worker/LockedPart.h"

#include <filesystem>
#include <mutex>
#include <optional>

namespace orvane::worker {

/// The file that a job makes. It grows as a part file beside the target and takes the target's place in one step, so
/// that at any moment the target is either the old file or the new one, whole.
class TargetFile : public AbandonableOutput {
public:
    /// Takes possession of the part file; what a dead job left of it is thrown away.
    /// Errors: Failure(TargetUnwritable), Failure(TargetInUse) when another program holds the target or another job
    /// makes it.
    explicit TargetFile(const std::filesystem::path& target);
    ~TargetFile() override;
    TargetFile(const TargetFile&) = delete;
    TargetFile& operator=(const TargetFile&) = delete;

    /// Where to write.
    const std::filesystem::path& part() const { return m_part->path(); }

    /// Brings the part file to the disk and puts it in the target's place.
    /// Errors: Failure(TargetUnwritable).
    void commit();

    /// Removes the part file unless it has become the target. Thread: any. Returns false when it was too late.
    bool abandon() override;

private:
    void requireWritable() const;

    std::filesystem::path m_target;
    std::optional<LockedPart> m_part;
    std::mutex m_mutex;
    enum class State { Growing, Committed, Abandoned } m_state = State::Growing;
};

} // namespace orvane::worker
