#include "Media/Playback/FrameQueue.h"

#include <utility>

namespace media::playback {

namespace {

/// Frames made ready ahead: enough to bridge what one frame takes longer than another, and no more
/// than kMostBytes of pictures beyond the first few.
constexpr std::size_t kLeastFrames = 3;
constexpr std::size_t kMostFrames = 8;
constexpr std::size_t kMostBytes = std::size_t{48} << 20;

/// The item's time at which the frame that begins at `ticks` becomes "the frame at t": half a tick
/// earlier, since times are rounded to ticks.
nanoseconds dueTime(Ticks ticks) {
    constexpr std::int64_t kHalfTicks = 2 * Ticks::kPerSecond;
    const std::int64_t halves = 2 * ticks.count() - 1;
    const std::int64_t seconds = halves / kHalfTicks;
    return std::chrono::seconds(seconds) +
           nanoseconds(((halves % kHalfTicks) * kNanoTimescale + kHalfTicks - 1) / kHalfTicks);
}

} // namespace

void FrameQueue::restartAt(Ticks next) {
    m_frames.clear();
    m_next = next;
}

void FrameQueue::push(RenderedFrame frame) {
    m_next = frame.range.end;
    m_frames.push_back(std::move(frame));
}

bool FrameQueue::hasRoom() const {
    if (m_frames.size() < kLeastFrames)
        return true;
    std::size_t bytes = 0;
    for (const RenderedFrame& frame : m_frames)
        bytes += frame.image ? frame.image->byteCount() : 0;
    return m_frames.size() < kMostFrames && bytes < kMostBytes;
}

std::optional<FrameQueue::DueFrame> FrameQueue::takeDue(nanoseconds time) {
    std::optional<DueFrame> due;
    while (!m_frames.empty()) {
        const nanoseconds lateness = time - dueTime(m_frames.front().time.ticks());
        if (lateness < nanoseconds{0})
            break;
        const std::size_t overtaken = due ? due->overtaken + 1 : 0;
        due = DueFrame{std::move(m_frames.front()), lateness, overtaken};
        m_frames.pop_front();
    }
    return due;
}

std::optional<nanoseconds> FrameQueue::firstDueTime() const {
    if (m_frames.empty())
        return std::nullopt;
    return dueTime(m_frames.front().time.ticks());
}

} // namespace media::playback
