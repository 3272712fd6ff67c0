#include "Media/EngineModule.h"

#include "Media/BuiltInEngine.h"

#include <string_view>

extern "C" [[gnu::visibility("default")]] const media::Engine*
briskletMediaEngine(const char* interface) {
    return std::string_view(interface) == BRISKLET_ENGINE_INTERFACE ? &media::builtInEngine()
                                                                    : nullptr;
}
