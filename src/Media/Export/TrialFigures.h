#pragma once

#include "Media/ExportForecast.h"

#include <cstdint>
#include <vector>

namespace media {

/// What was measured of the pictures at one place of the range: a key frame and those after it.
struct TrialPlace {
    /// How long they are shown, in seconds, and what they take.
    double laterSeconds = 0;
    std::int64_t keyBytes = 0;
    std::int64_t laterBytes = 0;
};

/// What was measured of the sound; all tracks together, each of which has a thread of its own.
struct TrialSound {
    int tracks = 1;
    double seconds = 0;
    std::int64_t bytes = 0;
    double processorSeconds = 0;
};

/// All that was measured of an export, and what is known of it without.
struct TrialFigures {
    /// The length of the range, seconds.
    double seconds = 0;
    /// The pictures in it, and how many of them are to be key frames at least.
    double pictures = 0;
    double keyFrames = 1;
    /// What the file takes besides its media.
    std::int64_t indexBytes = 0;
    int processors = 1;
    /// On how many threads pictures are transformed at the same time.
    int makers = 1;

    std::vector<TrialPlace> places;
    /// The places hold every picture of the range.
    bool isWhole = false;
    /// The processor time of one picture, seconds.
    double decodeSeconds = 0;
    double transformSeconds = 0;
    double encodeSeconds = 0;
    TrialSound sound;
};

/// What the whole range comes to by these figures, which have at least one place.
ExportForecast extrapolated(const TrialFigures& figures);

} // namespace media
