#pragma once

#include <functional>

namespace media {

/// Lets the calling thread, and those it starts from now on, stand back behind others, by so much
/// more than it does already. `niceness`: 0 (not at all) to 19. Nothing takes it back. Any thread;
/// never fails.
void standBack(int niceness);

/// Runs `work` on a thread that stands back so far and waits for it: the threads that `work` starts
/// and leaves behind stand back too, the caller does not. Throws what `work` throws.
void runStandingBack(int niceness, const std::function<void()>& work);

} // namespace media
