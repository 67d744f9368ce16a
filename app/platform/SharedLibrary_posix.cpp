#include "platform/SharedLibrary.h"

#include <dlfcn.h>

#include <stdexcept>

namespace platform {
namespace {

[[noreturn]] void throwLoaderError() {
    const char* text = dlerror();
    throw std::runtime_error(text ? text : "the library cannot be loaded");
}

} // namespace

SharedLibrary::SharedLibrary(const std::filesystem::path& file)
    : m_handle(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!m_handle)
        throwLoaderError();
}

SharedLibrary::~SharedLibrary() {
    dlclose(m_handle);
}

void* SharedLibrary::symbol(const std::string& name) const {
    void* address = dlsym(m_handle, name.c_str());
    if (!address)
        throwLoaderError();
    return address;
}

std::string SharedLibrary::fileName(const std::string& stem) {
    return "lib" + stem + ".so";
}

} // namespace platform
