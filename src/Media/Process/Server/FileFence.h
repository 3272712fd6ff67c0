#pragma once

namespace media::process {

/// From now on this thread and those that it starts can open, make, rename and remove no file by
/// name, connect to nothing, and send signals to no other process, as far as the kernel's Landlock
/// knows of it (landlock(7)); descriptors that are open stay usable. Needs no_new_privs. Does
/// nothing on kernels without it.
void fenceOffFiles() noexcept;

} // namespace media::process
