#include "Models/LoadedVideo.h"

#include "Media/Error.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "Support/Workers.h"

#include <cmath>
#include <filesystem>
#include <future>
#include <utility>

namespace brisklet {

namespace {

/// A video that is being opened, or was, before anybody asked for it.
struct VideoAhead {
    QUrl url;
    std::shared_future<LoadedVideo> video;
    std::stop_source stop;
};

std::optional<VideoAhead>& videoAhead() {
    static std::optional<VideoAhead> ahead;
    return ahead;
}

} // namespace

LoadedVideo loadVideo(const std::filesystem::path& path, const std::stop_token& stop) {
    LoadedVideo video;
    const auto before = identityOf(path);
    video.asset = media::Asset::open(path, stop);
    const auto after = identityOf(path);
    if (before && after && before->isSameFileAs(*after))
        video.identity = *after;
    video.duration = video.asset->duration().seconds();
    const auto tracks = video.asset->tracks(media::MediaType::video);
    if (!tracks.empty()) {
        video.displaySize = media::orientedSize(tracks.front());
        const auto rate = static_cast<double>(tracks.front().nominalFrameRate);
        if (rate > 0 && std::isfinite(rate))
            video.frameDuration = 1 / rate;
        video.frameNumbers = FrameNumbers(tracks.front());
    }
    video.maxNameBytes = maxNameBytesIn(path.parent_path());
    return video;
}

void openVideoAhead(const QUrl& url) {
    verifyMainThread();
    VideoAhead ahead{.url = url, .video = {}, .stop = {}};
    const auto task = std::make_shared<std::packaged_task<LoadedVideo()>>(
        [path = pathOf(url), stop = ahead.stop.get_token()] { return loadVideo(path, stop); });
    ahead.video = task->get_future().share();
    try {
        startWorker([task] { (*task)(); });
    } catch (const media::Error&) {
        // openVideo() begins anew, and tells if that fails too.
        return;
    }
    videoAhead() = std::move(ahead);
}

QCoro::Task<LoadedVideo> openVideo(const QUrl& url, const std::stop_token& stop) {
    if (videoAhead() && videoAhead()->url == url) {
        const VideoAhead ahead = *std::exchange(videoAhead(), std::nullopt);
        return runOnWorker([ahead, stop] {
            const std::stop_callback stopOpening(stop, [&ahead] {
                auto source = ahead.stop;
                source.request_stop();
            });
            return ahead.video.get();
        });
    }
    return runOnWorker([path = pathOf(url), stop] { return loadVideo(path, stop); });
}

} // namespace brisklet
