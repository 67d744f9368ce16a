#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

/// The system's registry: hives of keys, keys with named values. On Windows the system's own, through its ANSI entry
/// points; elsewhere a store of the program's own (see Registry_posix.cpp). Key and value names are compared without
/// regard to case; texts are in the system's 8-bit encoding; key paths are separated by backslashes everywhere.
namespace platform::registry {

/// Predefined hives, by the system's handle numbers.
enum class Hive : std::uint32_t { ClassesRoot = 0x80000000, CurrentUser = 0x80000001, LocalMachine = 0x80000002 };

/// Value types that are understood, by the system's numbers.
inline constexpr std::uint32_t kString = 1;
inline constexpr std::uint32_t kExpandString = 2;
inline constexpr std::uint32_t kBinary = 3; ///< stored, of no meaning to the program
inline constexpr std::uint32_t kDword = 4;

/// Statuses, by the system's numbers.
using Status = std::int32_t;
inline constexpr Status kSuccess = 0;
inline constexpr Status kFileNotFound = 2;
inline constexpr Status kAccessDenied = 5;
inline constexpr Status kInvalidHandle = 6;
inline constexpr Status kWriteFault = 29;

/// The six ordinary rights on a key, and the right to read values alone.
inline constexpr std::uint32_t kAllAccess = 0x3F;
inline constexpr std::uint32_t kQueryValue = 1;

/// An open key; 0 is none.
using Key = std::uintptr_t;

/// A value as it is stored, terminator included where its writer counted one.
struct Value {
    std::uint32_t type = 0;
    std::string bytes;
};

/// Makes the key and its missing parents, or opens the existing one.
Status createKey(Hive hive, std::string_view path, std::uint32_t access, Key& key);
/// Opens an existing key; `key` stays as it was on failure.
Status openKey(Hive hive, std::string_view path, std::uint32_t access, Key& key);
void closeKey(Key key);

Status queryValue(Key key, std::string_view name, Value& value);
Status setValue(Key key, std::string_view name, const Value& value);
Status deleteValue(Key key, std::string_view name);

/// Replaces %NAME% by the environment's values, for names that exist. Empty when the result needs more than `limit`
/// bytes, its terminator counted; otherwise the text with that terminator.
std::string expandEnvironment(std::string_view text, std::size_t limit);

/// The folder of the program's own configuration: under $XDG_CONFIG_HOME, else $HOME/.config; on Windows under APPDATA.
std::filesystem::path configurationFolder();

} // namespace platform::registry
