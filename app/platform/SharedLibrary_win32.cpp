#include "platform/SharedLibrary.h"

#include <stdexcept>
#include <system_error>

#include <windows.h>

namespace platform {
namespace {

[[noreturn]] void throwLastError(const std::string& what) {
    const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
    throw std::runtime_error(what + ": " + error.message());
}

} // namespace

SharedLibrary::SharedLibrary(const std::filesystem::path& file)
    : m_handle(LoadLibraryW(file.c_str())) {
    if (!m_handle)
        throwLastError(file.string());
}

SharedLibrary::~SharedLibrary() {
    FreeLibrary(static_cast<HMODULE>(m_handle));
}

void* SharedLibrary::symbol(const std::string& name) const {
    const FARPROC address = GetProcAddress(static_cast<HMODULE>(m_handle), name.c_str());
    if (!address)
        throwLastError(name);
    return reinterpret_cast<void*>(address);
}

std::string SharedLibrary::fileName(const std::string& stem) {
    return stem + ".dll";
}

} // namespace platform
