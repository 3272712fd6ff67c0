#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <sys/types.h>

namespace testsupport {

/// One call to the system that the program under test is about to make. Only files are told of: no
/// sockets, pipes or terminals.
struct SystemCall {
    enum class Kind {
        open,
        status,
        lock,
        read,
        write,
        flush,
        close,
        link,
        rename,
        unlink,
        /// Of a file, or of memory where one asks the system itself.
        map,
        startThread,
    };

    Kind kind;
    /// -1 where the call is about names.
    int descriptor = -1;
    /// Of an open.
    int flags = 0;
    /// Empty where the call is about a descriptor.
    std::string_view path;
    /// Of a link or a rename: the new name.
    std::string_view newPath;
    /// Of a write.
    const void* data = nullptr;
    std::size_t size = 0;
    off_t offset = 0;
};

/// What becomes of it.
struct SystemAnswer {
    /// errno; 0 for none. An open, a read or a write that fails has no effect; a descriptor that is
    /// closed is so in any case.
    int error = 0;
    /// Whether it has its effect although it fails, as on a network disk that lost its answer.
    bool isDone = false;
    /// At most so many bytes are read or written.
    std::size_t most = static_cast<std::size_t>(-1);
};

/// Asks `judge` about all calls from now on, of all threads, also those that libraries make. It
/// must not throw; calls that it makes itself are not asked about. Empty: none is.
void setSystemJudge(std::function<SystemAnswer(const SystemCall&)> judge);

/// Which allocations are counted, and refused where they are told to be.
enum class Allocations {
    none,
    /// operator new
    ours,
    /// What libav gets by av_malloc and av_realloc.
    libavs,
};

/// Refuses the allocation with that number, counted from 0; a negative one for none.
void refuseAllocation(Allocations which, long number);

/// How many there were since then.
long allocationsSoFar();

/// False where the allocations of this build cannot be refused: the sanitizers have their own.
bool canRefuseAllocations();

} // namespace testsupport
