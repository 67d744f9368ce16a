#include "platform/Registry.h"

#include "platform/RegistryFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace platform::registry {
namespace {

// Open keys by handle. One thread uses the registry, so no lock.
struct OpenKey {
    std::string path;
    std::uint32_t access = 0;
};

std::map<Key, OpenKey>& openKeys() {
    static std::map<Key, OpenKey> keys;
    return keys;
}

Key remember(std::string path, std::uint32_t access) {
    static Key last = 0;
    openKeys()[++last] = {std::move(path), access};
    return last;
}

std::string fullPath(Hive hive, std::string_view path) {
    return std::string(hiveName(hive)) + '\\' + std::string(path);
}

Keys readKeys() {
    std::ifstream in(registryFile(), std::ios::binary);
    return parseRegistry(std::string(std::istreambuf_iterator<char>(in), {}));
}

/// Holds every other process off the registry file. The lock is on a file of its own, since the registry file is
/// replaced.
class FileLock {
public:
    explicit FileLock(const std::filesystem::path& file)
        : m_descriptor(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
        while (m_descriptor >= 0 && flock(m_descriptor, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    ~FileLock() {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool isHeld() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

bool writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Puts `text` in the place of the file in one step: whoever reads sees the old file or the new one, whatever happens
/// in between.
bool replaceFile(const std::filesystem::path& file, std::string_view text) {
    const std::string draft = file.string() + ".new";
    const int descriptor = open(draft.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return false;
    const bool isWritten = writeAll(descriptor, text) && fsync(descriptor) == 0;
    return (close(descriptor) == 0) && isWritten && std::rename(draft.c_str(), file.c_str()) == 0;
}

/// Reads, changes and replaces the registry while no other process does. `change` says with its status whether to
/// write.
Status changeKeys(const std::function<Status(Keys&)>& change) {
    const std::filesystem::path file = registryFile();
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    const FileLock lock(file.string() + ".lock");
    if (!lock.isHeld())
        return kAccessDenied;
    Keys keys = readKeys();
    const Status status = change(keys);
    if (status != kSuccess)
        return status;
    return replaceFile(file, printRegistry(keys)) ? kSuccess : kWriteFault;
}

} // namespace

Status createKey(Hive hive, std::string_view path, std::uint32_t access, Key& key) {
    const std::string full = fullPath(hive, path);
    if (!readKeys().contains(full)) {
        const Status status = changeKeys([&](Keys& keys) {
            for (std::size_t end = full.find('\\'); end != std::string::npos; end = full.find('\\', end + 1))
                keys.try_emplace(full.substr(0, end));
            keys.try_emplace(full);
            return kSuccess;
        });
        if (status != kSuccess)
            return status;
    }
    key = remember(full, access);
    return kSuccess;
}

Status openKey(Hive hive, std::string_view path, std::uint32_t access, Key& key) {
    std::string full = fullPath(hive, path);
    if (!readKeys().contains(full))
        return kFileNotFound;
    key = remember(std::move(full), access);
    return kSuccess;
}

void closeKey(Key key) {
    openKeys().erase(key);
}

Status queryValue(Key key, std::string_view name, Value& value) {
    const auto open = openKeys().find(key);
    if (open == openKeys().end())
        return kInvalidHandle;
    const Keys keys = readKeys();
    const auto values = keys.find(open->second.path);
    if (values == keys.end())
        return kFileNotFound;
    const auto found = values->second.find(name);
    if (found == values->second.end())
        return kFileNotFound;
    value = found->second;
    return kSuccess;
}

Status setValue(Key key, std::string_view name, const Value& value) {
    const auto open = openKeys().find(key);
    if (open == openKeys().end())
        return kInvalidHandle;
    if (open->second.access == kQueryValue)
        return kAccessDenied;
    return changeKeys([&](Keys& keys) {
        keys[open->second.path].insert_or_assign(std::string(name), value);
        return kSuccess;
    });
}

Status deleteValue(Key key, std::string_view name) {
    const auto open = openKeys().find(key);
    if (open == openKeys().end())
        return kInvalidHandle;
    return changeKeys([&](Keys& keys) {
        Values& values = keys[open->second.path];
        const auto found = values.find(name);
        if (found == values.end())
            return kFileNotFound;
        values.erase(found);
        return kSuccess;
    });
}

std::string expandEnvironment(std::string_view text, std::size_t limit) {
    std::string out;
    while (!text.empty()) {
        const std::size_t end = text.front() == '%' ? text.find('%', 1) : std::string_view::npos;
        const char* value = nullptr;
        if (end != std::string_view::npos && end > 1)
            value = std::getenv(std::string(text.substr(1, end - 1)).c_str());
        if (value) {
            out += value;
            text.remove_prefix(end + 1);
        } else {
            out += text.front();
            text.remove_prefix(1);
        }
    }
    out += '\0';
    return out.size() > limit ? std::string() : out;
}

std::filesystem::path configurationFolder() {
    std::filesystem::path folder;
    if (const char* configured = std::getenv("XDG_CONFIG_HOME"); configured && *configured == '/')
        folder = configured;
    else if (const char* home = std::getenv("HOME"); home && *home)
        folder = std::filesystem::path(home) / ".config";
    else
        folder = std::filesystem::temp_directory_path();
    return folder / "tavrelion";
}

} // namespace platform::registry
