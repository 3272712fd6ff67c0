#pragma once

#include "Media/SyntheticPicture.h"

#include <filesystem>
#include <string>
#include <vector>

namespace media::test {

/// A file of `count` pictures (10 a second), each the planar frame given, without loss. `tags` are
/// arguments of ffmpeg such as "-colorspace", "bt709". Cached under `name`, which must tell all.
std::filesystem::path chartFile(const std::string& name, const AVFrame& frame, int count,
                                const std::vector<std::string>& tags = {});

/// The first pictures of a file, decoded; as many as there are up to `count`.
std::vector<ffmpeg::FramePtr> decodedFrames(const std::filesystem::path& path, int count);

} // namespace media::test
