#include "Media/Module/BuiltInEngine.h"

/// These tests look into the engine, so it is a part of them.
const media::Engine& media::engine() {
    return builtInEngine();
}
