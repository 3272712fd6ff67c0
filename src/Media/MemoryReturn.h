#pragma once

namespace media {

/// Has large blocks of memory mapped by themselves from now on, and given back to the system as
/// soon as they are free. Without a fixed size the C library raises it to that of the largest
/// picture seen so far, and freed pictures leave holes in its heaps. Any thread.
void mapLargeBlocks();

/// Gives what is free in the heaps of all threads back to the system, which the C library otherwise
/// keeps: hundreds of megabytes after some large videos. Takes some milliseconds. Any thread.
void returnFreedMemory();

} // namespace media
