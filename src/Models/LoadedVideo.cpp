#include "Models/LoadedVideo.h"

#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"

#include <cmath>

namespace brisklet {

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

QCoro::Task<LoadedVideo> openVideo(const QUrl& url, const std::stop_token& stop) {
    return runOnWorker([path = pathOf(url), stop] { return loadVideo(path, stop); });
}

} // namespace brisklet
