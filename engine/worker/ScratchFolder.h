#pragma once

#include <filesystem>

namespace orvane::worker {

/// A folder of the job's own for files that do not outlive it.
/// Owns: the folder and all it holds.
class ScratchFolder {
public:
    /// Makes the folder below `parent`, or where the system keeps such files when `parent` is empty.
    /// Errors: Failure(TargetUnwritable).
    explicit ScratchFolder(const std::filesystem::path& parent);
    ~ScratchFolder() { remove(); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

    /// Removes it before its time. Thread: any.
    void remove() const;

private:
    std::filesystem::path m_path;
};

} // namespace orvane::worker
