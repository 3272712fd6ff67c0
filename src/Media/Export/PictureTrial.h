#pragma once

#include "Media/Export/PicturePath.h"
#include "Media/Export/TrialFigures.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace media {

class TrialBudget;

/// Encodes some of an export's pictures at several places of its range, each beginning with a key
/// frame, by one encoder, on the calling thread.
class PictureTrial {
public:
    /// Opens decoder and encoder, each with one thread. Throws Error. `budget` outlives this;
    /// `end`: how much of it may be used up when the last picture is begun, seconds.
    PictureTrial(const Composition& composition,
                 const std::optional<VideoComposition>& videoComposition,
                 const EncoderSettings& settings, const TrialBudget& budget, double end);

    /// Adds what it measures to `figures`. Throws Error.
    void run(TrialFigures& figures);

    /// How many packets the index has room for.
    [[nodiscard]] std::int64_t expectedPackets() const { return m_expected; }

private:
    /// The pictures of one place, on the trial's own time line, in the encoder's time base.
    struct Stretch {
        std::int64_t begin = 0;
        std::int64_t end = 0;
        int pictures = 0;
        /// The last picture of the place is among them.
        bool hasEnded = false;
    };

    void tryPlaces();
    /// Whether so few pixels might be encoded whole.
    [[nodiscard]] bool mayBeWhole();
    /// Whether it seems so now that some have been encoded.
    [[nodiscard]] bool fitsWhole();
    /// Part of the range around this fraction of it, beginning at a picture that is cheap to
    /// decode; none if nothing there decodes.
    std::optional<TimeRange> placeAt(double middle);
    void begin(const TimeRange& place);

    [[nodiscard]] Stretch& stretch() { return m_stretches.back(); }

    /// Encodes pictures until so much of the budget is used, or to the end of the place.
    void tryUntil(double end);
    /// The next one; false after the last.
    bool tryNext();
    bool beginsTail(const ScheduledFrame& frame);
    /// How much of the budget is used once the encoder has put out what it holds back.
    [[nodiscard]] double expectedUse() const;
    void receive();
    /// Of the range, by the nominal rate; and the processor time for one of them, so far.
    [[nodiscard]] double pictures() const;
    [[nodiscard]] double secondsEach() const;
    void addTo(TrialFigures& figures);

    TimeRange m_range;
    const TrialBudget& m_budget;
    double m_end;
    PicturePath m_path;
    PictureMaker m_maker{m_path.making()};
    std::int64_t m_expected = 0;
    /// Pictures per second.
    double m_rate = 0;
    /// Where the last key frame is due; empty once it has been asked for.
    std::optional<std::int64_t> m_tailStart;
    std::unique_ptr<FrameSchedule> m_schedule;
    /// The latest picture as the encoder gets it.
    ffmpeg::FramePtr m_shown;
    std::vector<Stretch> m_stretches;
    /// How long pictures are shown, and the sizes of their packets, by pts.
    std::map<std::int64_t, std::int64_t> m_durations;
    std::map<std::int64_t, std::int64_t> m_packets;
    /// Processor time; that of decoding without the first picture of each place.
    double m_decodeSeconds = 0;
    double m_transformSeconds = 0;
    double m_encodeSeconds = 0;
    int m_decoded = 0;
};

} // namespace media
