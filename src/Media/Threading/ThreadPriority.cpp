#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <exception>
#include <sys/resource.h>
#include <thread>

namespace media {

namespace {

constexpr int kMostNiceness = 19;

} // namespace

void standBack(int niceness) {
    // On Linux 0 is the calling thread alone. The program itself may have been told to.
    const int now = ::getpriority(PRIO_PROCESS, 0);
    ::setpriority(PRIO_PROCESS, 0, std::min(now + niceness, kMostNiceness));
}

void runStandingBack(int niceness, const std::function<void()>& work) {
    std::exception_ptr failure;
    std::jthread([&] {
        standBack(niceness);
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
    }).join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace media
