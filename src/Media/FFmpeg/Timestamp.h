#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/Time.h"

#include <compare>
#include <cstdint>
#include <optional>

namespace media::ffmpeg {

/// A moment on a stream's own clock, counted in the stream's time base, as packets, frames and
/// indexes carry it. That there is none (AV_NOPTS_VALUE) is an empty optional. A value type, usable
/// on any thread.
class Timestamp {
public:
    constexpr Timestamp() = default;

    explicit constexpr Timestamp(std::int64_t value) : m_value(value) {}

    /// As libav states one.
    static constexpr std::optional<Timestamp> stated(std::int64_t value) {
        return value == AV_NOPTS_VALUE ? std::nullopt : std::optional(Timestamp(value));
    }

    [[nodiscard]] constexpr std::int64_t value() const { return m_value; }

    /// By a duration in the same time base; stops at the ends of the range.
    [[nodiscard]] Timestamp advancedBy(std::int64_t duration) const {
        return Timestamp(av_sat_add64(m_value, duration));
    }

    friend constexpr auto operator<=>(Timestamp, Timestamp) = default;

private:
    std::int64_t m_value = 0;
};

/// As libav wants it: AV_NOPTS_VALUE for none.
constexpr std::int64_t valueOf(std::optional<Timestamp> timestamp) {
    return timestamp ? timestamp->value() : AV_NOPTS_VALUE;
}

inline std::optional<Timestamp> ptsOf(const AVPacket& packet) {
    return Timestamp::stated(packet.pts);
}

inline std::optional<Timestamp> dtsOf(const AVPacket& packet) {
    return Timestamp::stated(packet.dts);
}

/// Where the frame states none, what the decoder makes of the packets' timestamps.
inline std::optional<Timestamp> ptsOf(const AVFrame& frame) {
    return Timestamp::stated(frame.pts != AV_NOPTS_VALUE ? frame.pts : frame.best_effort_timestamp);
}

/// In container time. A timestamp that no time can hold, as only damaged files have it, is the
/// nearest that one can.
Time timeOf(Timestamp timestamp, AVRational timeBase);

/// The one nearest to a container time, halves away from zero.
Timestamp nearestTimestamp(Time time, AVRational timeBase);

} // namespace media::ffmpeg
