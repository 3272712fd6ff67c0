#include "Media/Playback/FrameSource.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Decoder.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace media::playback {

namespace {

/// Frames at full size that wait to be rendered: what comes in a third of a second at 1080p.
constexpr std::size_t kPassedBytes = std::size_t{48} << 20;

/// How far behind a goal it is looked for where its frame ends, if nothing decodes there (1/600 s).
constexpr std::int64_t kFarthestEndTicks = kComparisonTimescale / 2;

/// How many frames before one are worth decoding, when the next ones will be those (1/600 s).
constexpr std::int64_t kBackwardTicks = kComparisonTimescale * 3 / 10;

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

FrameSource::FrameSource(FrameCache& cache, DecoderShare& share,
                         std::shared_ptr<const PlayerItem> item)
    : m_cache(cache), m_share(share), m_item(std::move(item)) {
    if (!m_item)
        return;
    const std::vector<AssetTrack> tracks = m_item->asset()->tracks(MediaType::video);
    if (tracks.empty())
        return;
    m_firstTicks = tracks.front().startTime.ticks().count();
    m_renderer = std::make_unique<PictureRenderer>(tracks.front());
    reader();
}

FrameSource::~FrameSource() {
    m_share.letGo();
}

VideoReader& FrameSource::reader() {
    if (!m_reader)
        m_reader = std::make_unique<VideoReader>(m_item->asset(),
                                                 m_item->asset()->tracks(MediaType::video).front());
    return *m_reader;
}

void FrameSource::letDecoderGo() {
    m_goal.reset();
    m_unfinished.reset();
    m_passing.reset();
    m_nextTicks = CachedFrame::kBeginning;
    m_reader.reset();
    m_share.letGo();
}

FrameSource::Outcome FrameSource::advance(const Goal& goal, PreviewSize size,
                                          const std::stop_token& stop) {
    if (arriveAtKept(goal.ticks, size))
        return Outcome::arrived;
    if (m_goal != goal.ticks) {
        m_goal.reset();
        m_unfinished.reset();
        m_nextTicks = CachedFrame::kBeginning;
        m_hasMoved = true;
        const std::int64_t beginAt = goal.isBackward ? goal.ticks - kBackwardTicks : goal.ticks;
        reader().approach(Ticks(goal.ticks), Ticks(goal.completeFrom), Ticks(beginAt), stop);
        m_goal = goal.ticks;
    }
    std::optional<Decoded> decoded = decode(goal, stop);
    if (!decoded) {
        m_goal.reset();
        return Outcome::nothing;
    }
    if (decoded->end <= goal.ticks) {
        pass(std::move(*decoded), goal, size);
        return Outcome::onTheWay;
    }
    m_goal.reset();
    m_arrivedEnd = decoded->end;
    if (decoded->end <= goal.lateUntil)
        return Outcome::late;
    keep(*decoded, size);
    m_arrived = std::move(decoded);
    return Outcome::arrived;
}

/// Whether the frame at `ticks` is one that only has to be rendered.
bool FrameSource::arriveAtKept(std::int64_t ticks, PreviewSize size) {
    const auto passed = std::ranges::find_if(
        m_passed, [ticks](const Decoded& decoded) { return decoded.holds(ticks); });
    if (passed != m_passed.end()) {
        m_passedBytes -= byteCount(*passed->frame->frame);
        m_arrived = std::move(*passed);
        m_passed.erase(passed);
    }
    if (!m_arrived || !m_arrived->holds(ticks))
        return false;
    keep(*m_arrived, size);
    m_arrivedEnd = m_arrived->end;
    return true;
}

std::optional<FrameSource::Decoded> FrameSource::decode(const Goal& goal,
                                                        const std::stop_token& stop) {
    if (!m_unfinished) {
        std::optional<DecodedFrame> frame = reader().next(stop);
        if (!frame) {
            m_nextTicks = CachedFrame::kForever;
            return std::nullopt;
        }
        m_unfinished = std::make_shared<const DecodedFrame>(std::move(*frame));
        m_share.use(picturesOfDecoder() * byteCount(*m_unfinished->frame));
        ++m_decodedCount;
    }
    const std::int64_t end = endOf(*m_unfinished, goal.ticks, stop);
    Decoded decoded{std::exchange(m_unfinished, nullptr), 0, end, true};
    m_nextTicks = end;
    const std::int64_t ticks = decoded.begin = decoded.frame->ticks.count();
    decoded.isComplete = m_reader->isCompleteFrom(Ticks(ticks));
    const bool isFirst = std::exchange(m_hasMoved, false);
    // Where nothing decodes before it the first frame stands for what was asked for; and where some
    // were left out after it that should have come later, it is known for that tick only.
    if (ticks <= m_firstTicks)
        decoded.begin = CachedFrame::kBeginning;
    else if ((isFirst && ticks > goal.ticks) || (!decoded.isComplete && goal.ticks < decoded.end))
        decoded.begin = goal.ticks;
    return decoded;
}

/// Where the frame after the one decoded last begins; where nothing decodes for long after the
/// goal, until when at least it does not.
std::int64_t FrameSource::endOf(const DecodedFrame& frame, std::int64_t goal,
                                const std::stop_token& stop) {
    if (frame.knownEnd)
        return frame.knownEnd->count();
    const std::int64_t from =
        goal == CachedFrame::kForever ? frame.ticks.count() : std::max(frame.ticks.count(), goal);
    const std::int64_t until = from + kFarthestEndTicks;
    if (const DecodedFrame* following = m_reader->peek(stop, Ticks(until)))
        return following->ticks.count();
    return m_reader->hasEnded() ? CachedFrame::kForever : until + 1;
}

void FrameSource::pass(Decoded decoded, const Goal& goal, PreviewSize size) {
    m_passing = decoded;
    if (!decoded.isComplete || decoded.end <= goal.completeFrom)
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

std::optional<std::int64_t> FrameSource::advanceNear(std::int64_t earliest, std::int64_t latest,
                                                     PreviewSize size,
                                                     const std::stop_token& stop) {
    m_goal.reset();
    m_unfinished.reset();
    m_hasMoved = false;
    m_nextTicks = CachedFrame::kBeginning;
    reader().seekNear(Ticks(earliest), Ticks(latest), stop);
    Goal goal;
    goal.ticks = CachedFrame::kForever;
    std::optional<Decoded> decoded = decode(goal, stop);
    if (!decoded)
        return std::nullopt;
    const std::int64_t ticks = decoded->frame->ticks.count();
    if (!decoded->isComplete)
        decoded->end = std::min(decoded->end, ticks + 1);
    keep(*decoded, size);
    m_arrived = std::move(decoded);
    return ticks;
}

std::shared_ptr<const CachedFrame> FrameSource::passing(PreviewSize size) {
    if (!m_passing)
        return nullptr;
    auto frame = std::make_shared<CachedFrame>(rendered(*m_passing, size));
    // Of what lies between it and the next nothing is known.
    if (!m_passing->isComplete)
        frame->end = m_passing->frame->ticks.count() + 1;
    return frame;
}

bool FrameSource::keepOnePassed(PreviewSize size) {
    if (m_passed.empty())
        return false;
    // The one that was passed last lies nearest to what was asked for.
    const Decoded nearest = std::move(m_passed.back());
    m_passed.pop_back();
    m_passedBytes -= byteCount(*nearest.frame->frame);
    keep(nearest, size);
    return true;
}

void FrameSource::keep(const Decoded& decoded, PreviewSize size) {
    m_cache.insert(m_item.get(), rendered(decoded, size));
}

CachedFrame FrameSource::rendered(const Decoded& decoded, PreviewSize size) {
    return {decoded.begin, decoded.end, decoded.frame->time,
            m_renderer->preview(*decoded.frame->frame, size.width, size.height)};
}

} // namespace media::playback
