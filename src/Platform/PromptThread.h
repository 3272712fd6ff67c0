#pragma once

namespace brisklet {

/// Asks the scheduler to give the calling thread its turn at once when something happens, before
/// threads of the same priority that compute (decoders) have used up theirs. It does not get more
/// of the processor for it, and threads that it starts do not inherit it. Needs no privilege; does
/// nothing where the kernel knows no such request (Linux before 6.12). Never fails.
void wakePromptly();

} // namespace brisklet
