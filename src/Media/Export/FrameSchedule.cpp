#include "Media/Export/FrameSchedule.h"

#include "Media/FFmpeg/LibavReleases.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace media {

namespace {

/// Finer time bases than this gain nothing and make the numbers in the file large.
constexpr std::int64_t kFinestTimescale = 1'000'000;
/// The fallback's ticks are those of transport streams, a whole number for the usual frame rates.
constexpr std::int32_t kFallbackTimescale = 90'000;

/// Pictures farther apart than this do not help to deinterlace each other.
constexpr Ticks kFarthestNeighbour(Ticks::kPerSecond);

/// A timescale in which both the source's times and cuts at 1/600 s are whole numbers.
std::int32_t timescaleFor(std::int64_t sourceTimescale) {
    const std::int64_t common = std::lcm<std::int64_t>(sourceTimescale, kComparisonTimescale);
    return common <= kFinestTimescale ? static_cast<std::int32_t>(common) : kFallbackTimescale;
}

class SourceTiming final : public FrameSchedule {
public:
    SourceTiming(VideoReader& reader, const CompositionTrack& track, std::int32_t sourceTimescale)
        : m_reader(reader),
          m_range(track.range),
          m_end(track.range.end.ticks()),
          m_timescale(timescaleFor(sourceTimescale)),
          m_duration(track.range.duration().rescaled(m_timescale).value) {
        // A source of variable rate may run faster than its average for a while.
        constexpr double kLeastRate = 60;
        const double rate =
            std::max(kLeastRate, 2 * static_cast<double>(track.source.nominalFrameRate));
        m_expectedFrames =
            static_cast<std::int64_t>(std::ceil(m_range.duration().seconds() * rate)) + 16;
    }

    [[nodiscard]] AVRational timeBase() const override { return {1, m_timescale}; }

    [[nodiscard]] std::int64_t expectedFrames() const override { return m_expectedFrames; }

    std::optional<ScheduledFrame> next(const std::stop_token& stop) override {
        const bool isFirst = !m_hasStarted;
        if (isFirst)
            m_reader.seek(m_range.start.ticks(), stop);
        m_hasStarted = true;
        if (m_isOver)
            return std::nullopt;
        for (;;) {
            auto source = m_reader.next(stop);
            if (!source || (!isFirst && source->ticks >= m_end))
                return std::nullopt;
            const DecodedFrame* following = m_reader.peek(stop, m_end);
            if (following && following->ticks <= source->ticks)
                continue;
            ScheduledFrame result;
            result.pts = isFirst ? 0 : std::max(m_nextPts, exportTime(source->time));
            const bool isLast = !following || following->ticks >= m_end;
            m_isOver = isLast;
            const std::int64_t end = isLast ? m_duration : exportTime(following->time);
            result.duration = std::max<std::int64_t>(end - result.pts, 1);
            result.frame = std::move(source->frame);
            m_nextPts = result.pts + 1;
            return result;
        }
    }

private:
    [[nodiscard]] std::int64_t exportTime(Time time) const {
        return (time - m_range.start).rescaled(m_timescale).value;
    }

    VideoReader& m_reader;
    TimeRange m_range;
    Ticks m_end;
    std::int32_t m_timescale;
    std::int64_t m_duration;
    std::int64_t m_expectedFrames = 0;
    std::int64_t m_nextPts = 0;
    bool m_hasStarted = false;
    bool m_isOver = false;
};

/// Finds the source picture at each of a sequence of ticks that never decrease.
class PictureSource {
public:
    PictureSource(VideoReader& reader, FrameSchedule::Neighbours neighbours)
        : m_reader(reader), m_keepsNeighbours(neighbours == FrameSchedule::Neighbours::decoded) {}

    /// The picture at that tick; null if the source has none at all.
    const DecodedFrame* moveTo(Ticks ticks, const std::stop_token& stop) {
        if (!m_keepsNeighbours) {
            m_reader.seek(ticks, stop);
            return m_reader.peek(stop);
        }
        if (!m_current)
            begin(ticks, stop);
        for (const DecodedFrame* following = m_reader.peek(stop, ticks);
             following && following->ticks <= ticks; following = m_reader.peek(stop, ticks)) {
            m_previous = std::move(m_current);
            m_current = m_reader.next(stop);
        }
        return m_current ? &*m_current : nullptr;
    }

    void addNeighbours(ScheduledFrame& frame, const std::stop_token& stop) {
        if (!m_keepsNeighbours)
            return;
        if (m_previous)
            frame.previous = ffmpeg::referenced(*m_previous->frame);
        const Ticks latest = m_current->ticks + kFarthestNeighbour;
        if (const DecodedFrame* following = m_reader.peek(stop, latest))
            frame.following = ffmpeg::referenced(*following->frame);
    }

private:
    void begin(Ticks ticks, const std::stop_token& stop) {
        m_reader.seek(ticks, stop);
        if (const DecodedFrame* first = m_reader.peek(stop))
            m_reader.seek(first->ticks - Ticks(1), stop);
        m_current = m_reader.next(stop);
    }

    VideoReader& m_reader;
    bool m_keepsNeighbours;
    /// Used only with neighbours; the following one is the reader's next.
    std::optional<DecodedFrame> m_previous;
    std::optional<DecodedFrame> m_current;
};

class ConstantRate final : public FrameSchedule {
public:
    ConstantRate(VideoReader& reader, const TimeRange& range, Time frameDuration,
                 Neighbours neighbours)
        : m_source(reader, neighbours),
          m_start(range.start),
          m_frameDuration(frameDuration),
          m_timescale(timescaleFor(frameDuration.timescale)),
          m_duration(range.duration().rescaled(m_timescale).value),
          m_step(frameDuration.rescaled(m_timescale).value) {}

    [[nodiscard]] AVRational timeBase() const override { return {1, m_timescale}; }

    [[nodiscard]] std::int64_t expectedFrames() const override {
        return std::max<std::int64_t>((m_duration + m_step - 1) / m_step, 1);
    }

    std::optional<ScheduledFrame> next(const std::stop_token& stop) override {
        if (m_number >= expectedFrames())
            return std::nullopt;
        const Time offset{m_frameDuration.value * m_number, m_frameDuration.timescale};
        const DecodedFrame* source = m_source.moveTo((m_start + offset).ticks(), stop);
        if (!source)
            return std::nullopt;
        ScheduledFrame result;
        result.pts = m_number * m_step;
        result.duration = std::min(m_step, std::max<std::int64_t>(m_duration - result.pts, 1));
        result.isRepeat = m_shown == source->ticks;
        result.frame = ffmpeg::referenced(*source->frame);
        if (ffmpeg::isInterlaced(*source->frame) && !result.isRepeat)
            m_source.addNeighbours(result, stop);
        m_shown = source->ticks;
        ++m_number;
        return result;
    }

private:
    PictureSource m_source;
    Time m_start;
    Time m_frameDuration;
    std::int32_t m_timescale;
    std::int64_t m_duration;
    std::int64_t m_step;
    std::int64_t m_number = 0;
    /// Which source frame was scheduled last.
    std::optional<Ticks> m_shown;
};

} // namespace

std::unique_ptr<FrameSchedule> FrameSchedule::sourceTiming(VideoReader& reader,
                                                           const CompositionTrack& track,
                                                           std::int32_t sourceTimescale) {
    return std::make_unique<SourceTiming>(reader, track, sourceTimescale);
}

std::unique_ptr<FrameSchedule> FrameSchedule::constantRate(VideoReader& reader,
                                                           const TimeRange& range,
                                                           Time frameDuration,
                                                           Neighbours neighbours) {
    return std::make_unique<ConstantRate>(reader, range, frameDuration, neighbours);
}

} // namespace media
