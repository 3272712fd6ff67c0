#include "Media/Pictures/DecodingImageGenerator.h"

#include "Media/Error.h"

#include <utility>

namespace media {

namespace {

AssetTrack firstVideoTrack(const Asset& asset) {
    std::vector<AssetTrack> tracks = asset.tracks(MediaType::video);
    if (tracks.empty())
        throw Error(ErrorKind::noVideoTrack);
    return std::move(tracks.front());
}

} // namespace

DecodingImageGenerator::DecodingImageGenerator(std::shared_ptr<const Asset> asset)
    : m_asset(std::move(asset)), m_track(firstVideoTrack(*m_asset)), m_renderer(m_track) {}

void DecodingImageGenerator::setMaximumSize(int width, int height) {
    m_maximumWidth = width;
    m_maximumHeight = height;
}

void DecodingImageGenerator::setTolerance(Time before, Time after) {
    m_before = before;
    m_after = after;
}

TimedImage DecodingImageGenerator::image(Time time, std::stop_token stop) {
    if (!time.isNumeric())
        throw Error(ErrorKind::noPictureAtThisTime);
    const Ticks ticks = time.ticks();
    const Ticks earliest = ticks - m_before.ticks();
    const Ticks latest = ticks + m_after.ticks();
    const bool isExact = earliest == latest;
    VideoReader& reader =
        readerFor(isExact ? VideoReader::Detail::full : VideoReader::Detail::thumbnail);
    bool isThere = true;
    if (isExact)
        reader.seek(ticks, stop);
    else
        isThere = reader.seekNear(earliest, latest, stop);
    const DecodedFrame* frame = isThere ? reader.peek(stop) : nullptr;
    if (!frame)
        throw Error(ErrorKind::noPictureAtThisTime);
    return {m_renderer.render(*frame->frame, m_maximumWidth, m_maximumHeight), frame->time};
}

VideoReader& DecodingImageGenerator::readerFor(VideoReader::Detail detail) {
    if (!m_reader || m_readerDetail != detail) {
        VideoReader::Options options;
        options.detail = detail;
        m_reader.emplace(m_asset, m_track, options);
        m_readerDetail = detail;
    }
    return *m_reader;
}

} // namespace media
