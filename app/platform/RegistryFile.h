#pragma once

#include "platform/Registry.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

/// The file that stands for the registry where the system has none.
///
/// It is text, one key a paragraph, so that a person can read and mend it:
///
///     [HKEY_LOCAL_MACHINE\SOFTWARE\Example]
///     "Path"=string:"C:\\Example\x00"
///     "Count"=dword:0000000a
///
/// Within quotes `\\`, `\"` and `\xNN` stand for what they stand for in C. Lines that are none of these are passed
/// over.
namespace platform::registry {

/// Names in the order of their lower-case forms.
struct WithoutCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

using Values = std::map<std::string, Value, WithoutCase>;
/// Keys by their full path, hive name first.
using Keys = std::map<std::string, Values, WithoutCase>;

Keys parseRegistry(std::string_view text);
std::string printRegistry(const Keys& keys);

/// The hive's name as it stands in the file.
std::string_view hiveName(Hive hive);

/// Where the registry lies: in configurationFolder().
std::filesystem::path registryFile();

} // namespace platform::registry
