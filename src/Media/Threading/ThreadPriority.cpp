#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <exception>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace media {

namespace {

constexpr int kMostNiceness = 19;

} // namespace

void standBack(int niceness) {
    // On Linux this is a matter of single threads. The program itself may have been told to.
    const auto thread = static_cast<id_t>(::gettid());
    const int now = ::getpriority(PRIO_PROCESS, thread);
    ::setpriority(PRIO_PROCESS, thread, std::min(now + niceness, kMostNiceness));
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
