#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace media::ffmpeg {

/// What an HEVC bitstream says about the decoder that it needs.
struct HevcLevel {
    /// Ten times the level: 51 for level 5.1.
    int number = 0;
    bool isHighTier = false;
    /// Whether the level allows coding tree units of 16 × 16.
    bool allowsSmallUnits = false;
};

/// The level to encode pictures with, by their size in pixels and their rate in pictures per
/// second; none if they are beyond all levels.
std::optional<HevcLevel> hevcLevel(int width, int height, double framesPerSecond);

/// Writes the level into all video and sequence parameter sets among `headers`, each of which
/// begins with a start code. What is no such set is left alone, and one that is cut short.
void stateLevel(std::span<std::uint8_t> headers, const HevcLevel& level);

} // namespace media::ffmpeg
