#include "worker/PictureFolder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::worker {
namespace {

/// Renames unless there is a file of the new name; errno tells why not.
bool renameToUnused(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system that cannot do it in one step: a second name does not replace either.
    return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0;
}

} // namespace

PictureFolder::PictureFolder(std::filesystem::path folder, std::filesystem::path part)
    : m_folder(std::move(folder))
    , m_partPath(std::move(part)) {
    std::error_code error;
    std::filesystem::create_directories(m_folder, error);
    if (!std::filesystem::is_directory(m_folder))
        throwUnwritable(m_folder, error ? error.message() : "it is not a folder");
    begin();
    discard();
}

PictureFolder::~PictureFolder() {
    abandon();
}

std::filesystem::path PictureFolder::begin() {
    const std::lock_guard lock(m_mutex);
    m_part.reset();
    m_part.emplace(m_partPath, m_folder);
    return m_partPath;
}

bool PictureFolder::commit(const std::string& name) {
    const std::lock_guard lock(m_mutex);
    if (!renameToUnused(m_partPath, m_folder / name)) {
        if (errno == EEXIST)
            return false;
        throwUnwritable(m_folder / name, std::strerror(errno));
    }
    m_part.reset();
    return true;
}

void PictureFolder::discard() {
    const std::lock_guard lock(m_mutex);
    removePart();
}

bool PictureFolder::finish() {
    const std::lock_guard lock(m_mutex);
    if (m_state == State::Filling)
        m_state = State::Finished;
    return m_state == State::Finished;
}

bool PictureFolder::abandon() {
    const std::lock_guard lock(m_mutex);
    if (m_state == State::Finished)
        return false;
    m_state = State::Abandoned;
    removePart();
    return true;
}

void PictureFolder::removePart() {
    if (m_part)
        unlink(m_partPath.c_str());
    m_part.reset();
}

} // namespace orvane::worker
