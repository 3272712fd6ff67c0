#include "Media/ThreadPriority.h"

#include <exception>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace media {

void standBack(int niceness) {
    // On Linux this is a matter of single threads.
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
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
