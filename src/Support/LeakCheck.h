#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace brisklet {

/// In a build with the address sanitizer: checks for leaks now instead of at the end of the
/// process, and ends the process if there are any. To be called last in main(). Later, while Qt's
/// own threads are ending, memory that they still hold would be reported as leaked.
inline void checkForLeaks() {
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check();
#endif
}

} // namespace brisklet
