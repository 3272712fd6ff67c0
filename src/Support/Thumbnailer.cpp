#include "Support/Thumbnailer.h"

#include "Media/ImageGenerator.h"
#include "Support/ImageConversion.h"
#include "Support/NewestFirstLock.h"
#include "Support/Workers.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <optional>
#include <vector>

namespace brisklet::Thumbnailer {

namespace {

constexpr int kMaximumHeight = 120;
/// How far an image may be from the middle of its slice; in short videos it stays within the slice.
constexpr double kToleranceSeconds = 0.5;

/// How long one image may take before the strips of other videos no longer wait for it. An image of
/// a large video, far behind its key frame, takes some seconds while others want the processor too;
/// a disk that does not answer must not hold up the strips of files elsewhere.
constexpr std::chrono::seconds kLeaseDuration(10);

/// Strips made in parallel would all be ready only at the end. Never destroyed: workers may still
/// run when the process exits.
NewestFirstLock& stripLock() {
    static auto* const lock = new NewestFirstLock(kLeaseDuration);
    return *lock;
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
        std::optional<NewestFirstLock::Lease> lease = stripLock().acquire(stop);
        if (!lease)
            return images;
        const auto generator = media::ImageGenerator::make(asset);
        generator->setMaximumSize(0, kMaximumHeight);
        const media::Time tolerance = media::Time::fromSeconds(
            std::min(kToleranceSeconds, duration / count / 2), media::kComparisonTimescale);
        generator->setTolerance(tolerance, tolerance);
        std::vector<media::Time> times;
        times.reserve(static_cast<std::size_t>(count));
        for (int index = 0; index < count; ++index)
            times.push_back(middleOfSlice(index, duration, count));
        // A damaged spot must not hide the rest.
        for (media::Still& still : generator->images(
                 times, [&] { lease->renew(); }, stop)) {
            if (still.picture)
                images.append(toQImage(std::move(still.picture->image)));
        }
    } catch (const std::exception&) {
        // Without a generator there are no images; the timeline shows a placeholder.
        return images;
    }
    return images;
}

} // namespace brisklet::Thumbnailer
