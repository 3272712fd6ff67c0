#include "Media/Export/TrialFigures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace media {

namespace {

/// What an export takes however short it is: decoders and encoders are opened, the file is checked
/// and brought to disk. Seconds.
constexpr double kConstantSeconds = 0.006;
/// What is lost until all stages work: up to so many seconds, of which short exports see a part.
constexpr double kRampSeconds = 0.05;
/// How much of the processors an export keeps busy.
constexpr double kUtilisation = 0.92;

template<typename Value>
double sum(const std::vector<TrialPlace>& places, Value TrialPlace::*member) {
    return std::accumulate(places.begin(), places.end(), 0.0,
                           [member](double total, const TrialPlace& place) {
                               return total + static_cast<double>(place.*member);
                           });
}

double pictureBytes(const TrialFigures& figures) {
    const auto& places = figures.places;
    const double keyBytes = sum(places, &TrialPlace::keyBytes);
    const double laterBytes = sum(places, &TrialPlace::laterBytes);
    if (figures.isWhole)
        return keyBytes + laterBytes;
    const double laterSeconds = sum(places, &TrialPlace::laterSeconds);
    const double keySize = keyBytes / static_cast<double>(places.size());
    if (laterSeconds <= 0)
        return keySize * figures.pictures;
    const double rate = laterBytes / laterSeconds;
    return figures.keyFrames * keySize + rate * figures.seconds;
}

double soundBytes(const TrialFigures& figures) {
    const TrialSound& sound = figures.sound;
    return sound.seconds > 0 ? static_cast<double>(sound.bytes) / sound.seconds * figures.seconds
                             : 0;
}

double duration(const TrialFigures& figures) {
    const TrialSound& sound = figures.sound;
    const double soundSeconds =
        sound.seconds > 0 ? sound.processorSeconds / sound.seconds * figures.seconds : 0;
    const double pictures = figures.pictures;
    const double all =
        pictures * (figures.decodeSeconds + figures.transformSeconds + figures.encodeSeconds) +
        soundSeconds;
    const double longestStage =
        std::max(pictures * figures.transformSeconds / figures.makers, soundSeconds / sound.tracks);
    const double work = std::max(all / (figures.processors * kUtilisation), longestStage);
    return kConstantSeconds + kRampSeconds * (1 - std::exp(-work / kRampSeconds)) + work;
}

} // namespace

ExportForecast extrapolated(const TrialFigures& figures) {
    return {.bytes = std::llround(pictureBytes(figures) + soundBytes(figures)) + figures.indexBytes,
            .seconds = duration(figures)};
}

} // namespace media
