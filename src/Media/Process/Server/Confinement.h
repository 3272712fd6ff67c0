#pragma once

#include "Media/FFmpeg/Descriptor.h"

namespace media::process {

/// Closes all descriptors but the socket’s, whose number changes, and has the standard ones lead
/// nowhere: a terminal that the program was started from has keys to be read. False where the
/// system does not do it. To be called while there is one thread, by who owns no other descriptor.
[[nodiscard]] bool keepOnly(Descriptor& socket) noexcept;

/// Takes from this process, and from all threads that it will have, what a decoder or an encoder of
/// handed descriptors has no use for: files, folders, networks, devices, other processes, new
/// programs, core files. What a hostile video makes of a fault in a library then reaches no further
/// than the memory of this process. To be called before a byte of a video is read, while there is
/// one thread. Kernels that lack a part of it go without that part.
///
/// Of what libraries read when they first need it, only learnNumaNodes() has to be called before.
/// They do without the rest: the number of processors is asked of the scheduler then, character
/// sets are not converted, times are UTC.
void confine() noexcept;

} // namespace media::process
