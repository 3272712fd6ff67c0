#include "Platform/PromptThread.h"

#include <linux/sched.h>
#include <linux/sched/types.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace brisklet {

namespace {

/// The length of the time slice: the shortest that the kernel accepts, since threads with shorter
/// slices are scheduled first. Nanoseconds.
constexpr __u64 kTurn = 100'000;

} // namespace

void wakePromptly() {
    sched_attr attributes = {};
    attributes.size = sizeof attributes;
    attributes.sched_policy = SCHED_NORMAL;
    attributes.sched_flags = SCHED_FLAG_RESET_ON_FORK;
    attributes.sched_nice = ::getpriority(PRIO_PROCESS, 0);
    attributes.sched_runtime = kTurn;
    // A hint: where it is refused the thread only wakes up somewhat later.
    ::syscall(SYS_sched_setattr, 0, &attributes, 0);
}

} // namespace brisklet
