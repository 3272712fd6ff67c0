#pragma once

#include <filesystem>

namespace testsupport {

/// Writes into an MP4 or MOV file whose first track is the video that its stored picture of this
/// size has to be turned clockwise by 90, 180 or 270 degrees to be shown. The file is written here
/// because no option of ffmpeg's does it in all its releases. Throws std::runtime_error.
void setDisplayRotation(const std::filesystem::path& path, int degrees, int width, int height);

} // namespace testsupport
