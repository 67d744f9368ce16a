#pragma once

#include <filesystem>
#include <optional>

namespace platform {

/// Folders that the desktop assigns to the user. The numbers are the product's folder ids.
enum class SpecialFolder { Documents = 5 };

/// Where the desktop keeps that folder; it need not exist. Errors: nothing when the desktop does not say.
std::optional<std::filesystem::path> specialFolder(SpecialFolder folder);

} // namespace platform
