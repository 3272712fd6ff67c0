#pragma once

#include "Media/FFmpeg/Descriptor.h"

namespace media::process {

/// The life of a helper: makes the objects that the program asks for over this channel, and serves
/// each on threads of its own. Ends the process when the channel does.
[[noreturn]] void serveProgram(Descriptor socket);

/// The life of the process that forks helpers: one for each descriptor that comes over the
/// channel, which becomes that helper's. Answers with a descriptor of the new process. Returns
/// when the channel ends. To be called while there is one thread only.
void serveForks(Descriptor socket);

} // namespace media::process
