#pragma once

#include "Media/Threading/Verify.h"

#include <functional>

namespace brisklet {

/// Whether the calling thread is the one that runs the application's event loop.
bool isMainThread();

/// Aborts with the caller's place on any other thread, as long as there is an application object.
/// Classes whose comment says "main thread" call it first in the operations that change them.
void verifyMainThread(const media::SourceLocation& where = media::SourceLocation::current());

/// Runs `work` on the main thread at a later turn of its event loop, in the order of the calls.
/// Callable from any thread; dropped while the application is being destroyed. Also the executor of
/// media players.
void postToMainThread(std::function<void()> work);

} // namespace brisklet
