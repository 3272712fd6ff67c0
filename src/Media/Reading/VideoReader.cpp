#include "Media/Reading/VideoReader.h"

#include "Media/FFmpeg/DemuxerPool.h"
#include "Media/Reading/DecodingRun.h"
#include "Media/Reading/KeyFrameSearch.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Reading/SkipPolicy.h"

#include <algorithm>
#include <deque>

namespace media {

namespace {

/// A run of decoding that is so short may as well begin somewhat earlier.
constexpr Ticks kShortRun(Ticks::kPerSecond / 2);
/// How much later than it is decoded a key frame may be shown.
constexpr Ticks kLongestReorder(Ticks::kPerSecond / 5);

} // namespace

/// Puts together what does the work: the search for where to begin, the run of decoding from there,
/// and what it may leave out.
class VideoReader::Private {
public:
    Private(std::shared_ptr<const Asset> asset, const AssetTrack& facts, const Options& options)
        : m_asset(OpenedAsset::of(std::move(asset))),
          m_track(m_asset->info().track(facts.streamIndex)),
          m_clock(m_asset->info(), m_track),
          m_demuxer(m_asset->demuxers().take()),
          m_run(m_asset->info(), m_track, *m_demuxer, options),
          m_search(m_track.facts.streamIndex, m_clock, *m_demuxer, m_run) {
        if (!m_demuxer->statesPresentationTimes())
            m_demuxer->findStreamInfo();
        if (m_track.needsGeneratedTimes)
            m_demuxer->generatePresentationTimes();
        m_demuxer->selectOnly({m_track.facts.streamIndex});
    }

    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    ~Private() { m_asset->demuxers().giveBack(std::move(m_demuxer)); }

    void seek(Ticks ticks, const std::stop_token& stop) {
        approach({.target = ticks, .completeFrom = ticks, .beginAt = ticks}, stop);
        advanceTo(ticks, stop);
        skipPolicy().endAim();
    }

    void approach(const Approach& way, const std::stop_token& stop) {
        const Ticks target = way.target;
        skipPolicy().aimAt(target, way.completeFrom);
        if (m_search.isReachedByDecodingOn(target, way.shortestLeap)) {
            m_run.fill(1, stop, target);
            // The picture of a packet that was read ahead need not decode.
            if (!frames().empty() && frames().front().ticks <= target)
                return;
        }
        const bool isEarlier =
            way.beginAt < target && m_search.hasKeyFrameWithin(target - kShortRun, way.beginAt);
        const Ticks begin = isEarlier ? way.beginAt : target;
        beginAt(begin, begin, stop);
    }

    [[nodiscard]] Start startOfWayTo(Ticks target) const {
        if (m_search.isReachedByDecodingOn(target, {}))
            return {m_run.nextTicks(), true};
        return {m_search.keyFrameBefore(target), false};
    }

    [[nodiscard]] std::optional<Ticks> keyFrameBefore(Ticks ticks) const {
        return m_search.keyFrameBefore(ticks);
    }

    [[nodiscard]] bool isCompleteFrom(Ticks ticks) const {
        return m_run.skipPolicy().isCompleteFrom(ticks);
    }

    bool seekNear(Ticks earliest, Ticks latest, const std::stop_token& stop) {
        skipPolicy().aimAt(latest, latest);
        const Ticks middle = midpoint(earliest, latest);
        const bool hasKeyFrameAtHand = m_search.hasKeyFrameWithin(earliest, middle);
        // The index knows decoding times; its container goes by when a key frame is shown.
        const Ticks goal = hasKeyFrameAtHand ? std::min(middle + kLongestReorder, latest) : latest;
        if (hasKeyFrameAtHand || m_search.hasKeyFrameWithin(earliest, latest) || frames().empty() ||
            !m_search.isReachedByDecodingOn(earliest, {}))
            beginAt(goal, latest, stop);
        m_run.fill(1, stop, latest);
        while (!frames().empty() && frames().front().ticks < earliest) {
            m_run.fill(2, stop, latest);
            if (frames().size() < 2 || frames()[1].ticks > latest)
                break;
            frames().pop_front();
        }
        skipPolicy().endAim();
        return !frames().empty() && isOnShowWithin(earliest, latest, frames().front());
    }

    const DecodedFrame* peek(const std::stop_token& stop, Ticks until) {
        startIfNew(stop);
        m_run.fill(1, stop, until);
        return frames().empty() ? nullptr : &frames().front();
    }

    [[nodiscard]] bool hasEnded() const { return m_run.isDrained() && m_run.frames().empty(); }

    std::optional<DecodedFrame> next(const std::stop_token& stop) {
        startIfNew(stop);
        m_run.fill(1, stop);
        if (frames().empty())
            return std::nullopt;
        DecodedFrame frame = std::move(frames().front());
        frames().pop_front();
        return frame;
    }

private:
    [[nodiscard]] std::deque<DecodedFrame>& frames() { return m_run.frames(); }

    [[nodiscard]] SkipPolicy& skipPolicy() { return m_run.skipPolicy(); }

    /// A frame from before the window is on show in it unless a later one should have been.
    [[nodiscard]] bool isOnShowWithin(Ticks earliest, Ticks latest,
                                      const DecodedFrame& frame) const {
        const bool isFirst = frame.ticks <= m_clock.first();
        return (frame.ticks >= earliest || frame.ticks >= m_run.skipPolicy().latestUpToTarget()) &&
               (frame.ticks <= latest || isFirst);
    }

    /// Drops frames until the first of those ahead is the frame at `ticks`.
    void advanceTo(Ticks ticks, const std::stop_token& stop) {
        m_run.fill(1, stop);
        while (!frames().empty() && frames().front().knownEnd.value_or(ticks) <= ticks) {
            m_run.fill(2, stop, ticks);
            if (frames().size() < 2 || frames()[1].ticks > ticks)
                break;
            frames().pop_front();
        }
    }

    void startIfNew(const std::stop_token& stop) {
        if (!m_isPositioned)
            beginAt(m_clock.first(), m_clock.first(), stop);
    }

    void beginAt(Ticks ticks, Ticks latest, const std::stop_token& stop) {
        m_isPositioned = true;
        m_search.beginAt(ticks, latest, stop);
    }

    std::shared_ptr<const OpenedAsset> m_asset;
    const ffmpeg::SourceTrack& m_track;
    TrackClock m_clock;
    std::unique_ptr<ffmpeg::Demuxer> m_demuxer;
    DecodingRun m_run;
    KeyFrameSearch m_search;
    /// A borrowed demuxer may stand anywhere until the first move.
    bool m_isPositioned = false;
};

VideoReader::VideoReader(std::shared_ptr<const Asset> asset, const AssetTrack& track,
                         Options options)
    : d(std::make_unique<Private>(std::move(asset), track, options)) {}

VideoReader::~VideoReader() = default;

void VideoReader::seek(Ticks ticks, const std::stop_token& stop) {
    d->seek(ticks, stop);
}

void VideoReader::approach(const Approach& way, const std::stop_token& stop) {
    d->approach(way, stop);
}

VideoReader::Start VideoReader::startOfWayTo(Ticks target) const {
    return d->startOfWayTo(target);
}

std::optional<Ticks> VideoReader::keyFrameBefore(Ticks ticks) const {
    return d->keyFrameBefore(ticks);
}

bool VideoReader::isCompleteFrom(Ticks ticks) const {
    return d->isCompleteFrom(ticks);
}

bool VideoReader::seekNear(Ticks earliest, Ticks latest, const std::stop_token& stop) {
    return d->seekNear(earliest, latest, stop);
}

std::optional<DecodedFrame> VideoReader::next(const std::stop_token& stop) {
    return d->next(stop);
}

const DecodedFrame* VideoReader::peek(const std::stop_token& stop, Ticks until) {
    return d->peek(stop, until);
}

bool VideoReader::hasEnded() const {
    return d->hasEnded();
}

} // namespace media
