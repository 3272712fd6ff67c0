#pragma once

#include "Media/Process/Wire/Message.h"

#include <cstddef>

namespace media::process {

/// The same bytes, and descriptors of the same files.
Message copyOf(const Message& message);

/// The first bytes only, with all descriptors.
Message cutShort(const Message& message, std::size_t byteCount);

} // namespace media::process
