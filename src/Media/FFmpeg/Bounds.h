#pragma once

#include <cstdint>

namespace media::ffmpeg {

/// Larger pictures are not decoded: no level of H.264, HEVC, VVC, VP9 or AV1 allows them, and one
/// costs hundreds of megabytes. Level 7.2 of HEVC (Rec. ITU-T H.265, table A.8).
inline constexpr std::int64_t kMostPixels = 142'606'336;

} // namespace media::ffmpeg
