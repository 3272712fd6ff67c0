#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace testsupport {

/// A stretch of sound of one channel, silent but for a short sharp click at each whole second of
/// the timeline plus `clickPhase`.
struct ClickTrack {
    int sampleRate = 48000; ///< Hz
    double start = 0;       ///< Seconds: where on the timeline the first sample lies.
    double duration = 0;    ///< Seconds
    double clickPhase = 0;  ///< Seconds, 0 to 1: distinguishes the tracks of one file.
};

/// The samples of the track, one channel.
std::vector<std::int16_t> drawClicks(const ClickTrack& track);

/// The indices of the samples at which clicks begin, in order. Finds what drawClicks drew, after
/// lossy coding, to a small part of a millisecond, wherever the click is whole.
std::vector<std::size_t> findClicks(std::span<const float> samples, int sampleRate);

/// How long one click lasts, in seconds.
inline constexpr double kClickDuration = 0.003;

} // namespace testsupport
