#include "TestSupport/FrameRule.h"

#include "TestSupport/ClickTrack.h"

#include <cmath>

namespace testsupport {

namespace {

constexpr double kTicks = 600;

/// The nearest 1/600 s to a frame's time. Frames of containers that count in milliseconds may lie
/// half-way between two: those go up, also where the sum of their parts is a bit short of it.
std::int64_t ticksOf(const NumberedFrame& frame) {
    return static_cast<std::int64_t>(std::floor(frame.seconds * kTicks + 0.5 + 1e-6));
}

/// The index of the frame that is shown at a tick. The first frame also stands for what comes
/// before it, the last for what comes after.
std::size_t frameAt(const Fixture& source, std::int64_t ticks) {
    std::size_t index = 0;
    while (index + 1 < source.frames.size() && ticksOf(source.frames[index + 1]) <= ticks)
        ++index;
    return index;
}

} // namespace

std::int64_t KeptRange::startTicks() const {
    return std::llround(start * kTicks);
}

std::int64_t KeptRange::endTicks() const {
    return std::llround(end * kTicks);
}

double KeptRange::startSeconds() const {
    return static_cast<double>(startTicks()) / kTicks;
}

double KeptRange::duration() const {
    return static_cast<double>(endTicks() - startTicks()) / kTicks;
}

std::vector<ExpectedFrame> expectedStraight(const Fixture& source, const KeptRange& range) {
    const double start = range.startSeconds();
    const std::size_t first = frameAt(source, range.startTicks());
    const std::size_t last = frameAt(source, range.endTicks() - 1);
    std::vector<ExpectedFrame> expected = {{source.frames[first].number, 0}};
    for (std::size_t index = first + 1; index <= last; ++index)
        expected.push_back({source.frames[index].number, source.frames[index].seconds - start});
    return expected;
}

std::vector<ExpectedFrame> expectedAtRate(const Fixture& source, const KeptRange& range, int rate) {
    std::vector<ExpectedFrame> expected;
    const std::int64_t length = range.endTicks() - range.startTicks();
    for (std::int64_t n = 0; 600 * n < rate * length; ++n) {
        const double seconds = static_cast<double>(n) / rate;
        const std::int64_t ticks = range.startTicks() + std::llround(kTicks * seconds);
        expected.push_back({source.frames[frameAt(source, ticks)].number, seconds});
    }
    return expected;
}

std::vector<double> expectedClicks(const HeardTrack& source, const KeptRange& range) {
    std::vector<double> clicks;
    for (const double click : source.clicks)
        clicks.push_back(click - range.startSeconds());
    return clicks;
}

bool isWholeClick(double click, const KeptRange& range) {
    constexpr double kMargin = 0.002;
    return click > kMargin && click + kClickDuration < range.duration() - kMargin;
}

} // namespace testsupport
