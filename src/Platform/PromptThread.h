#pragma once

namespace brisklet {

/// Asks the scheduler for short time slices for the calling thread. When it wakes up it then runs
/// at once, before busy threads of the same priority (decoders) have used up their slices. It does
/// not get more processor time, and threads that it starts do not inherit this. Needs no privilege;
/// does nothing before Linux 6.12. Never fails.
void wakePromptly();

} // namespace brisklet
