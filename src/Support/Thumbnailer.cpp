#include "Support/Thumbnailer.h"

#include "Media/ImageGenerator.h"
#include "Support/ImageConversion.h"
#include "Support/Turns.h"
#include "Support/Workers.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <optional>

namespace brisklet::Thumbnailer {

namespace {

constexpr int kMaximumHeight = 120;
/// How far an image may lie from the middle of its slice; in short videos it stays within the
/// slice.
constexpr double kToleranceSeconds = 0.5;

/// Strips made at once would all be done at the end only. One image of a large video, a long way
/// behind its key frame, takes some seconds where others want the processor too; a disk that does
/// not answer holds up no other video's strip for longer than this.
constexpr std::chrono::seconds kPatience(10);

/// Never destroyed: workers may be under way when the process ends in a hurry.
Turns& turns() {
    static Turns* const strips = new Turns(kPatience);
    return *strips;
}

media::Time middleOfSlice(int index, double duration, int count) {
    return media::Time::fromSeconds((index + 0.5) * duration / count, media::kComparisonTimescale);
}

} // namespace

QCoro::Task<QList<QImage>> filmstrip(const std::shared_ptr<const media::Asset>& asset,
                                     double duration, int count, const std::stop_token& stop) {
    return runOnWorker(
        [asset, duration, count, stop] { return makeFilmstrip(asset, duration, count, stop); });
}

QList<QImage> makeFilmstrip(const std::shared_ptr<const media::Asset>& asset, double duration,
                            int count, const std::stop_token& stop) {
    QList<QImage> images;
    if (duration <= 0 || count < 1)
        return images;
    try {
        std::optional<Turns::Turn> turn = turns().take(stop);
        if (!turn)
            return images;
        const auto generator = media::ImageGenerator::make(asset);
        generator->setMaximumSize(0, kMaximumHeight);
        const media::Time tolerance = media::Time::fromSeconds(
            std::min(kToleranceSeconds, duration / count / 2), media::kComparisonTimescale);
        generator->setTolerance(tolerance, tolerance);
        for (int index = 0; index < count && !stop.stop_requested(); ++index) {
            try {
                const media::Time time = middleOfSlice(index, duration, count);
                images.append(toQImage(generator->image(time, stop).image));
            } catch (const std::exception&) {
                // The strip goes on without this image: a damaged spot must not hide the rest.
            }
            turn->renew();
        }
    } catch (const std::exception&) {
        // No generator, no images: the timeline does without.
        return images;
    }
    return images;
}

} // namespace brisklet::Thumbnailer
