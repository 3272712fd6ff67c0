#pragma once

#include "Media/FFmpeg/Descriptor.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace media {

/// As fstat(2). By the system call that takes nothing but a descriptor: the C library may take one
/// that takes names too, which helper processes are refused. Any thread.
inline int readState(const Descriptor& file, struct stat& state) {
#if defined(__x86_64__) || defined(__aarch64__)
    return static_cast<int>(::syscall(SYS_fstat, file.number(), &state));
#else
    return ::fstat(file.number(), &state);
#endif
}

} // namespace media
