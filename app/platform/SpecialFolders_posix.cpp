#include "platform/SpecialFolders.h"

#include "platform/Environment.h"

#include <pwd.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace platform {
namespace {

std::optional<std::filesystem::path> userHome() {
    if (const auto home = environmentValue("HOME"); home && !home->empty())
        return *home;
    const passwd* entry = getpwuid(getuid());
    return entry && entry->pw_dir ? std::optional<std::filesystem::path>(entry->pw_dir) : std::nullopt;
}

/// The text between the quotes of NAME="text", its backslash escapes resolved.
std::optional<std::string> quotedValue(const std::string& line, const std::string& name) {
    const std::size_t start = line.find_first_not_of(" \t");
    if (start == std::string::npos || line.compare(start, name.size() + 2, name + "=\"") != 0)
        return std::nullopt;
    std::string value;
    for (std::size_t i = start + name.size() + 2; i < line.size() && line[i] != '"'; ++i) {
        if (line[i] == '\\' && i + 1 < line.size())
            ++i;
        value += line[i];
    }
    return value;
}

/// Looks the name up in user-dirs.dirs. The file's format allows two values: "$HOME/..." and an absolute path.
std::optional<std::filesystem::path> fromUserDirs(const std::filesystem::path& home, const std::string& name) {
    const auto configHome = environmentValue("XDG_CONFIG_HOME");
    const std::filesystem::path folder =
        configHome && !configHome->empty() ? std::filesystem::path(*configHome) : home / ".config";
    std::ifstream file(folder / "user-dirs.dirs");
    std::optional<std::filesystem::path> found;
    const std::string homePrefix = "$HOME";
    for (std::string line; std::getline(file, line);) {
        const auto value = quotedValue(line, name);
        if (!value)
            continue;
        if (value->compare(0, homePrefix.size(), homePrefix) == 0)
            found = home.string() + value->substr(homePrefix.size());
        else if (!value->empty() && value->front() == '/')
            found = *value;
    }
    return found;
}

} // namespace

std::optional<std::filesystem::path> specialFolder(SpecialFolder folder) {
    const auto home = userHome();
    if (!home || folder != SpecialFolder::Documents)
        return std::nullopt;
    if (const auto configured = fromUserDirs(*home, "XDG_DOCUMENTS_DIR"))
        return configured;
    // A desktop that configured nothing: its usual folder if it is there, else the user's home, as xdg-user-dir
    // answers.
    std::error_code ignored;
    return std::filesystem::is_directory(*home / "Documents", ignored) ? *home / "Documents" : *home;
}

} // namespace platform
