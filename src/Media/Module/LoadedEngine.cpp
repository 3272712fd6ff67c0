#include "Media/Engine.h"
#include "Media/Error.h"
#include "Media/Module/EngineModule.h"

#include <dlfcn.h>
#include <sys/mman.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace media {

namespace {

/// The module stands at the same place beside every program, in the build tree and installed.
std::filesystem::path modulePath() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        throw Error(becauseOf(ErrorKind::engineNotFound, reasonOf(error.value())));
    return program.parent_path() / BRISKLET_ENGINE_MODULE;
}

/// Whether the system has no room for what the engine's libraries take, mapped or not; measured.
bool isMemoryShort() {
    constexpr std::size_t kLibraryBytes = std::size_t{256} << 20;
    void* const room =
        ::mmap(nullptr, kLibraryBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (room == MAP_FAILED)
        return true;
    ::munmap(room, kLibraryBytes);
    return false;
}

const Engine& loadEngine() {
    // Bound as it is used: it has a hundred libraries behind it. Never unloaded.
    void* module = ::dlopen(modulePath().c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (module == nullptr) {
        // Which file of whose is missing helps whoever packaged it, not the person at the screen.
        std::fprintf(stderr, "%s\n", ::dlerror());
        if (isMemoryShort())
            throw Error(ErrorKind::notEnoughMemory);
        throw Error(ErrorKind::incompleteInstallation);
    }
    const auto* const interface = static_cast<const char*>(::dlsym(module, kEngineInterfaceName));
    const auto entry = reinterpret_cast<EngineEntry>(::dlsym(module, kEngineEntryName));
    // An update replaces it below a program that runs.
    if (interface == nullptr || entry == nullptr ||
        std::string_view(interface) != BRISKLET_ENGINE_INTERFACE)
        throw Error(ErrorKind::updatedMeanwhile);
    return *entry();
}

} // namespace

const Engine& engine() {
    static const Engine& loaded = loadEngine();
    return loaded;
}

} // namespace media
