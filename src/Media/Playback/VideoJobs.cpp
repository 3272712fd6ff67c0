#include "Media/Playback/VideoPlayback.h"

#include "Media/Threading/ProcessorDemand.h"

#include <algorithm>
#include <cstddef>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// Frames decoded ahead: enough to bridge what one frame takes longer than another, and no more
/// than kAheadBytes of pictures beyond the first few.
constexpr std::size_t kLeastAhead = 3;
constexpr std::size_t kMostAhead = 8;
constexpr std::size_t kAheadBytes = std::size_t{48} << 20;
/// After a jump by itself nothing is foreseen for so long: more may be about to happen.
constexpr milliseconds kRest{150};
/// What is being foreseen so far away (1/600 s) from where the playhead has gone is given up.
constexpr std::int64_t kFarAwayTicks = 4 * kComparisonTimescale;
/// Between two looks whether the processor is free again.
constexpr milliseconds kDemandPause{200};
constexpr std::chrono::hours kIdle{1};

bool hasRoom(const std::deque<ReadyFrame>& frames) {
    if (frames.size() < kLeastAhead)
        return true;
    std::size_t bytes = 0;
    for (const ReadyFrame& frame : frames)
        bytes += frame.image ? frame.image->byteCount() : 0;
    return frames.size() < kMostAhead && bytes < kAheadBytes;
}

} // namespace

std::optional<VideoPlayback::Job> VideoPlayback::takeJob(Transport& transport) {
    Job job;
    job.generation = transport.generation;
    job.item = transport.item;
    job.previewSize = transport.previewSize;
    job.imageSize = transport.imageSize();
    job.direction = transport.direction;
    job.stop = transport.videoWork.get_token();
    if (transport.item != m_item)
        return job;
    const Time time = transport.time(std::chrono::steady_clock::now());
    job.now = time.isNumeric() ? time.ticks().count() : 0;
    job.lastTicks = transport.duration.ticks().count();
    const bool isChosen = transport.seek
                              ? chooseSeek(transport, job)
                              : chooseStep(transport, job) || chooseRedraw(transport, job) ||
                                    choosePlaying(transport, job);
    if (isChosen || chooseIdle(transport, job))
        return job;
    return std::nullopt;
}

bool VideoPlayback::chooseSeek(Transport& transport, Job& job) const {
    job.target = *transport.seek;
    const SeekRequest& seek = job.target;
    const std::int64_t middle = seek.earliest + (seek.latest - seek.earliest) / 2;
    const auto frame = m_playback.cache.find(middle, job.imageSize);
    job.kind = seek.isExact() ? Job::Kind::seek : Job::Kind::near;
    const bool isIn = frame && (seek.isExact() || seek.holds(frame->time.ticks().count()));
    if (!isIn || !m_source) {
        transport.seek->needsDecoding = true;
        return true;
    }
    // It may have come there by the way.
    transport.presenterWake.raise();
    return false;
}

bool VideoPlayback::chooseStep(Transport& transport, Job& job) const {
    if (!transport.step || transport.step->left == 0)
        return false;
    const std::optional<std::int64_t> ticks = transport.step->nextTicks();
    if (!ticks || m_playback.cache.find(*ticks, job.imageSize)) {
        transport.presenterWake.raise();
        return false;
    }
    job.kind = Job::Kind::step;
    job.target = {*ticks, *ticks};
    return true;
}

bool VideoPlayback::chooseRedraw(Transport& transport, Job& job) const {
    const bool isReplacedSoon =
        transport.isRunningWanted() && transport.nextTicks != CachedFrame::kForever;
    if (!m_source || transport.immediate || transport.isShownInSize() || isReplacedSoon)
        return false;
    const std::int64_t ticks = transport.shown.time.ticks().count();
    if (m_notRedrawn == ticks)
        return false;
    if (m_playback.cache.find(ticks, job.imageSize)) {
        transport.presenterWake.raise();
        return false;
    }
    job.kind = Job::Kind::redraw;
    job.target = {ticks, ticks};
    return true;
}

bool VideoPlayback::choosePlaying(const Transport& transport, Job& job) const {
    if (!m_source || !transport.isPictureReady || transport.immediate ||
        transport.nextTicks == CachedFrame::kForever)
        return false;
    std::int64_t ticks = transport.nextTicks;
    if (!transport.isRunningWanted()) {
        // Where playing has stopped, the frame at that time is owed even if decoding was behind.
        const bool isOwed = m_rollingGeneration == transport.generation &&
                            transport.upcoming.empty() && transport.steps.empty() &&
                            transport.shown.end <= job.now;
        if (!isOwed)
            return false;
        ticks = job.now;
    } else if (!hasRoom(transport.upcoming)) {
        const std::int64_t missing = m_playback.cache.coveredUntil(ticks, job.imageSize);
        job.kind = Job::Kind::prepare;
        job.target = {missing, missing};
        return missing != CachedFrame::kForever && !m_source->standsAt(missing);
    }
    job.target = {ticks, ticks};
    job.frame = m_playback.cache.find(ticks, job.imageSize);
    job.kind = job.frame ? Job::Kind::queue : Job::Kind::ahead;
    return true;
}

bool VideoPlayback::chooseIdle(const Transport& transport, Job& job) {
    if (!m_source)
        return false;
    if (m_source->hasPassed() && !transport.isRunningWanted()) {
        job.kind = Job::Kind::keepPassed;
        return true;
    }
    const Prospect prospect = prospectOf(transport);
    if (prospect != m_prospect) {
        m_prospect = prospect;
        if (m_fill && (prospect.focus < m_fill->from - kFarAwayTicks ||
                       prospect.focus > m_fill->until + kFarAwayTicks))
            m_fill.reset();
        m_framesToForesee =
            static_cast<int>(std::min(framesInCache(m_playback.cache, job.imageSize), 1000.0));
    }
    if (isForesightDue(transport, std::chrono::steady_clock::now())) {
        job.kind = Job::Kind::foresee;
        job.focus = m_prospect.focus;
        return true;
    }
    job.kind = Job::Kind::letDecoderGo;
    return m_share.isTooMuch() && m_framesToForesee <= 0 && !transport.isRunningWanted();
}

VideoPlayback::Prospect VideoPlayback::prospectOf(const Transport& transport) {
    return {transport.generation, transport.interests, transport.shown.time.ticks().count(),
            transport.imageSize()};
}

bool VideoPlayback::isForesightDue(const Transport& transport, SteadyTime now) const {
    if (m_framesToForesee <= 0 || transport.isRunningWanted() || !transport.shown.image ||
        ProcessorDemand::isHigh())
        return false;
    return transport.direction != 0 || now - transport.lastJump >= kRest;
}

SteadyTime VideoPlayback::nextLook(const Transport& transport) const {
    const SteadyTime now = std::chrono::steady_clock::now();
    if (m_framesToForesee <= 0)
        return now + kIdle;
    const SteadyTime rested = transport.lastJump + kRest;
    if (now < rested)
        return rested;
    return ProcessorDemand::isHigh() ? now + kDemandPause : now + kIdle;
}

} // namespace media::playback
