#pragma once

#include <filesystem>
#include <string>

namespace orvane::pictures {

/// Where the files of an extraction go. Each is written in full before it gets its name.
/// Errors: all members throw Failure(TargetUnwritable).
class PictureTarget {
public:
    virtual ~PictureTarget() = default;

    /// An empty file to write the next picture to.
    virtual std::filesystem::path begin() = 0;
    /// Gives the written file its name. False when a file of that name is there already; it stays as it is, and
    /// another name can be tried.
    virtual bool commit(const std::string& name) = 0;
    /// Throws away what was written since begin().
    virtual void discard() = 0;
};

} // namespace orvane::pictures
