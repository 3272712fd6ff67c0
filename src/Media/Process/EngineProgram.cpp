// The program that the helpers are forked from: loads the engine's module and serves over the
// channel that it was started with.

#include "Media/Module/EngineModule.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <unistd.h>

namespace {

/// Where it finds its channel.
constexpr int kChannel = 3;

} // namespace

int main() {
    // What the program may have left open for its children is not this one's business.
    ::close_range(kChannel + 1, ~0U, 0);
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto module = program.parent_path() / "brisklet-media.so";
    void* const loaded = ::dlopen(module.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (loaded == nullptr) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): there is one thread.
        std::fprintf(stderr, "%s\n", ::dlerror());
        return EXIT_FAILURE;
    }
    const auto serve =
        reinterpret_cast<media::ServerEntry>(::dlsym(loaded, media::kServerEntryName));
    if (serve == nullptr)
        return EXIT_FAILURE;
    serve(kChannel);
    // The program is gone. Its helpers notice that by themselves, but for those that hang.
    if (::getpgrp() == ::getpid())
        ::kill(0, SIGKILL);
    return EXIT_SUCCESS;
}
