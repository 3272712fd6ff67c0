#pragma once

#include "Media/FFmpeg/Timestamp.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace media::ffmpeg {

/// Frames per second of pictures that follow one another at one distance but for gaps between some
/// of them, of which an average knows nothing. None where there are no such gaps, where the
/// distances are of all kinds, too few to tell or too short for a rate (over 240 a second). `times`
/// in any order, in `timeBase`.
std::optional<double> rateBetweenGaps(std::vector<Timestamp> times, AVRational timeBase);

/// The distance between all pictures that follow one another, in their time base. None where the
/// distances differ, even by rounding, or there are fewer than two pictures.
std::optional<std::int64_t> constantDistance(std::vector<Timestamp> times);

/// When the samples are decoded that a container's index lists, as far as they are shown. Empty for
/// containers whose index does not list all.
std::vector<Timestamp> indexedTimes(const AVFormatContext& context, AVStream& stream);

} // namespace media::ffmpeg
