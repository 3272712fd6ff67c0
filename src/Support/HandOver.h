#pragma once

// Tells the thread sanitizer that one thread hands data over to another by way of code that it
// does not see into, such as Qt's event queue: it would take that for a data race. Without the
// sanitizer this is nothing. Any thread.

#if defined(__SANITIZE_THREAD__)
#define BRISKLET_THREAD_SANITIZER
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define BRISKLET_THREAD_SANITIZER
#endif
#endif

#ifdef BRISKLET_THREAD_SANITIZER
extern "C" {
void __tsan_acquire(void* address); // NOLINT(bugprone-reserved-identifier)
void __tsan_release(void* address); // NOLINT(bugprone-reserved-identifier)
}
#endif

namespace brisklet {

/// What this thread has written is handed over at that address.
inline void handOver([[maybe_unused]] void* address) {
#ifdef BRISKLET_THREAD_SANITIZER
    __tsan_release(address);
#endif
}

/// What was handed over at that address may be read from here on.
inline void takeOver([[maybe_unused]] void* address) {
#ifdef BRISKLET_THREAD_SANITIZER
    __tsan_acquire(address);
#endif
}

} // namespace brisklet
