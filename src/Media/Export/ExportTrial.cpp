#include "Media/Export/ExportTrial.h"

#include "Media/Error.h"
#include "Media/Export/AudioPipeline.h"
#include "Media/Export/PictureTrial.h"
#include "Media/Export/TrialBudget.h"
#include "Media/Export/TrialFigures.h"
#include "Media/FFmpeg/Muxer.h"
#include "Media/Threading/Processors.h"
#include "Media/Threading/ThreadName.h"
#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace media {

namespace {

/// Behind everything else.
constexpr int kTrialNiceness = 19;
/// Processor time, seconds: of all; until when the sound may go on; and when the pictures end. What
/// is left is for the picture that is being encoded then and for what the encoder holds back.
constexpr double kBudget = 1.3;
constexpr double kSoundEnd = 0.15;
constexpr double kPicturesEnd = 1.2;

/// Where the sound is tried, as fractions of the range, and for how long, in seconds: long enough
/// that what each place costs before its first sample, which an export pays once, hardly counts.
constexpr std::array kSoundPlaces = {0.5, 0.1, 0.9, 0.3, 0.7};
constexpr double kSoundSeconds = 1;

/// A stretch of the range that begins at that fraction of what is left beside it.
TimeRange stretch(const TimeRange& range, double place, double seconds) {
    const double length = std::min(seconds, range.duration().seconds());
    const double start = range.start.seconds() + place * (range.duration().seconds() - length);
    const Time begin = Time::fromSeconds(start, kComparisonTimescale);
    return {begin, begin + Time::fromSeconds(length, kComparisonTimescale)};
}

/// One trial of one export.
class Trial {
public:
    Trial(const Composition& composition, const std::optional<VideoComposition>& videoComposition,
          const EncoderSettings& settings, const std::stop_token& stop)
        : m_composition(composition),
          m_videoComposition(videoComposition),
          m_settings(settings),
          m_budget(stop, kBudget) {}

    std::optional<ExportForecast> run() {
        m_figures.seconds = m_composition.videoTrack->range.duration().seconds();
        m_figures.processors = processorCount();
        try {
            for (const double place : kSoundPlaces)
                trySound(place);
        } catch (const Cancelled&) {
            m_budget.expectWanted();
        }
        tryPictures();
        m_budget.expectWanted();
        if (m_figures.places.empty())
            return std::nullopt;
        return extrapolated(m_figures);
    }

private:
    void trySound(double place) {
        TrialSound sound;
        double tried = 0;
        std::int64_t packets = 0;
        for (const CompositionTrack& track : m_composition.audioTracks) {
            if (m_budget.used() > kSoundEnd)
                break;
            packets += tryTrack(track, place, sound);
            ++tried;
        }
        if (tried == 0)
            return;
        // Tracks that there is no time for count as the others.
        const double share = static_cast<double>(m_composition.audioTracks.size()) / tried;
        m_figures.sound.bytes += std::llround(static_cast<double>(sound.bytes) * share);
        m_figures.sound.processorSeconds += sound.processorSeconds * share;
        m_figures.sound.seconds += sound.seconds;
        m_figures.sound.tracks = static_cast<int>(m_composition.audioTracks.size());
        m_soundPackets = std::llround(static_cast<double>(packets) * share);
    }

    /// Gives the number of packets that the whole range will have.
    std::int64_t tryTrack(const CompositionTrack& track, double place, TrialSound& sound) {
        CompositionTrack part = track;
        part.range = stretch(track.range, place, kSoundSeconds);
        AudioPipeline pipeline(m_composition, part, m_budget.token());
        const double before = m_budget.used();
        pipeline.run();
        sound.processorSeconds += m_budget.used() - before;
        while (const auto packet = pipeline.output().packets.pop())
            sound.bytes += (*packet)->size;
        sound.seconds = part.range.duration().seconds();
        return std::llround(static_cast<double>(pipeline.packets()) * m_figures.seconds /
                            sound.seconds);
    }

    void tryPictures() {
        PictureTrial pictures(m_composition, m_videoComposition, m_settings, m_budget,
                              kPicturesEnd);
        pictures.run(m_figures);
        const auto tracks = static_cast<std::int64_t>(m_composition.audioTracks.size());
        m_figures.indexBytes =
            ffmpeg::indexBytes(pictures.expectedPackets() + m_soundPackets, tracks + 1);
    }

    const Composition& m_composition;
    const std::optional<VideoComposition>& m_videoComposition;
    const EncoderSettings& m_settings;
    TrialBudget m_budget;
    TrialFigures m_figures;
    std::int64_t m_soundPackets = 0;
};

} // namespace

std::optional<ExportForecast> runTrial(const Composition& composition,
                                       const std::optional<VideoComposition>& videoComposition,
                                       const EncoderSettings& settings,
                                       const std::stop_token& stop) {
    if (!composition.asset || !composition.videoTrack)
        throw Error(ErrorKind::nothingToExport);
    std::optional<ExportForecast> forecast;
    runStandingBack(kTrialNiceness, [&] {
        const ThreadName name("forecast");
        forecast = Trial(composition, videoComposition, settings, stop).run();
    });
    return forecast;
}

} // namespace media
