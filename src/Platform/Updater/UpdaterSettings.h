#pragma once

#include "Platform/Updater/Updater.h"

namespace brisklet {

/// The updates of this program: feed and key as it was built with them, version and system as they
/// are. The feed is empty where it was built without, or with an address or a key that is no good.
UpdaterConfiguration builtInUpdaterConfiguration();

} // namespace brisklet
