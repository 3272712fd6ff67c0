#pragma once

#include "Media/Threading/Verify.h"

#include <atomic>
#include <thread>

namespace media {

/// The thread that an object belongs to: a member of the classes that say so of themselves. Their
/// operations call check() first.
///
///     owned by the thread that made it ──handOver()──▶ by nobody ──check()──▶ by that thread
///
/// For "one thread", not for "one thread at a time". Any thread may call its members.
class ThreadAffinity final {
public:
    ThreadAffinity() noexcept = default;
    ThreadAffinity(const ThreadAffinity&) = delete;
    ThreadAffinity& operator=(const ThreadAffinity&) = delete;
    ~ThreadAffinity() = default;

    /// The next thread that calls check() or isCurrent() is the owner from then on. Giving the
    /// object to that thread has to be in order for other reasons already: starting it is enough.
    void handOver() noexcept { m_owner.store({}, std::memory_order_relaxed); }

    /// Whether the calling thread is the owner; it becomes the owner where there is none.
    [[nodiscard]] bool isCurrent() const noexcept {
        const std::thread::id self = std::this_thread::get_id();
        std::thread::id owner = m_owner.load(std::memory_order_relaxed);
        if (owner == std::thread::id{} &&
            m_owner.compare_exchange_strong(owner, self, std::memory_order_relaxed))
            return true;
        return owner == self;
    }

    /// Aborts with the caller's place on any thread but the owner; costs a few nanoseconds.
    void check(const SourceLocation& where = SourceLocation::current()) const noexcept {
        verify(isCurrent(), "called on another thread than the one it belongs to", where);
    }

private:
    /// Only an identity: no other memory depends on its order.
    mutable std::atomic<std::thread::id> m_owner{std::this_thread::get_id()};
};

} // namespace media
