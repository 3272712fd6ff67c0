#include "Media/EngineModule.h"

#include "Media/BuiltInEngine.h"

#include <string_view>

extern "C" [[gnu::visibility("default")]] const media::Engine*
briskletMediaEngine(const char* version) {
    return std::string_view(version) == BRISKLET_VERSION ? &media::builtInEngine() : nullptr;
}
