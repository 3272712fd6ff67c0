#pragma once

#include <filesystem>
#include <string>

namespace media::ffmpeg {

/// The last component of a path in quotes, as sentences name files. The name's bytes stay as they
/// are, text or not. Any thread.
std::string quoted(const std::filesystem::path& path);

} // namespace media::ffmpeg
