#pragma once

#include <filesystem>
#include <string>

namespace media::ffmpeg {

/// The last component of a path, as sentences name files. The name's bytes stay as they are, text
/// or not. Any thread.
std::string shownName(const std::filesystem::path& path);

} // namespace media::ffmpeg
