#pragma once

#include "Media/Reading/DecodingRun.h"

#include <optional>
#include <stop_token>

namespace media {

/// Decides where decoding begins: at which key frame, and whether it is worth beginning anew at
/// all. Use from one thread.
class KeyFrameSearch final {
public:
    /// `demuxer` and `run` outlive it.
    KeyFrameSearch(int streamIndex, const TrackClock& clock, ffmpeg::Demuxer& demuxer,
                   DecodingRun& run);

    /// When the last key frame is decoded that the container's index knows at or before `ticks`.
    [[nodiscard]] std::optional<Ticks> keyFrameBefore(Ticks ticks) const;

    /// Whether the container's index knows a key frame that is decoded between the two (both
    /// included).
    [[nodiscard]] bool hasKeyFrameWithin(Ticks earliest, Ticks latest) const;

    /// Whether the frame at `ticks` is among those ahead or best reached by decoding on: no key
    /// frame further than `shortestLeap` beyond where decoding stands leads to it.
    [[nodiscard]] bool isReachedByDecodingOn(Ticks ticks, Ticks shortestLeap) const;

    /// Begins decoding at the last random-access point that the container knows at or before
    /// `ticks`, or, where its first picture is shown after `latest`, at an earlier one; at the
    /// track's first picture where there is none. Throws Error; Cancelled.
    void beginAt(Ticks ticks, Ticks latest, const std::stop_token& stop);

private:
    /// What one try begins with and what it has to achieve.
    struct Attempt {
        /// Decoding begins at the random-access point before this tick.
        Ticks from;
        /// It is in time if the first picture that comes out begins by then.
        Ticks latest;
        /// It is given up when none has come by then: from there on, it is known, none comes in
        /// time.
        Ticks vainFrom;
    };

    enum class Landing { refused, inTime, tooLate };

    Landing land(const Attempt& attempt, const std::stop_token& stop);
    bool landBySteppingBack(Ticks ticks, Ticks latest, const std::stop_token& stop);
    void landAsLateAsPossible(Attempt inTime, const std::stop_token& stop);

    int m_streamIndex;
    TrackClock m_clock;
    ffmpeg::Demuxer& m_demuxer;
    DecodingRun& m_run;
};

} // namespace media
