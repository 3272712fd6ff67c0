#pragma once

namespace media::process {

/// From now on this thread and those that it starts can make only the system calls that decoding,
/// encoding, memory, threads and open descriptors need (seccomp(2)). All others fail as if they
/// were not permitted, which libraries know how to live with. Needs no_new_privs. Does nothing
/// where the kernel cannot do it, or on a processor that it was not written for.
void filterSystemCalls() noexcept;

} // namespace media::process
