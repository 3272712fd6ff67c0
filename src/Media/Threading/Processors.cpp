#include "Media/Threading/Processors.h"

#include <algorithm>
#include <sched.h>
#include <thread>

namespace media {

int processorCount() noexcept {
    // Containers and taskset leave a process fewer than the machine has.
    cpu_set_t usable;
    if (::sched_getaffinity(0, sizeof usable, &usable) == 0)
        return std::max(CPU_COUNT(&usable), 1);
    return static_cast<int>(std::max(std::thread::hardware_concurrency(), 1U));
}

} // namespace media
