#include "Media/Pictures/DecodingFrameSource.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Decoder.h"
#include "Media/Reading/OpenedAsset.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace media::playback {

namespace {

/// Frames at full size that wait to be rendered: what comes in a third of a second at 1080p.
constexpr std::size_t kPassedBytes = std::size_t{48} << 20;

/// How far behind a goal it is looked for where its frame ends, if nothing decodes there.
constexpr Ticks kFarthestEnd{Ticks::kPerSecond / 2};

/// How much later than it is decoded a key frame may be shown.
constexpr Ticks kLongestReorder{Ticks::kPerSecond / 5};

/// How many frames before one are worth decoding, when the next ones will be those.
constexpr Ticks kBackward{Ticks::kPerSecond * 3 / 10};

/// Pictures that a decoder of H.264 holds for others to refer to and to put them in order, and
/// those of each of its threads; as observed with 2160p.
std::size_t picturesOfDecoder() {
    return 8 + 2 * static_cast<std::size_t>(ffmpeg::Decoder::usualThreads());
}

std::size_t byteCount(const AVFrame& frame) {
    std::size_t bytes = 0;
    for (const AVBufferRef* buffer : frame.buf)
        bytes += buffer ? buffer->size : 0;
    return bytes;
}

} // namespace

DecodingFrameSource::DecodingFrameSource(std::shared_ptr<const OpenedAsset> asset, Keep keep)
    : m_asset(std::move(asset)),
      m_track(m_asset->tracks(MediaType::video).front()),
      m_keep(std::move(keep)),
      m_renderer(m_track) {
    if (auto first = m_asset->takeFirstFrame()) {
        const TickRange range{Ticks::beginning(), *first->knownEnd};
        m_arrived = Decoded{std::move(first), range, true};
    } else {
        reader();
    }
}

VideoReader& DecodingFrameSource::reader() {
    if (!m_reader)
        m_reader = std::make_unique<VideoReader>(m_asset, m_track);
    return *m_reader;
}

void DecodingFrameSource::releaseDecoder() {
    m_goal.reset();
    m_unfinished.reset();
    m_passing.reset();
    m_position = Ticks::beginning();
    m_reader.reset();
    m_decoderBytes = 0;
}

DecodingPace::Way DecodingFrameSource::wayTo(Ticks ticks) {
    if (!m_reader)
        return {.target = ticks};
    const VideoReader::Start start = m_reader->startOfWayTo(ticks);
    return {.target = ticks, .start = start.ticks, .isContinued = start.isHere};
}

DecodingFrameSource::Goal DecodingFrameSource::goalNearEnd(TickRange range) {
    const auto key = reader().keyFrameBefore(range.end - kLongestReorder);
    if (!key || *key <= range.begin)
        return {.ticks = range.begin, .completeFrom = range.begin};
    const Ticks shown = std::min(*key + kLongestReorder, range.end - Ticks(1));
    return {.ticks = shown, .completeFrom = *key};
}

DecodingFrameSource::Outcome DecodingFrameSource::advance(const Goal& goal, PreviewSize size,
                                                          const std::stop_token& stop) {
    // What is too late to be rendered is decoded all the same, for what follows it.
    if (goal.ticks >= goal.skipRenderingUntil && arriveAtKept(goal.ticks, size))
        return Outcome::arrived;
    if (m_goal != goal.ticks) {
        m_goal.reset();
        m_unfinished.reset();
        m_position = Ticks::beginning();
        m_hasMoved = true;
        const Ticks beginAt = goal.isBackward ? goal.ticks - kBackward : goal.ticks;
        reader().approach({.target = goal.ticks,
                           .completeFrom = goal.completeFrom,
                           .beginAt = beginAt,
                           .shortestLeap = goal.shortestLeap},
                          stop);
        m_goal = goal.ticks;
    }
    const bool isFirst = m_hasMoved && !m_unfinished;
    // The first picture of a way can be shown before it is known how long it lasts.
    if (goal.isUrgent && isFirst && readOn(stop) &&
        m_unfinished->knownEnd.value_or(m_unfinished->ticks + Ticks(1)) <= goal.ticks) {
        m_passing = Decoded{m_unfinished, {m_unfinished->ticks, goal.ticks}, false};
        return Outcome::onTheWay;
    }
    std::optional<Decoded> decoded = decode(goal, stop);
    if (!decoded) {
        m_goal.reset();
        return Outcome::nothing;
    }
    if (decoded->range.end <= goal.ticks) {
        pass(std::move(*decoded), goal, size);
        return Outcome::onTheWay;
    }
    m_goal.reset();
    m_arrivedEnd = decoded->range.end;
    if (decoded->range.end <= goal.skipRenderingUntil)
        return Outcome::late;
    keep(*decoded, size);
    m_arrived = std::move(decoded);
    return Outcome::arrived;
}

/// Whether the frame at `ticks` is one that only has to be rendered.
bool DecodingFrameSource::arriveAtKept(Ticks ticks, PreviewSize size) {
    const auto passed = std::ranges::find_if(
        m_passed, [ticks](const Decoded& decoded) { return decoded.range.holds(ticks); });
    if (passed != m_passed.end()) {
        m_passedBytes -= byteCount(*passed->frame->frame);
        m_arrived = std::move(*passed);
        m_passed.erase(passed);
    }
    if (!m_arrived || !m_arrived->range.holds(ticks))
        return false;
    keep(*m_arrived, size);
    m_arrivedEnd = m_arrived->range.end;
    return true;
}

/// Whether there is a frame whose end is to be found out; decodes the next where there was none.
bool DecodingFrameSource::readOn(const std::stop_token& stop) {
    if (m_unfinished)
        return true;
    std::optional<DecodedFrame> frame = reader().next(stop);
    if (!frame) {
        m_position = Ticks::forever();
        return false;
    }
    m_unfinished = std::make_shared<const DecodedFrame>(std::move(*frame));
    m_decoderBytes = picturesOfDecoder() * byteCount(*m_unfinished->frame);
    ++m_decodedCount;
    return true;
}

std::optional<DecodingFrameSource::Decoded>
DecodingFrameSource::decode(const Goal& goal, const std::stop_token& stop) {
    if (!readOn(stop))
        return std::nullopt;
    const Ticks ticks = m_unfinished->ticks;
    const Ticks end = endOf(*m_unfinished, goal.ticks, stop);
    Decoded decoded{std::exchange(m_unfinished, nullptr), {ticks, end}, true};
    m_position = end;
    decoded.isComplete = m_reader->isCompleteFrom(ticks);
    const bool isFirst = std::exchange(m_hasMoved, false);
    // Where nothing decodes before it the first frame stands for what was asked for; and where some
    // were left out after it that should have come later, it is known for that tick only.
    if (ticks <= m_track.startTime.ticks())
        decoded.range.begin = Ticks::beginning();
    else if ((isFirst && ticks > goal.ticks) ||
             (!decoded.isComplete && goal.ticks < decoded.range.end))
        decoded.range.begin = goal.ticks;
    return decoded;
}

/// Where the frame after the one decoded last begins; where nothing decodes for long after the
/// goal, until when at least it does not.
Ticks DecodingFrameSource::endOf(const DecodedFrame& frame, Ticks goal,
                                 const std::stop_token& stop) {
    if (frame.knownEnd)
        return *frame.knownEnd;
    const Ticks from = goal == Ticks::forever() ? frame.ticks : std::max(frame.ticks, goal);
    const Ticks until = from + kFarthestEnd;
    if (const DecodedFrame* following = m_reader->peek(stop, until))
        return following->ticks;
    return m_reader->hasEnded() ? Ticks::forever() : until + Ticks(1);
}

void DecodingFrameSource::pass(Decoded decoded, const Goal& goal, PreviewSize size) {
    m_passing = decoded;
    if (!decoded.isComplete || decoded.range.end <= goal.completeFrom)
        return;
    if (!goal.isUrgent) {
        keep(decoded, size);
        return;
    }
    m_passedBytes += byteCount(*decoded.frame->frame);
    m_passed.push_back(std::move(decoded));
    // Too much to be held at full size: the oldest cannot wait.
    while (m_passedBytes > kPassedBytes && m_passed.size() > 1) {
        const Decoded oldest = std::move(m_passed.front());
        m_passed.pop_front();
        m_passedBytes -= byteCount(*oldest.frame->frame);
        keep(oldest, size);
    }
}

std::optional<Ticks> DecodingFrameSource::advanceNear(Ticks earliest, Ticks latest,
                                                      PreviewSize size,
                                                      const std::stop_token& stop) {
    m_goal.reset();
    m_unfinished.reset();
    m_hasMoved = false;
    m_position = Ticks::beginning();
    reader().seekNear(earliest, latest, stop);
    Goal goal;
    goal.ticks = Ticks::forever();
    std::optional<Decoded> decoded = decode(goal, stop);
    if (!decoded)
        return std::nullopt;
    const Ticks ticks = decoded->frame->ticks;
    if (!decoded->isComplete)
        decoded->range.end = std::min(decoded->range.end, ticks + Ticks(1));
    keep(*decoded, size);
    m_arrived = std::move(decoded);
    return ticks;
}

std::shared_ptr<const CachedFrame> DecodingFrameSource::passing(PreviewSize size) {
    if (!m_passing)
        return nullptr;
    auto frame = std::make_shared<CachedFrame>(rendered(*m_passing, size));
    // Of what lies between it and the next nothing is known.
    if (!m_passing->isComplete)
        frame->range.end = m_passing->frame->ticks + Ticks(1);
    return frame;
}

void DecodingFrameSource::keepOnePassed(PreviewSize size) {
    if (m_passed.empty())
        return;
    // The one that was passed last lies nearest to what was asked for.
    const Decoded nearest = std::move(m_passed.back());
    m_passed.pop_back();
    m_passedBytes -= byteCount(*nearest.frame->frame);
    keep(nearest, size);
}

void DecodingFrameSource::keep(const Decoded& decoded, PreviewSize size) {
    m_keep(rendered(decoded, size));
}

CachedFrame DecodingFrameSource::rendered(const Decoded& decoded, PreviewSize size) {
    return {decoded.range, decoded.frame->time,
            m_renderer.preview(*decoded.frame->frame, size.width, size.height)};
}

} // namespace media::playback
