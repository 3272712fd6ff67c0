#include "Media/Reading/VideoReader.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/DemuxerPool.h"
#include "Media/FFmpeg/LatestPackets.h"
#include "Media/FFmpeg/PacketFacts.h"
#include "Media/FFmpeg/PresentationTimes.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <deque>

namespace media {

namespace {

constexpr Ticks kNoTarget = Ticks::beginning();
/// Without an index to say where the key frames are, decoding on is taken to be cheaper than
/// moving for targets this close.
constexpr Ticks kNear(2 * Ticks::kPerSecond);
/// A run of decoding that is so short may as well begin somewhat earlier.
constexpr Ticks kShortRun(Ticks::kPerSecond / 2);
/// The first step back when a container lands behind the frame that was asked for.
constexpr Ticks kFirstStepBack(Ticks::kPerSecond / 2);
/// How much more than needed is decoded rather than looked for a shorter way.
constexpr Ticks kLongestDetour(2 * Ticks::kPerSecond);
/// How much later than it is decoded a key frame may be shown.
constexpr Ticks kLongestReorder(Ticks::kPerSecond / 5);

/// Whether the decoder gives out pictures although those they refer to are not there.
bool decodesWithoutReferences(AVCodecID codec) {
    return codec == AV_CODEC_ID_HEVC || codec == AV_CODEC_ID_VVC;
}

} // namespace

class VideoReader::Private {
public:
    Private(std::shared_ptr<const Asset> asset, const AssetTrack& facts, Options options)
        : m_asset(OpenedAsset::of(std::move(asset))),
          m_track(m_asset->info().track(facts.streamIndex)),
          m_demuxer(m_asset->demuxers().take()),
          m_options(options),
          m_disposability(*m_track.parameters),
          m_times(m_asset->info(), m_track) {
        openDecoder();
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
        approach(ticks, ticks, ticks, stop);
        advanceTo(ticks, stop);
        m_target = kNoTarget;
    }

    void approach(Ticks ticks, Ticks completeFrom, Ticks beginAt, const std::stop_token& stop) {
        m_target = ticks;
        m_completeFrom = completeFrom;
        m_bestTicks = kNoTarget;
        if (isAheadNearby(ticks)) {
            fill(1, stop, ticks);
            // The picture of a packet that was read ahead need not decode.
            if (!m_queue.empty() && m_queue.front().ticks <= ticks)
                return;
        }
        const Ticks begin =
            beginAt < ticks && hasKeyFrameWithin(ticks - kShortRun, beginAt) ? beginAt : ticks;
        reposition(begin, begin, stop);
    }

    [[nodiscard]] bool isCompleteFrom(Ticks ticks) const { return ticks >= m_gaplessFrom; }

    bool seekNear(Ticks earliest, Ticks latest, const std::stop_token& stop) {
        m_target = latest;
        m_completeFrom = latest;
        m_bestTicks = kNoTarget;
        const Ticks middle = midpoint(earliest, latest);
        const bool hasKeyFrameAtHand = hasKeyFrameWithin(earliest, middle);
        // The index knows decoding times; its container goes by when a key frame is shown.
        const Ticks goal = hasKeyFrameAtHand ? std::min(middle + kLongestReorder, latest) : latest;
        if (hasKeyFrameAtHand || hasKeyFrameWithin(earliest, latest) || m_queue.empty() ||
            !isAheadNearby(earliest))
            reposition(goal, latest, stop);
        fill(1, stop, latest);
        while (!m_queue.empty() && m_queue.front().ticks < earliest) {
            fill(2, stop, latest);
            if (m_queue.size() < 2 || m_queue[1].ticks > latest)
                break;
            m_queue.pop_front();
        }
        m_target = kNoTarget;
        // A frame from before the window is on show in it unless a later one should have been.
        return !m_queue.empty() &&
               (m_queue.front().ticks >= earliest || m_queue.front().ticks >= m_bestTicks) &&
               (m_queue.front().ticks <= latest || isFirst(m_queue.front()));
    }

    const DecodedFrame* peek(const std::stop_token& stop, Ticks until) {
        startIfNew(stop);
        fill(1, stop, until);
        return m_queue.empty() ? nullptr : &m_queue.front();
    }

    [[nodiscard]] bool hasEnded() const { return m_isDrained && m_queue.empty(); }

    std::optional<DecodedFrame> next(const std::stop_token& stop) {
        startIfNew(stop);
        fill(1, stop);
        if (m_queue.empty())
            return std::nullopt;
        DecodedFrame frame = std::move(m_queue.front());
        m_queue.pop_front();
        return frame;
    }

private:
    void openDecoder() {
        const auto open = [this] {
            m_decoder.emplace(*m_track.parameters, m_track.timeBase, m_options.threads);
        };
        if (m_options.niceness > 0)
            runStandingBack(m_options.niceness, open);
        else
            open();
        if (m_options.detail == Detail::thumbnail) {
            m_decoder->context().skip_loop_filter = AVDISCARD_ALL;
            m_decoder->context().flags2 |= AV_CODEC_FLAG2_FAST;
        }
        m_hasNewParameters = false;
    }

    [[nodiscard]] bool isFirst(const DecodedFrame& frame) const {
        return frame.ticks <= m_track.facts.startTime.ticks();
    }

    /// The dts of the last key frame that the container's index knows at or before `ticks`.
    [[nodiscard]] std::optional<ffmpeg::Timestamp> keyFrameBefore(Ticks ticks) {
        return m_demuxer->keyFrameBefore(
            m_track.facts.streamIndex,
            ffmpeg::streamTimestamp(m_asset->info(), m_track, Time::fromTicks(ticks)));
    }

    [[nodiscard]] bool hasKeyFrameWithin(Ticks earliest, Ticks latest) {
        const auto key = keyFrameBefore(latest);
        return key && ticksAt(*key) >= earliest;
    }

    /// Whether the frame at `ticks` is queued or best reached by decoding on.
    [[nodiscard]] bool isAheadNearby(Ticks ticks) {
        const std::optional<Ticks> next = nextTicks();
        if (!next || ticks < *next || ticks < m_gaplessFrom)
            return false;
        const Ticks last = m_queue.empty() ? *next : m_queue.back().ticks;
        if (m_isDrained || last > ticks)
            return true;
        // Among packets of which no picture comes, the search goes on where it stands.
        if (m_taken.areAllAfter(last) && ticks - m_taken.latest() <= kNear)
            return true;
        const auto key =
            m_demuxer->statesPresentationTimes() ? keyFrameBefore(ticks) : std::nullopt;
        if (key && m_lastReadDts)
            return *key <= m_lastReadDts;
        return ticks - last <= kNear;
    }

    /// Where the next frame begins, as far as it is known already.
    [[nodiscard]] std::optional<Ticks> nextTicks() const {
        if (!m_queue.empty())
            return m_queue.front().ticks;
        const auto pts = m_ahead.empty() ? std::nullopt : ffmpeg::ptsOf(*m_ahead.front());
        return pts ? std::optional(ticksAt(*pts)) : std::nullopt;
    }

    [[nodiscard]] Ticks ticksAt(ffmpeg::Timestamp timestamp) const {
        return ffmpeg::assetTime(m_asset->info(), m_track, timestamp).ticks();
    }

    /// Drops queued frames until the first is the frame at `ticks`.
    void advanceTo(Ticks ticks, const std::stop_token& stop) {
        fill(1, stop);
        while (!m_queue.empty() && m_queue.front().knownEnd.value_or(ticks) <= ticks) {
            fill(2, stop, ticks);
            if (m_queue.size() < 2 || m_queue[1].ticks > ticks)
                break;
            m_queue.pop_front();
        }
    }

    void startIfNew(const std::stop_token& stop) {
        const Ticks first = m_track.facts.startTime.ticks();
        if (!m_isPositioned)
            reposition(first, first, stop);
    }

    /// Starts decoding at the last random-access point that the container knows at or before
    /// `ticks`, or, where its first picture is shown after `latest`, at an earlier one; at the
    /// track's first picture where there is none.
    void reposition(Ticks ticks, Ticks latest, const std::stop_token& stop) {
        m_isPositioned = true;
        const Ticks first = m_track.facts.startTime.ticks();
        const Ticks limit = std::max(latest, first);
        const bool canSeek = !m_demuxer->canOnlyReadOn();
        Ticks vain = ticks;
        for (Ticks back; canSeek; back = back == Ticks() ? kFirstStepBack : 4 * back) {
            const Landing landing =
                landAt(ticks - back, limit, back == Ticks() ? limit : vain, stop);
            if (landing == Landing::refused)
                break;
            if (landing == Landing::inTime) {
                approachLatestLanding(ticks - back, vain, limit, stop);
                return;
            }
            vain = ticks - back;
            // No step leads back from an endless moment.
            if (vain <= first || vain.isEndless())
                break;
        }
        m_demuxer->reopen(stop);
        if (m_hasNewParameters)
            openDecoder();
        restart();
    }

    enum class Landing { refused, inTime, tooLate };

    /// Starts decoding at the random-access point before `ticks`; in time if the first picture that
    /// comes out begins at or before `limit`. It is given up when none has come by `vain`: from
    /// there on, it is known, none comes in time.
    Landing landAt(Ticks ticks, Ticks limit, Ticks vain, const std::stop_token& stop) {
        const ffmpeg::Timestamp timestamp =
            ffmpeg::streamTimestamp(m_asset->info(), m_track, Time::fromTicks(ticks));
        if (!m_demuxer->seek(m_track.facts.streamIndex, timestamp, stop))
            return Landing::refused;
        restart();
        m_awaitsKeyFrame = decodesWithoutReferences(m_track.parameters->codec_id);
        fill(1, stop, vain);
        const bool isInTime = !m_queue.empty() && m_queue.front().ticks <= limit;
        return isInTime ? Landing::inTime : Landing::tooLate;
    }

    /// Having landed in time from `inTime`, but too late from `vain`: where a long part does not
    /// decode, the steps back may have gone far beyond its beginning, and all that lies between
    /// would be decoded. Any later place from which the landing is in time will do.
    void approachLatestLanding(Ticks inTime, Ticks vain, Ticks limit, const std::stop_token& stop) {
        bool isThere = true;
        while (vain - inTime > kLongestDetour) {
            const Ticks middle = midpoint(inTime, vain);
            isThere = landAt(middle, limit, vain, stop) == Landing::inTime;
            (isThere ? inTime : vain) = middle;
        }
        if (!isThere)
            landAt(inTime, limit, vain, stop);
    }

    void restart() {
        m_decoder->flush();
        m_disposability.restart();
        m_queue.clear();
        m_ahead.clear();
        m_alone.reset();
        m_isFresh = true;
        m_times.clear();
        m_taken.clear();
        m_isDrained = false;
        m_isDraining = false;
        m_awaitsKeyFrame = false;
        m_lastReadDts.reset();
        m_bestTicks = kNoTarget;
        m_gaplessFrom = kNoTarget;
    }

    /// Decodes until `count` frames are queued or the track has ended, or until it is certain that
    /// the next one begins after `until`.
    void fill(std::size_t count, const std::stop_token& stop, Ticks until = Ticks::forever()) {
        while ((m_queue.size() < count || m_alone) && !m_isDrained) {
            if (stop.stop_requested())
                throw Cancelled();
            ffmpeg::FramePtr frame = ffmpeg::makeFrame();
            switch (m_decoder->receive(*frame)) {
            case ffmpeg::Decoder::Status::frame:
                enqueue(std::move(frame));
                break;
            case ffmpeg::Decoder::Status::needsInput:
                if (!m_alone && m_taken.areAllAfter(until))
                    return;
                feed(stop);
                break;
            case ffmpeg::Decoder::Status::endOfStream:
                if (m_alone)
                    finishAlone();
                else
                    m_isDrained = true;
                break;
            }
        }
    }

    void feed(const std::stop_token& stop) {
        if (m_isDraining) {
            m_isDrained = true;
            return;
        }
        if (!hasAhead(1, stop)) {
            m_isDraining = true;
            m_decoder->send(nullptr);
            return;
        }
        m_taken.note(takenAt(*m_ahead.front()));
        if (m_awaitsKeyFrame && !(m_ahead.front()->flags & AV_PKT_FLAG_KEY)) {
            m_ahead.pop_front();
            return;
        }
        m_awaitsKeyFrame = false;
        if (m_isFresh && m_target != kNoTarget)
            m_alone = aloneAtTarget(stop);
        m_isFresh = false;
        send(*m_ahead.front());
        m_ahead.pop_front();
        if (m_alone)
            m_decoder->send(nullptr);
    }

    /// When the picture of a packet is shown, or at least decoded; kNoTarget if that is not known.
    [[nodiscard]] Ticks takenAt(const AVPacket& packet) const {
        const auto pts = m_track.lacksPresentationTimes ? std::nullopt : ffmpeg::ptsOf(packet);
        const auto timestamp = pts ? pts : ffmpeg::dtsOf(packet);
        return timestamp ? ticksAt(*timestamp) : kNoTarget;
    }

    void send(const AVPacket& packet) {
        const bool bringsParameters =
            av_packet_get_side_data(&packet, AV_PKT_DATA_NEW_EXTRADATA, nullptr) != nullptr;
        m_hasNewParameters = m_hasNewParameters || bringsParameters;
        const ffmpeg::Dispensable dispensable = m_disposability.judge(packet);
        const bool isLeftOut =
            isPassedBy(packet) && dispensable != ffmpeg::Dispensable::no && !m_hasNewParameters;
        if (isLeftOut)
            m_gaplessFrom = std::max(m_gaplessFrom, m_bestTicks);
        // One that the decoder skips takes the turn of one of its threads all the same; and with
        // two threads H.264's has been seen to hold back the last pictures of a stream after it.
        if (isLeftOut && dispensable == ffmpeg::Dispensable::entirely)
            return;
        m_times.notePacket(packet);
        m_decoder->context().skip_frame = isLeftOut ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
        m_decoder->send(&packet);
    }

    /// Reads until `count` packets wait for the decoder; false where the file ends before.
    [[nodiscard]] bool hasAhead(std::size_t count, const std::stop_token& stop) {
        while (m_ahead.size() < count) {
            ffmpeg::PacketPtr packet = ffmpeg::makePacket();
            if (m_demuxer->read(*packet, stop) == ffmpeg::Demuxer::Status::endOfFile)
                return false;
            if (const auto dts = ffmpeg::dtsOf(*packet))
                m_lastReadDts = dts;
            m_ahead.push_back(std::move(packet));
        }
        return true;
    }

    /// The picture of the first packet ahead, if it is certain to be the one at the target and
    /// the packet after it to begin a run of decoding of its own.
    [[nodiscard]] std::optional<TickRange> aloneAtTarget(const std::stop_token& stop) {
        if (m_track.lacksPresentationTimes || m_track.needsGeneratedTimes ||
            m_track.isInterlaced() || !hasAhead(2, stop))
            return std::nullopt;
        if (!ffmpeg::isShownRightBefore(*m_ahead[0], *m_ahead[1], m_track.parameters->codec_id))
            return std::nullopt;
        const TickRange alone{ticksAt(*ffmpeg::ptsOf(*m_ahead[0])),
                              ticksAt(*ffmpeg::ptsOf(*m_ahead[1]))};
        return alone.holds(m_target) ? std::optional(alone) : std::nullopt;
    }

    /// The decoder has nothing more to give of the picture that was decoded by itself.
    void finishAlone() {
        m_decoder->flush();
        if (m_queue.size() == 1 && m_queue.front().ticks == m_alone->begin)
            m_queue.front().knownEnd = m_alone->end;
        m_alone.reset();
    }

    /// On the way to a target: whether a later picture, already read, will be shown at or before
    /// it, so that this one is not the picture there.
    [[nodiscard]] bool isPassedBy(const AVPacket& packet) {
        const auto pts = ffmpeg::ptsOf(packet);
        if (m_target == kNoTarget || !pts || m_track.lacksPresentationTimes)
            return false;
        const Ticks ticks = ticksAt(*pts);
        if (ticks <= m_target)
            m_bestTicks = std::max(m_bestTicks, ticks);
        return ticks < m_bestTicks && ticks < m_completeFrom;
    }

    void enqueue(ffmpeg::FramePtr frame) {
        const Time time = m_times.next(*frame);
        m_queue.push_back({std::move(frame), time, time.ticks()});
    }

    std::shared_ptr<const OpenedAsset> m_asset;
    const ffmpeg::SourceTrack& m_track;
    std::unique_ptr<ffmpeg::Demuxer> m_demuxer;
    Options m_options;
    ffmpeg::Disposability m_disposability;
    ffmpeg::PresentationTimes m_times;
    std::optional<ffmpeg::Decoder> m_decoder;
    /// The stream changed the decoder's parameters on its way.
    bool m_hasNewParameters = false;

    /// Packets that were read but not handed to the decoder yet.
    std::deque<ffmpeg::PacketPtr> m_ahead;
    std::deque<DecodedFrame> m_queue;
    ffmpeg::LatestPackets m_taken;
    /// A borrowed demuxer may stand anywhere until the first move.
    bool m_isPositioned = false;
    /// The decoder was given nothing since it was moved.
    bool m_isFresh = true;
    /// When the picture is on show that the decoder is at, if it was given one packet only and told
    /// to give out its picture.
    std::optional<TickRange> m_alone;
    bool m_isDraining = false;
    bool m_isDrained = false;
    /// Moved to a place that need not be a random-access point.
    bool m_awaitsKeyFrame = false;
    std::optional<ffmpeg::Timestamp> m_lastReadDts;

    /// The tick that a seek is on its way to, and the latest tick at or before it among the
    /// pictures read so far.
    Ticks m_target = kNoTarget;
    Ticks m_bestTicks = kNoTarget;
    /// No picture from this tick on is left out on that way.
    Ticks m_completeFrom = kNoTarget;
    /// Pictures before this tick may have been left out of the run being decoded; a later target
    /// before it, after a seek that was given up, needs a new run.
    Ticks m_gaplessFrom = kNoTarget;
};

VideoReader::VideoReader(std::shared_ptr<const Asset> asset, const AssetTrack& track,
                         Options options)
    : d(std::make_unique<Private>(std::move(asset), track, options)) {}

VideoReader::~VideoReader() = default;

void VideoReader::seek(Ticks ticks, const std::stop_token& stop) {
    d->seek(ticks, stop);
}

void VideoReader::approach(Ticks ticks, Ticks completeFrom, Ticks beginAt,
                           const std::stop_token& stop) {
    d->approach(ticks, completeFrom, beginAt, stop);
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
