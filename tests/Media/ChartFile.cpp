#include "Media/ChartFile.h"

#include "Media/Reading/VideoReader.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

namespace media::test {

namespace {

std::string planesOf(const AVFrame& frame) {
    const auto* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const int sampleBytes = format->comp[0].depth > 8 ? 2 : 1;
    std::string bytes;
    for (int plane = 0; plane < format->nb_components; ++plane) {
        for (int y = 0; y < planeHeight(frame, plane); ++y) {
            const auto* line = reinterpret_cast<const char*>(
                frame.data[plane] + std::ptrdiff_t{y} * frame.linesize[plane]);
            bytes.append(line, static_cast<std::size_t>(planeWidth(frame, plane) * sampleBytes));
        }
    }
    return bytes;
}

} // namespace

std::filesystem::path chartFile(const std::string& name, const AVFrame& frame, int count,
                                const std::vector<std::string>& tags) {
    return testsupport::cachedMedia(name, [&](const std::filesystem::path& path) {
        const std::string format = av_get_pix_fmt_name(static_cast<AVPixelFormat>(frame.format));
        std::vector<std::string> command = {"ffmpeg", "-v", "error",    "-f",   "rawvideo",
                                            "-s",     "",   "-pix_fmt", format, "-r",
                                            "10",     "-i", "-",        "-c:v", "ffv1"};
        command[6] = std::to_string(frame.width) + "x" + std::to_string(frame.height);
        command.insert(command.end(), tags.begin(), tags.end());
        command.push_back(path.string());
        int sent = 0;
        testsupport::ProcessOptions options;
        options.input = [&] { return sent++ < count ? planesOf(frame) : std::string(); };
        testsupport::runProcessOrThrow(command, options);
    });
}

std::vector<ffmpeg::FramePtr> decodedFrames(const std::filesystem::path& path, int count) {
    const auto asset = Asset::open(path);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    std::vector<ffmpeg::FramePtr> frames;
    while (static_cast<int>(frames.size()) < count) {
        auto frame = reader.next();
        if (!frame)
            break;
        frames.push_back(std::move(frame->frame));
    }
    return frames;
}

} // namespace media::test
