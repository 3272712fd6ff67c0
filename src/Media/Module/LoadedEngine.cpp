#include "Media/Engine.h"
#include "Media/Error.h"
#include "Media/Module/EngineModule.h"

#include <dlfcn.h>
#include <sys/mman.h>

#include <atomic>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace media {

namespace {

std::atomic<EnginePlace> chosenPlace = EnginePlace::program;

EnginePlace placeWanted() {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody changes the environment while the program runs.
    const char* const wanted = std::getenv("BRISKLET_ENGINE");
    if (wanted && std::string_view(wanted) == "program")
        return EnginePlace::program;
    if (wanted && std::string_view(wanted) == "helpers")
        return EnginePlace::helpers;
    return chosenPlace;
}

/// The modules stand at the same place beside every program, in the build tree and installed.
std::filesystem::path modulePath(const char* module) {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        throw Error(becauseOf(ErrorKind::engineNotFound, reasonOf(error.value())));
    return program.parent_path() / BRISKLET_ENGINE_FOLDER / module;
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

const Engine& loadModule(const char* name) {
    // Bound as it is used: it may have a hundred libraries behind it. Never unloaded.
    void* module = ::dlopen(modulePath(name).c_str(), RTLD_LAZY | RTLD_LOCAL);
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

const Engine& loadEngine() {
    if (placeWanted() == EnginePlace::helpers) {
        try {
            return loadModule("brisklet-helpers.so");
        } catch (const Error& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
    }
    return loadModule("brisklet-media.so");
}

} // namespace

void chooseEngine(EnginePlace place) {
    chosenPlace = place;
}

const Engine& engine() {
    static const Engine& loaded = loadEngine();
    return loaded;
}

} // namespace media
