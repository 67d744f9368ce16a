#include "platform/DocumentOpening.h"

#include <string>

#include <windows.h>

#include <shellapi.h>

namespace platform {
namespace {

Launch execute(const std::filesystem::path& file, const std::wstring& parameters, const std::filesystem::path& folder) {
    constexpr INT_PTR kLastError = 32; // of the numbers that the shell returns in place of an instance
    const HINSTANCE result =
        ShellExecuteW(nullptr, L"Open", file.c_str(), parameters.empty() ? nullptr : parameters.c_str(), folder.c_str(),
                      SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(result) > kLastError ? Launch::Started : Launch::Failed;
}

} // namespace

Launch openWith(const std::filesystem::path& program, const std::filesystem::path& document,
                const std::filesystem::path& folder) {
    if (program.empty() || document.empty())
        return Launch::Failed;
    // A path holds no quotes here, so a pair of them makes it one argument.
    return execute(program, L'"' + (folder / document).wstring() + L'"', folder);
}

Launch openByAssociation(const std::filesystem::path& document, const std::filesystem::path& folder) {
    return document.empty() ? Launch::Failed : execute(folder / document, {}, folder);
}

} // namespace platform
