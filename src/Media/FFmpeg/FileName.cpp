#include "Media/FFmpeg/FileName.h"

namespace media::ffmpeg {

std::string shownName(const std::filesystem::path& path) {
    // A folder may well be given with a slash at its end.
    auto name = path.has_filename() ? path.filename() : path.parent_path().filename();
    if (name.empty())
        name = path;
    return name.string();
}

} // namespace media::ffmpeg
