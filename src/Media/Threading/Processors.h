#pragma once

namespace media {

/// How many processors this process may use; at least 1. Any thread.
[[nodiscard]] int processorCount() noexcept;

} // namespace media
