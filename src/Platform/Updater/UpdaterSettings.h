#pragma once

#include "Platform/Updater/Updater.h"

namespace brisklet {

/// The configuration of this program: the feed and the key that it was built with, its version and
/// the running system's. The feed is empty if it was built without one, or with an unusable address
/// or key.
UpdaterConfiguration builtInUpdaterConfiguration();

} // namespace brisklet
