#pragma once

namespace media {

/// Gives what is free in the heaps of all threads back to the system, which the C library otherwise
/// keeps: hundreds of megabytes after some large videos. Takes some milliseconds. Any thread.
void returnFreedMemory();

} // namespace media
