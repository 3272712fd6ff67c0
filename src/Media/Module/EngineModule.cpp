#include "Media/Module/EngineModule.h"

#include "Media/Module/BuiltInEngine.h"
#include "Media/Process/Server/HelperMain.h"
#include "Media/Process/Wire/Channel.h"

#include <utility>

extern "C" {

[[gnu::visibility("default")]] extern const char briskletMediaInterface[];
const char briskletMediaInterface[] = BRISKLET_ENGINE_INTERFACE;

[[gnu::visibility("default")]] const media::Engine* briskletMediaEngine() {
    return &media::builtInEngine();
}

[[gnu::visibility("default")]] void briskletMediaServe(int descriptor) {
    // Sets the engine up once, for all helpers.
    static_cast<void>(media::builtInEngine());
    media::process::Channel channel{media::Descriptor(descriptor)};
    media::process::MessageWriter greeting;
    greeting.put(std::string_view(briskletMediaInterface));
    if (channel.send(greeting.message()))
        media::process::serveForks(channel.takeSocket());
}
}
