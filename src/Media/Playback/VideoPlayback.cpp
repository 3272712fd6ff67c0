#include "Media/Playback/VideoPlayback.h"

#include "Media/Error.h"

#include <algorithm>
#include <cstddef>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// Further behind than this (1/600 s), decoding what lies between is given up.
constexpr std::int64_t kFarBehindTicks = kComparisonTimescale / 2;
/// However far behind, one frame in this time is shown.
constexpr milliseconds kLongestFreeze{200};
/// Frames that are kept on the way to a target: when it is approached backward more of them will
/// be asked for.
constexpr std::int64_t kMarginTicks = kComparisonTimescale / 4;
constexpr std::int64_t kBackwardMarginTicks = 2 * kComparisonTimescale;
/// A frame that is passed on the way is made ready for showing so long before it may be needed.
constexpr milliseconds kHeadStart{10};

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

} // namespace

void VideoPlayback::work(const std::stop_token& stop) {
    while (!stop.stop_requested()) {
        std::optional<Job> job;
        {
            auto access = m_playback.transport.lock();
            if (m_source)
                access->statistics.decoded += m_source->takeDecodedCount();
            job = takeJob(*access);
            if (!job)
                access->videoWake.wait(access, stop, nextLook(*access));
        }
        if (job)
            perform(*job);
    }
}

void VideoPlayback::perform(const Job& job) {
    try {
        switch (job.kind) {
        case Job::Kind::open:
            return open(job);
        case Job::Kind::seek:
        case Job::Kind::step:
            return seek(job);
        case Job::Kind::near:
            return seekNear(job);
        case Job::Kind::redraw:
            return redraw(job);
        case Job::Kind::queue:
            return queue(job);
        case Job::Kind::ahead:
            return decodeAhead(job);
        case Job::Kind::prepare:
            return prepare(job);
        case Job::Kind::keepPassed:
            m_source->keepOnePassed(job.previewSize);
            return;
        case Job::Kind::foresee:
            return foresee(job);
        case Job::Kind::letDecoderGo:
            m_source->letDecoderGo();
            ++m_playback.transport.lock()->statistics.decodersGivenUp;
            return;
        }
    } catch (const Cancelled&) {
        // Something newer is wanted, or the player is being closed.
    } catch (const std::exception&) {
        giveUp(job);
    }
}

void VideoPlayback::open(const Job& job) {
    m_source.reset();
    m_item = job.item;
    m_fill.reset();
    m_notRedrawn.reset();
    m_rollingGeneration = 0;
    if (!m_item)
        return;
    auto source = std::make_unique<FrameSource>(m_playback.cache, m_share, m_item);
    if (!source->hasPicture())
        return;
    const auto fps =
        static_cast<double>(m_item->asset()->tracks(MediaType::video).front().nominalFrameRate);
    m_frameTicks = kComparisonTimescale / (fps > 0 ? fps : 25);
    m_source = std::move(source);
}

/// What cannot be decoded keeps the last picture on show.
void VideoPlayback::giveUp(const Job& job) {
    switch (job.kind) {
    case Job::Kind::open:
    case Job::Kind::keepPassed:
    case Job::Kind::letDecoderGo:
        break;
    case Job::Kind::seek:
    case Job::Kind::near:
    case Job::Kind::step:
        fail(job);
        break;
    case Job::Kind::redraw:
        m_notRedrawn = job.target.earliest;
        break;
    case Job::Kind::queue:
    case Job::Kind::ahead:
    case Job::Kind::prepare: {
        auto access = m_playback.transport.lock();
        if (access->generation == job.generation)
            access->nextTicks = CachedFrame::kForever;
        break;
    }
    case Job::Kind::foresee:
        m_framesToForesee = 0;
        break;
    }
}

std::int64_t VideoPlayback::margin(const Job& job) const {
    const double room = framesInCache(m_playback.cache, job.imageSize) * m_frameTicks / 4;
    return std::min(job.direction < 0 ? kBackwardMarginTicks : kMarginTicks,
                    static_cast<std::int64_t>(std::min(room, 1e9)));
}

void VideoPlayback::seek(const Job& job) {
    if (!m_source) {
        fail(job);
        return;
    }
    const std::int64_t ticks = job.target.earliest;
    FrameSource::Goal goal{
        .ticks = ticks, .completeFrom = ticks, .isUrgent = true, .isBackward = job.direction < 0};
    goal.completeFrom -= std::min(margin(job), std::max<std::int64_t>(ticks, 0));
    switch (m_source->advance(goal, job.previewSize, job.stop)) {
    case FrameSource::Outcome::onTheWay:
        showProgress(job);
        break;
    case FrameSource::Outcome::nothing:
        fail(job);
        break;
    case FrameSource::Outcome::arrived:
    case FrameSource::Outcome::late:
        m_playback.transport.lock()->presenterWake.raise();
        break;
    }
}

/// Where the way to a target takes long, what lies on it is shown from time to time.
void VideoPlayback::showProgress(const Job& job) {
    {
        auto access = m_playback.transport.lock();
        if (!access->seek || now() + kHeadStart < access->substituteAt)
            return;
    }
    const auto passing = m_source->passing(job.previewSize);
    auto access = m_playback.transport.lock();
    if (!access->seek || access->item != job.item)
        return;
    access->passing = passing;
    access->substituteAt = std::min(access->substituteAt, now());
    access->presenterWake.raise();
}

void VideoPlayback::seekNear(const Job& job) {
    const auto ticks = m_source ? m_source->advanceNear(job.target.earliest, job.target.latest,
                                                        job.previewSize, job.stop)
                                : std::nullopt;
    if (!ticks) {
        fail(job);
        return;
    }
    auto access = m_playback.transport.lock();
    if (access->generation != job.generation || !access->seek)
        return;
    access->seek = SeekRequest{*ticks, *ticks, true};
    access->presenterWake.raise();
}

/// Ends a jump to where there is no picture: the one on show stays.
void VideoPlayback::fail(const Job& job) {
    auto access = m_playback.transport.lock();
    access->presenterWake.raise();
    if (access->generation != job.generation)
        return;
    if (job.kind == Job::Kind::step) {
        if (access->step)
            access->step->left = 0;
        return;
    }
    if (!access->seek)
        return;
    access->seek.reset();
    access->nextTicks = CachedFrame::kForever;
    access->isPictureReady = true;
    access->readySince = access->lastJump = now();
    access->immediate = ImmediateFrame{access->shown, true, job.generation};
    access->audioWake.raise();
}

void VideoPlayback::redraw(const Job& job) {
    const std::int64_t ticks = job.target.earliest;
    switch (m_source->advance({ticks, ticks}, job.previewSize, job.stop)) {
    case FrameSource::Outcome::onTheWay:
        break;
    case FrameSource::Outcome::nothing:
        m_notRedrawn = ticks;
        break;
    case FrameSource::Outcome::arrived:
    case FrameSource::Outcome::late:
        // A picture that comes out in another size than it should is not drawn again and again.
        if (!m_playback.cache.find(ticks, job.imageSize))
            m_notRedrawn = ticks;
        m_playback.transport.lock()->presenterWake.raise();
        break;
    }
}

void VideoPlayback::queue(const Job& job) {
    if (isTooLate(job.frame->end, job))
        passOver(job, job.frame->end);
    else
        pushUpcoming(job, *job.frame, true);
}

void VideoPlayback::decodeAhead(const Job& job) {
    const std::int64_t ticks = job.target.earliest;
    const bool mayDrop = now() - m_lastKept <= kLongestFreeze;
    const FrameSource::Goal goal{.ticks = ticks,
                                 .completeFrom = ticks,
                                 .lateUntil = mayDrop ? job.now : CachedFrame::kBeginning};
    switch (m_source->advance(goal, job.previewSize, job.stop)) {
    case FrameSource::Outcome::onTheWay:
        break;
    case FrameSource::Outcome::late:
        passOver(job, m_source->arrivedEnd());
        break;
    case FrameSource::Outcome::arrived:
        if (const auto frame = m_playback.cache.find(ticks, job.imageSize))
            pushUpcoming(job, *frame, false);
        break;
    case FrameSource::Outcome::nothing:
        giveUp(job);
        break;
    }
}

/// Whether the frame after the one that ends then is to be shown already, so that showing this one
/// would only make that one late too.
bool VideoPlayback::isTooLate(std::int64_t end, const Job& job) const {
    return end <= job.now && now() - m_lastKept <= kLongestFreeze;
}

void VideoPlayback::pushUpcoming(const Job& job, const CachedFrame& frame, bool isFromCache) {
    ReadyFrame ready = readyFrame(frame);
    ready.isFromCache = isFromCache;
    m_lastKept = now();
    auto access = m_playback.transport.lock();
    if (access->generation != job.generation || !frame.holds(job.target.earliest) ||
        access->immediate || !access->steps.empty())
        return;
    m_rollingGeneration = job.generation;
    access->nextTicks = ready.end;
    access->upcoming.push_back(std::move(ready));
    access->presenterWake.raise();
    m_playback.cache.setFocus(job.now);
}

void VideoPlayback::passOver(const Job& job, std::int64_t end) {
    auto access = m_playback.transport.lock();
    if (access->generation != job.generation || access->immediate)
        return;
    ++access->statistics.dropped;
    access->nextTicks = end;
    if (job.now - end <= kFarBehindTicks)
        return;
    access->nextTicks = job.now;
    // The search may itself take long: its frame is shown all the same.
    m_lastKept = {};
}

/// Brings decoding to where the frames at hand end, while those are being shown.
void VideoPlayback::prepare(const Job& job) {
    const std::int64_t ticks = job.target.earliest - 1;
    m_source->advance({.ticks = ticks, .completeFrom = ticks, .lateUntil = job.target.earliest},
                      job.previewSize, job.stop);
}

void VideoPlayback::foresee(const Job& job) {
    if (!m_fill)
        m_fill = nextFill(m_playback.cache, {.focus = job.focus,
                                             .direction = job.direction,
                                             .lastTicks = job.lastTicks,
                                             .frameTicks = m_frameTicks,
                                             .size = job.imageSize});
    if (!m_fill) {
        m_framesToForesee = 0;
        return;
    }
    const std::int64_t ticks = m_fill->from;
    switch (m_source->advance({ticks, ticks}, job.previewSize, job.stop)) {
    case FrameSource::Outcome::onTheWay:
        return;
    case FrameSource::Outcome::nothing:
        m_framesToForesee = 0;
        m_fill.reset();
        return;
    case FrameSource::Outcome::arrived:
    case FrameSource::Outcome::late:
        break;
    }
    --m_framesToForesee;
    m_fill->from = m_playback.cache.coveredUntil(m_source->arrivedEnd(), job.imageSize);
    if (m_fill->from > m_fill->until)
        m_fill.reset();
}

} // namespace media::playback
