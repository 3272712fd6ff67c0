#include "Media/Playback/Transport.h"

namespace media::playback {

ReadyFrame readyFrame(const CachedFrame& frame) {
    return {frame.picture->image(), frame.time, frame.begin, frame.end, false};
}

std::optional<std::int64_t> StepProgress::nextTicks() const {
    if (left > 0)
        return end == CachedFrame::kForever ? std::nullopt : std::optional(end);
    return begin == CachedFrame::kBeginning ? std::nullopt : std::optional(begin - 1);
}

ImageSize Transport::imageSize() const {
    return fittedSize(pictureSize, previewSize.width, previewSize.height);
}

bool Transport::isShownInSize() const {
    return !shown.image || ImageSize{shown.image->width, shown.image->height} == imageSize();
}

Time Transport::time(SteadyTime now) {
    if (!item)
        return Time::invalid();
    const Time time = clock.time(now);
    return time > duration ? duration : time;
}

void Transport::holdClock(Time at) {
    clock.hold(at);
    beginRun();
}

void Transport::beginRun() {
    ++run;
    readySince = std::chrono::steady_clock::now();
    audioWake.raise();
    presenterWake.raise();
}

} // namespace media::playback
