#pragma once

namespace media::process {

/// Takes from this process, and from all threads that it will have, what a decoder or an encoder of
/// handed descriptors has no use for: files, folders, networks, devices, other processes, new
/// programs, core files. What a hostile video makes of a fault in a library then reaches no further
/// than the memory of this process. To be called before a byte of a video is read, while there is
/// one thread. Kernels that lack a part of it go without that part.
void confine() noexcept;

} // namespace media::process
