#pragma once

#include <filesystem>
#include <memory>

namespace orvane::worker {

/// The file that a job writes before it becomes a target. It is locked while the job lives, which tells two jobs with
/// one target apart from a job that died.
class LockedPart {
public:
    /// Makes the file, empty; what a dead job left of it is thrown away. `target` stands in messages.
    /// Errors: Failure(TargetUnwritable), Failure(TargetInUse) when another job writes it.
    LockedPart(std::filesystem::path part, const std::filesystem::path& target);
    ~LockedPart();
    LockedPart(const LockedPart&) = delete;
    LockedPart& operator=(const LockedPart&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
    struct Lock;
    std::unique_ptr<Lock> m_lock;
};

/// Tells that a file cannot be written, with the system's reason.
[[noreturn]] void throwUnwritable(const std::filesystem::path& file, const std::string& why);

} // namespace orvane::worker
