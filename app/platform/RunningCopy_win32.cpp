#include "platform/RunningCopy.h"

#include <array>

#include <windows.h>

namespace platform {
namespace {

/// The search for a window of another process.
struct Search {
    std::wstring title;
    HWND found = nullptr;
};

std::wstring wideText(const std::string& utf8) {
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), length);
    return wide;
}

/// Ends the walk at a window of the title. Windows that are hidden for one another have it too and cannot come forward.
BOOL CALLBACK compareTitle(HWND window, LPARAM argument) {
    Search& search = *reinterpret_cast<Search*>(argument);
    std::array<wchar_t, 256> title{};
    GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (!IsWindowVisible(window) || process == GetCurrentProcessId() || search.title != title.data())
        return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

RunningCopy::RunningCopy(std::string title)
    : m_title(std::move(title)) {}

RunningCopy::~RunningCopy() = default;

RunningCopy::Found RunningCopy::askToComeForward() {
    Search search{wideText(m_title), nullptr};
    EnumWindows(compareTitle, reinterpret_cast<LPARAM>(&search));
    if (!search.found)
        return Found::Nobody;
    if (IsIconic(search.found))
        ShowWindow(search.found, SW_RESTORE);
    SetForegroundWindow(search.found);
    return Found::OtherCopy;
}

RunningCopy::Listening RunningCopy::listen() {
    // Any copy finds the windows of this one by their title, and nobody knocks.
    return Listening::No;
}

void RunningCopy::answerKnock(const ComeForward&) {}

} // namespace platform
