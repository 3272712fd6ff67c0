#pragma once

#include <cstdint>
#include <optional>

namespace media {

/// How many bytes this process has read from files so far, wherever they came from: a count of work
/// that does not depend on how fast the machine is. None where the system does not tell.
std::optional<std::int64_t> bytesRead();

} // namespace media
