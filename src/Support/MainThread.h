#pragma once

#include <functional>

namespace brisklet {

/// Whether the calling thread is the one that runs the application's event loop.
bool isMainThread();

/// Runs `work` on the main thread at a later turn of its event loop, in the order given. Callable
/// from any thread; what comes while the application is being taken down is dropped. Also serves
/// as the executor of media players.
void postToMainThread(std::function<void()> work);

} // namespace brisklet
