#pragma once

#include "Media/Engine.h"

namespace media {

/// The engine as part of what it is linked into. Any thread.
const Engine& builtInEngine();

} // namespace media
