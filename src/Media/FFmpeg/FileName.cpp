#include "Media/FFmpeg/FileName.h"

namespace media::ffmpeg {

std::string quoted(const std::filesystem::path& path) {
    // A folder may well be given with a slash at its end.
    auto name = path.has_filename() ? path.filename() : path.parent_path().filename();
    if (name.empty())
        name = path;
    return "\u201C" + name.string() + "\u201D";
}

} // namespace media::ffmpeg
