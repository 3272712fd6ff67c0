#include "Media/Module/EngineModule.h"
#include "Media/Process/Client/ProcessEngine.h"

extern "C" {

[[gnu::visibility("default")]] extern const char briskletMediaInterface[];
const char briskletMediaInterface[] = BRISKLET_ENGINE_INTERFACE;

/// Throws Error if no process can be started.
[[gnu::visibility("default")]] const media::Engine* briskletMediaEngine() {
    static const media::process::ProcessEngine engine;
    return &engine;
}
}
