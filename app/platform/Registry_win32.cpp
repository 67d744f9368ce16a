#include "platform/Registry.h"

#include <cstdlib>

#include <windows.h>

namespace platform::registry {
namespace {

HKEY handleOf(Hive hive) {
    return reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG>(hive)));
}
HKEY handleOf(Key key) {
    return reinterpret_cast<HKEY>(key);
}

} // namespace

Status createKey(Hive hive, std::string_view path, std::uint32_t access, Key& key) {
    HKEY handle = nullptr;
    const LSTATUS status = RegCreateKeyExA(handleOf(hive), std::string(path).c_str(), 0, nullptr,
                                           REG_OPTION_NON_VOLATILE, access, nullptr, &handle, nullptr);
    if (status == ERROR_SUCCESS)
        key = reinterpret_cast<Key>(handle);
    return static_cast<Status>(status);
}

Status openKey(Hive hive, std::string_view path, std::uint32_t access, Key& key) {
    HKEY handle = nullptr;
    const LSTATUS status = RegOpenKeyExA(handleOf(hive), std::string(path).c_str(), 0, access, &handle);
    if (status == ERROR_SUCCESS)
        key = reinterpret_cast<Key>(handle);
    return static_cast<Status>(status);
}

void closeKey(Key key) {
    if (key)
        RegCloseKey(handleOf(key));
}

Status queryValue(Key key, std::string_view name, Value& value) {
    const std::string valueName(name);
    DWORD type = 0;
    DWORD size = 0;
    LSTATUS status = RegQueryValueExA(handleOf(key), valueName.c_str(), nullptr, &type, nullptr, &size);
    if (status != ERROR_SUCCESS)
        return static_cast<Status>(status);
    std::string bytes(size, '\0');
    status = RegQueryValueExA(handleOf(key), valueName.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()),
                              &size);
    if (status != ERROR_SUCCESS)
        return static_cast<Status>(status);
    bytes.resize(size);
    value = {type, std::move(bytes)};
    return kSuccess;
}

Status setValue(Key key, std::string_view name, const Value& value) {
    return static_cast<Status>(RegSetValueExA(handleOf(key), std::string(name).c_str(), 0, value.type,
                                              reinterpret_cast<const BYTE*>(value.bytes.data()),
                                              static_cast<DWORD>(value.bytes.size())));
}

Status deleteValue(Key key, std::string_view name) {
    return static_cast<Status>(RegDeleteValueA(handleOf(key), std::string(name).c_str()));
}

std::string expandEnvironment(std::string_view text, std::size_t limit) {
    std::string buffer(limit, '\0');
    const DWORD count = ExpandEnvironmentStringsA(std::string(text).c_str(), buffer.data(), static_cast<DWORD>(limit));
    if (count == 0 || count > limit)
        return {};
    buffer.resize(count);
    return buffer;
}

std::filesystem::path configurationFolder() {
    const char* folder = std::getenv("APPDATA");
    return std::filesystem::path(folder ? folder : ".") / "Tavrelion";
}

} // namespace platform::registry
