#include "Media/Process/Server/Confinement.h"

#include "Media/Process/Server/FileFence.h"
#include "Media/Process/Server/SystemCallFilter.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define BRISKLET_SANITIZED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define BRISKLET_SANITIZED
#endif
#endif

namespace media::process {

bool keepOnly(Descriptor& socket) noexcept {
    constexpr int kFirstFree = STDERR_FILENO + 1;
#ifdef BRISKLET_SANITIZED
    // What a sanitizer finds, it says there.
    constexpr int kReplaced = STDERR_FILENO;
#else
    constexpr int kReplaced = kFirstFree;
#endif
    if (socket.number() != kFirstFree) {
        if (::dup3(socket.number(), kFirstFree, O_CLOEXEC) < 0)
            return false;
        socket = Descriptor(kFirstFree);
    }
    // One of those it is to be, or one that is closed below.
    const int nothing = ::open("/dev/null", O_RDWR);
    for (int stream = 0; stream < kReplaced; ++stream) {
        if (::dup2(nothing, stream) < 0)
            return false;
    }
    return ::close_range(kFirstFree + 1, ~0U, 0) == 0;
}

void confine() noexcept {
    // No rights by running programs that have more; the walls below ask for it.
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // Neither traced nor dumped: what is in its memory is its user's.
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
// The sanitizers read /proc and ask for more than any of this allows, to tell what they found.
#ifndef BRISKLET_SANITIZED
    fenceOffFiles();
    filterSystemCalls();
#endif
}

} // namespace media::process
