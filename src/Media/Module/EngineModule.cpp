#include "Media/Module/EngineModule.h"

#include "Media/Module/BuiltInEngine.h"

extern "C" {

[[gnu::visibility("default")]] extern const char briskletMediaInterface[];
const char briskletMediaInterface[] = BRISKLET_ENGINE_INTERFACE;

[[gnu::visibility("default")]] const media::Engine* briskletMediaEngine() {
    return &media::builtInEngine();
}
}
