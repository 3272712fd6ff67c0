#pragma once

#include <optional>

namespace media::ffmpeg {

/// What an HEVC bitstream says about the decoder that it needs.
struct HevcLevel {
    /// Ten times the level: 51 for level 5.1.
    int number = 0;
    /// The most bits in a second, and the decoder's buffer: in every level it holds one second.
    /// Above the main tier's limit the bitstream is of the high tier.
    int kilobitsPerSecond = 0;
    /// Whether the level allows coding tree units of 16 × 16.
    bool allowsSmallUnits = false;
};

/// The level to encode pictures with, by their size in pixels and their rate in pictures per
/// second; none if they are beyond all levels.
std::optional<HevcLevel> hevcLevel(int width, int height, double framesPerSecond);

} // namespace media::ffmpeg
