#pragma once

#include "TestSupport/Fixture.h"

#include <cstdint>
#include <vector>

/// What an export must show of a numbered file: written down once more here, apart from the
/// program, so that the two can be held against each other.
namespace testsupport {

/// A range to keep, in seconds as given to the program.
struct KeptRange {
    double start = 0;
    double end = 0;

    /// 1/600 s, to which the program rounds.
    std::int64_t startTicks() const;
    std::int64_t endTicks() const;
    /// The start that the program works with.
    double startSeconds() const;
    /// How long the export is.
    double duration() const;
};

/// A picture of an export, and when it is shown there.
struct ExpectedFrame {
    int number = 0;
    double seconds = 0;
};

/// Without a video composition: every picture that is shown in the range, at its own time.
std::vector<ExpectedFrame> expectedStraight(const Fixture& source, const KeptRange& range);

/// With a video composition: the picture of each n-th part of a second.
std::vector<ExpectedFrame> expectedAtRate(const Fixture& source, const KeptRange& range, int rate);

/// The clicks of a track, on the clock of the export; also those outside of it.
std::vector<double> expectedClicks(const HeardTrack& source, const KeptRange& range);

/// Whether a click lies whole inside of an export, so that it must be found there.
bool isWholeClick(double click, const KeptRange& range);

} // namespace testsupport
