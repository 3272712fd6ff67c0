#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace brisklet {

/// In a build with the address sanitizer: looks for leaks now and not at the end of the process,
/// and ends it where there are some. To be called last in main(). Later Qt's own threads are on
/// their way out, and what such a thread still holds for a moment is taken for lost.
inline void checkForLeaks() {
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check();
#endif
}

} // namespace brisklet
