#include "Media/Process/Server/Confinement.h"

#include "Media/Process/Server/FileFence.h"
#include "Media/Process/Server/SystemCallFilter.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace media::process {

void confine() noexcept {
    // No rights by running programs that have more; the walls below ask for it.
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // Neither traced nor dumped: what is in its memory is its user's.
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
// The sanitizers read /proc and ask for more than any of this allows, to tell what they found.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    fenceOffFiles();
    filterSystemCalls();
#endif
}

} // namespace media::process
