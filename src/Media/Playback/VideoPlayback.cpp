#include "Media/Playback/VideoPlayback.h"

#include "Media/Error.h"

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
/// Further behind than this, decoding what lies between is given up.
constexpr milliseconds kFarBehind{500};
/// However far behind, one frame in this time is shown.
constexpr milliseconds kLongestFreeze{200};

std::int64_t ticksAt(nanoseconds time) {
    return Time{time.count(), kNanoTimescale}.comparisonTicks();
}

bool hasRoom(const std::deque<ReadyFrame>& frames) {
    if (frames.size() < kLeastAhead)
        return true;
    std::size_t bytes = 0;
    for (const ReadyFrame& frame : frames)
        bytes += frame.image ? frame.image->byteCount() : 0;
    return frames.size() < kMostAhead && bytes < kAheadBytes;
}

} // namespace

void VideoPlayback::work(const std::stop_token& stop) {
    while (!stop.stop_requested()) {
        std::optional<Job> job;
        {
            auto access = m_playback.transport.lock();
            job = takeJob(*access);
            if (!job)
                access->videoWake.wait(access, stop);
        }
        if (job)
            perform(*job);
    }
}

std::optional<VideoPlayback::Job> VideoPlayback::takeJob(Transport& transport) {
    Job job;
    // A frame on its way to the screen is where a step and all that is decoded next start from.
    const bool mayGoOn = !transport.immediate;
    if (transport.seek) {
        job.kind = Job::Kind::seek;
        job.seek = *std::exchange(transport.seek, std::nullopt);
    } else if (mayGoOn && !transport.steps.empty()) {
        job.kind = Job::Kind::step;
        job.stepCount = transport.steps.front();
        transport.steps.pop_front();
    } else if (mayGoOn && isRedrawWanted(transport)) {
        job.kind = Job::Kind::redraw;
    } else if (mayGoOn && isAheadWanted(transport)) {
        job.kind = Job::Kind::ahead;
    } else {
        return std::nullopt;
    }
    job.generation = transport.generation;
    job.item = transport.item;
    job.previewSize = transport.previewSize;
    job.shown = transport.shown;
    job.stop = transport.videoWork.get_token();
    return job;
}

bool VideoPlayback::isRedrawWanted(const Transport& transport) const {
    const bool isReplacedSoon = transport.isRunningWanted() && !m_isAtEnd;
    return transport.shown.source && transport.shown.previewSize != transport.previewSize &&
           !isReplacedSoon;
}

bool VideoPlayback::isAheadWanted(const Transport& transport) const {
    if (!transport.isPictureReady || !m_reader || m_isAtEnd)
        return false;
    if (transport.isRunningWanted())
        return hasRoom(transport.upcoming);
    // Where playing has stopped, the frame at that time is owed even if decoding was behind.
    return m_isRolling && transport.upcoming.empty();
}

void VideoPlayback::perform(const Job& job) {
    try {
        switch (job.kind) {
        case Job::Kind::seek:
            seek(job);
            break;
        case Job::Kind::step:
            step(job);
            break;
        case Job::Kind::redraw:
            redraw(job);
            break;
        case Job::Kind::ahead:
            decodeAhead(job);
            break;
        }
    } catch (const Cancelled&) {
        // Something newer is wanted, or the player is being closed.
    } catch (const std::exception&) {
        // What cannot be decoded keeps the last picture on show.
        m_isAtEnd = true;
    }
}

void VideoPlayback::open(const Job& job) {
    if (m_item == job.item)
        return;
    m_reader.reset();
    m_renderer.reset();
    m_item = job.item;
    if (!m_item)
        return;
    const std::vector<AssetTrack> tracks = m_item->asset()->tracks(MediaType::video);
    if (tracks.empty())
        return;
    m_renderer = std::make_unique<PictureRenderer>(tracks.front());
    m_reader = std::make_unique<VideoReader>(m_item->asset(), tracks.front());
}

void VideoPlayback::seek(const Job& job) {
    ReadyFrame ready = job.shown;
    m_isAtEnd = false;
    m_isRolling = false;
    m_hasGap = false;
    try {
        open(job);
        if (FramePtr frame = frameSought(job))
            ready = render(std::move(frame), job.previewSize);
    } catch (const Cancelled&) {
        throw;
    } catch (const std::exception&) {
        m_isAtEnd = true;
    }
    const bool isExact = job.seek.earliest == job.seek.latest;
    show(job, ready, isExact || !ready.source ? std::nullopt : std::optional(ready.source->time));
}

VideoPlayback::FramePtr VideoPlayback::frameSought(const Job& job) {
    if (!m_reader)
        return nullptr;
    if (job.seek.earliest == job.seek.latest)
        m_reader->seek(job.seek.earliest, job.stop);
    else
        m_reader->seekNear(job.seek.earliest, job.seek.latest, job.stop);
    return nextFrame(job.stop);
}

void VideoPlayback::step(const Job& job) {
    if (!m_reader || !job.shown.source)
        return;
    const FramePtr frame = job.stepCount > 0 ? stepForward(job) : stepBackward(job);
    if (frame)
        show(job, render(frame, job.previewSize), frame->time);
}

VideoPlayback::FramePtr VideoPlayback::stepForward(const Job& job) {
    if (std::exchange(m_hasGap, false)) {
        m_playback.transport.lock()->upcoming.clear();
        m_reader->seek(job.shown.source->ticks, job.stop);
        m_reader->next(job.stop);
    }
    m_isRolling = false;
    FramePtr frame;
    for (int i = 0; i < job.stepCount; ++i) {
        std::optional<ReadyFrame> ready = takeUpcoming(job);
        FramePtr next = ready ? ready->source : nextFrame(job.stop);
        if (!next)
            break;
        frame = std::move(next);
    }
    return frame;
}

VideoPlayback::FramePtr VideoPlayback::stepBackward(const Job& job) {
    m_playback.transport.lock()->upcoming.clear();
    m_isAtEnd = false;
    m_isRolling = false;
    m_hasGap = false;
    FramePtr frame;
    std::int64_t ticks = job.shown.source->ticks;
    for (int i = 0; i > job.stepCount; --i) {
        m_reader->seek(ticks - 1, job.stop);
        FramePtr previous = nextFrame(job.stop);
        if (!previous || previous->ticks >= ticks)
            break;
        ticks = previous->ticks;
        frame = std::move(previous);
    }
    return frame;
}

std::optional<ReadyFrame> VideoPlayback::takeUpcoming(const Job& job) {
    auto access = m_playback.transport.lock();
    if (access->generation != job.generation || access->upcoming.empty())
        return std::nullopt;
    ReadyFrame frame = std::move(access->upcoming.front());
    access->upcoming.pop_front();
    return frame;
}

void VideoPlayback::redraw(const Job& job) {
    ReadyFrame frame = job.shown;
    try {
        frame = render(job.shown.source, job.previewSize);
    } catch (const std::exception&) {
        frame.previewSize = job.previewSize;
    }
    auto access = m_playback.transport.lock();
    if (access->shown.source != frame.source || access->immediate)
        return;
    access->immediate = ImmediateFrame{std::move(frame), false, job.generation};
    access->presenterWake.raise();
}

void VideoPlayback::decodeAhead(const Job& job) {
    FramePtr frame = nextFrame(job.stop);
    if (!frame)
        return;
    nanoseconds time{0};
    {
        auto access = m_playback.transport.lock();
        time = toNanoseconds(access->time(std::chrono::steady_clock::now()));
    }
    if (isTooLate(*frame, time, job)) {
        m_hasGap = true;
        ++m_playback.transport.lock()->statistics.dropped;
        if (time - toNanoseconds(frame->time) > kFarBehind)
            skipTo(time, job);
        return;
    }
    ReadyFrame ready = render(std::move(frame), job.previewSize);
    m_lastKept = std::chrono::steady_clock::now();
    auto access = m_playback.transport.lock();
    if (access->generation != job.generation)
        return;
    m_isRolling = true;
    access->upcoming.push_back(std::move(ready));
    access->presenterWake.raise();
}

/// Whether the frame after this one is to be shown already, so that rendering this one would only
/// make that one late too.
bool VideoPlayback::isTooLate(const DecodedFrame& frame, nanoseconds time, const Job& job) {
    if (toNanoseconds(frame.time) >= time ||
        std::chrono::steady_clock::now() - m_lastKept > kLongestFreeze)
        return false;
    const DecodedFrame* following = m_reader->peek(job.stop);
    return following && toNanoseconds(following->time) <= time;
}

void VideoPlayback::skipTo(nanoseconds time, const Job& job) {
    m_reader->seek(ticksAt(time), job.stop);
    // The search may itself have taken long: its frame is shown all the same.
    m_lastKept = {};
}

VideoPlayback::FramePtr VideoPlayback::nextFrame(const std::stop_token& stop) {
    std::optional<DecodedFrame> frame = m_reader->next(stop);
    if (!frame) {
        m_isAtEnd = true;
        return nullptr;
    }
    return std::make_shared<const DecodedFrame>(std::move(*frame));
}

ReadyFrame VideoPlayback::render(FramePtr frame, PreviewSize size) {
    ImagePtr image = m_renderer->render(*frame->frame, size.width, size.height);
    return {std::move(frame), std::move(image), size};
}

/// Hands on the frame that completes a jump, unless a newer one has been asked for meanwhile.
void VideoPlayback::show(const Job& job, ReadyFrame frame, std::optional<Time> newTime) {
    auto access = m_playback.transport.lock();
    if (access->generation != job.generation)
        return;
    if (newTime)
        access->holdClock(*newTime);
    access->immediate = ImmediateFrame{std::move(frame), true, job.generation};
    access->isPictureReady = true;
    access->readySince = std::chrono::steady_clock::now();
    access->audioWake.raise();
    access->presenterWake.raise();
}

} // namespace media::playback
