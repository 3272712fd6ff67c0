#include "Media/Pictures/DecodingImageGenerator.h"

#include "Media/Error.h"
#include "Media/Pictures/StillQueue.h"
#include "Media/Threading/Processors.h"
#include "Media/Threading/ThreadName.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <utility>

namespace media {

namespace {

/// More gain little, and each holds the pictures that its decoder refers to.
constexpr int kMostGenerators = 4;
/// Of the pictures of all decoders at work: two of 3840 × 2160.
constexpr std::int64_t kMostPixelsAtOnce = std::int64_t{2} * 3840 * 2160;

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

std::vector<Still> DecodingImageGenerator::images(const std::vector<Time>& times,
                                                  const std::function<void()>& onStill,
                                                  std::stop_token stop) {
    const int count = generatorsFor(times.size());
    StillQueue queue(times, count, onStill);
    if (count <= 1) {
        queue.work(*this, 0, stop);
        return queue.take(stop);
    }
    // One decoder on all processors waits for itself: the pictures between two stills depend on
    // each other, and its threads run dry at each.
    const int threads = std::max(1, processorCount() / count);
    std::vector<std::unique_ptr<DecodingImageGenerator>> generators;
    generators.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        generators.push_back(another(threads));
    {
        std::vector<std::jthread> helpers;
        try {
            for (int i = 1; i < count; ++i) {
                helpers.emplace_back([&, i] {
                    const ThreadName name("stills");
                    queue.work(*generators[static_cast<std::size_t>(i)], i, stop);
                });
            }
        } catch (const std::system_error&) {
            // The system starts no more threads: those that there are make all stills.
        }
        queue.work(*generators.front(), 0, stop);
    }
    return queue.take(stop);
}

int DecodingImageGenerator::generatorsFor(std::size_t count) const {
    const Size size = m_track.naturalSize;
    const auto pixels = static_cast<std::int64_t>(std::max(size.width * size.height, 1.0));
    // One more than processors, since their parts are not of equal length.
    const auto wanted = std::min<std::int64_t>(kMostPixelsAtOnce / pixels, kMostGenerators);
    return static_cast<int>(
        std::min<std::int64_t>({wanted, processorCount() + 1, static_cast<std::int64_t>(count)}));
}

std::unique_ptr<DecodingImageGenerator> DecodingImageGenerator::another(int threads) const {
    auto generator = std::make_unique<DecodingImageGenerator>(m_asset);
    generator->m_threads = threads;
    generator->m_maximumWidth = m_maximumWidth;
    generator->m_maximumHeight = m_maximumHeight;
    generator->m_before = m_before;
    generator->m_after = m_after;
    return generator;
}

VideoReader& DecodingImageGenerator::readerFor(VideoReader::Detail detail) {
    if (!m_reader || m_readerDetail != detail) {
        VideoReader::Options options;
        options.detail = detail;
        options.threads = m_threads;
        m_reader.emplace(m_asset, m_track, options);
        m_readerDetail = detail;
    }
    return *m_reader;
}

} // namespace media
