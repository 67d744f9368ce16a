#include "protocol/WorkerProgram.h"

#include <dlfcn.h>
#include <link.h>

namespace orvane::protocol {
namespace {

/// The file that this code was loaded from.
std::filesystem::path ownModule() {
    static const char anchor = 0;
    Dl_info info{};
    link_map* map = nullptr;
    // The program itself stands nameless in the list of loaded files; the name dladdr() gives for it is the one it was
    // called by, which says nothing about where it lies.
    const bool isLibrary = dladdr1(&anchor, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) != 0 &&
                           map != nullptr && map->l_name != nullptr && map->l_name[0] != '\0';
    return isLibrary ? map->l_name : "/proc/self/exe";
}

} // namespace

std::filesystem::path workerProgram() {
    std::error_code error;
    const std::filesystem::path module = std::filesystem::canonical(ownModule(), error);
    return (error ? ownModule() : module).parent_path() / "orvane-worker";
}

} // namespace orvane::protocol
