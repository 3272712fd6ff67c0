#include "Media/ImageGenerator.h"

#include "Media/Error.h"
#include "Media/Pictures/PictureRenderer.h"
#include "Media/Reading/VideoReader.h"

#include <optional>

namespace media {

namespace {

AssetTrack firstVideoTrack(const Asset& asset) {
    std::vector<AssetTrack> tracks = asset.tracks(MediaType::video);
    if (tracks.empty())
        throw Error("The file contains no video track.");
    return std::move(tracks.front());
}

} // namespace

class ImageGenerator::Private {
public:
    explicit Private(std::shared_ptr<const Asset> source)
        : asset(std::move(source)), track(firstVideoTrack(*asset)), renderer(track) {}

    VideoReader& readerFor(VideoReader::Detail detail) {
        if (!reader || readerDetail != detail) {
            VideoReader::Options options;
            options.detail = detail;
            reader.emplace(asset, track, options);
            readerDetail = detail;
        }
        return *reader;
    }

    std::shared_ptr<const Asset> asset;
    AssetTrack track;
    PictureRenderer renderer;
    std::optional<VideoReader> reader;
    VideoReader::Detail readerDetail = VideoReader::Detail::full;
    int maximumWidth = 0;
    int maximumHeight = 0;
    Time before{0, kComparisonTimescale};
    Time after{0, kComparisonTimescale};
};

ImageGenerator::ImageGenerator(std::shared_ptr<const Asset> asset)
    : d(std::make_unique<Private>(std::move(asset))) {}

ImageGenerator::~ImageGenerator() = default;

void ImageGenerator::setMaximumSize(int width, int height) {
    d->maximumWidth = width;
    d->maximumHeight = height;
}

void ImageGenerator::setTolerance(Time before, Time after) {
    d->before = before;
    d->after = after;
}

TimedImage ImageGenerator::image(Time time, std::stop_token stop) {
    if (!time.isNumeric())
        throw Error("There is no picture at this time.");
    const Ticks ticks = time.ticks();
    const Ticks earliest = ticks - d->before.ticks();
    const Ticks latest = ticks + d->after.ticks();
    const bool isExact = earliest == latest;
    VideoReader& reader =
        d->readerFor(isExact ? VideoReader::Detail::full : VideoReader::Detail::thumbnail);
    bool isThere = true;
    if (isExact)
        reader.seek(ticks, stop);
    else
        isThere = reader.seekNear(earliest, latest, stop);
    const DecodedFrame* frame = isThere ? reader.peek(stop) : nullptr;
    if (!frame)
        throw Error("There is no picture at this time.");
    return {d->renderer.render(*frame->frame, d->maximumWidth, d->maximumHeight), frame->time};
}

} // namespace media
