// The frame that opening a file decodes, and what is found out with it.
#include "Media/Mp4Boxes.h"
#include "Media/Playback/PlayerStage.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Reading/VideoReader.h"
#include "Media/Threading/ProcessorDemand.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <span>
#include <sstream>
#include <string>
#include <vector>

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace media {
namespace {

using testsupport::cachedMedia;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

/// The samples of the first component, which is enough to tell numbered pictures apart.
std::string samplesOf(const AVFrame& frame) {
    const AVPixFmtDescriptor* format =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const auto width = static_cast<std::size_t>(frame.width * (format->comp[0].depth > 8 ? 2 : 1));
    std::string samples;
    for (int y = 0; y < frame.height; ++y) {
        const std::uint8_t* row = frame.data[0] + std::ptrdiff_t{y} * frame.linesize[0];
        samples.append(reinterpret_cast<const char*>(row), width);
    }
    return samples;
}

/// The frame that was decoded when the file was opened is the one that a reader comes to. Whether
/// there is one.
bool expectReadersFrame(const std::filesystem::path& path) {
    SCOPED_TRACE(path.filename().string());
    const auto asset = OpenedAsset::open(path);
    const auto tracks = asset->tracks(MediaType::video);
    const auto first = asset->takeFirstFrame();
    EXPECT_EQ(asset->takeFirstFrame(), nullptr) << "only once";
    if (!first)
        return false;
    VideoReader reader(asset, tracks.at(0));
    const auto frame = reader.next();
    const DecodedFrame* second = reader.peek();
    if (!frame || !second || !first->knownEnd) {
        ADD_FAILURE() << "a frame is missing";
        return true;
    }
    EXPECT_EQ(first->time, frame->time);
    EXPECT_EQ(first->ticks, frame->ticks);
    EXPECT_EQ(*first->knownEnd, second->ticks);
    EXPECT_EQ(samplesOf(*first->frame), samplesOf(*frame->frame));
    return true;
}

TEST(FirstFrame, isThatOfAReaderWhateverTheFile) {
    std::vector<Recipe> recipes;
    for (const int bFrames : {0, 2}) {
        for (const char* container : {"mp4", "mkv", "ts"})
            recipes.push_back({.container = container, .duration = 1, .bFrames = bFrames});
    }
    recipes.push_back({.codec = VideoCodec::hevcTenBit, .container = "mov", .duration = 1});
    recipes.push_back({.codec = VideoCodec::vp9, .container = "webm", .duration = 1});
    recipes.push_back({.codec = VideoCodec::mjpeg, .container = "mov", .duration = 1});
    recipes.push_back({.codec = VideoCodec::proRes, .container = "mov", .duration = 1});
    recipes.push_back({.duration = 1, .hasVariableFrameRate = true, .audioStart = 0.2});
    recipes.push_back({.container = "mkv", .duration = 1, .startOffset = 3.7});
    // libav does not know how its pictures are reordered when it reads the first of them.
    recipes.push_back({.codec = VideoCodec::hevc,
                       .container = "mkv",
                       .frameRate = {30000, 1001},
                       .duration = 2,
                       .groupOfPictures = 250,
                       .isOpenGroup = true,
                       .startOffset = 3.7});
    for (const Recipe& recipe : recipes)
        EXPECT_TRUE(expectReadersFrame(makeFixture(recipe).path)) << recipe.fileName();
}

TEST(FirstFrame, isNotGivenOutWhereItIsNotCertain) {
    // Pictures that are decoded after the first may be shown before it.
    expectReadersFrame(makeFixture({.duration = 1, .isOpenGroup = true}).path);
    expectReadersFrame(
        makeFixture({.codec = VideoCodec::hevc, .duration = 1, .isOpenGroup = true}).path);
    expectReadersFrame(
        makeFixture({.codec = VideoCodec::mpeg2, .container = "ts", .duration = 1}).path);
    expectReadersFrame(
        makeFixture(
            {.codec = VideoCodec::mpeg4, .container = "avi", .duration = 1, .audioTracks = 0})
            .path);
    const auto interlaced =
        cachedMedia("first-frame-fields.mp4",
                    {"-f", "lavfi", "-i", "testsrc2=s=320x240:r=50:d=1", "-vf", "interlace", "-c:v",
                     "libx264", "-pix_fmt", "yuv420p", "-flags", "+ilme+ildct"});
    expectReadersFrame(interlaced);
}

TEST(FirstFrame, isThatOfAReaderInRealFiles) {
    int found = 0;
    for (const char* name :
         {"mov-iphone6s-rot90-h264-timedmeta.mov", "mov-iphone14-rot90-hevc10-hlg-dovi.mov",
          "mp4-android-rot90-h264-720p.mp4", "mp4-h264-two-sample-descriptions.mp4",
          "mp4-corrupt-frames.mp4", "mp4-editlist-video-starts-1s-after-audio.mp4",
          "mts-avchd-1080i50-ac3-pgs.mts", "ts-h264-hlg-square-60fps-start10.ts",
          "mp4-portrait-120fps-vfr.mp4", "webm-av1-opus-negative-start-30s.webm"}) {
        const auto path = testsupport::sampleMedia(name);
        if (!path)
            GTEST_SKIP() << "the samples are not there";
        found += expectReadersFrame(*path) ? 1 : 0;
    }
    EXPECT_GT(found, 4);
}

/// Story: a picture was decoded by libav when it looked for the stream's format, again to prove
/// that the file can be opened, and a third time, with those behind it, to be shown.
TEST(FirstFrame, isShownWithoutBeingDecodedAgain) {
    // Nothing is read ahead meanwhile.
    const ProcessorDemand demand;
    for (const char* container : {"mp4", "ts"}) {
        SCOPED_TRACE(container);
        PlayerStage stage;
        stage.load(makeFixture({.container = container, .duration = 1, .audioTracks = 0}).path);
        EXPECT_EQ(stage.sink.number(), 0);
        EXPECT_EQ(stage.player->statistics().decoded, 0U);
        stage.player->step(1);
        ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() == 1; }));
    }
}

/// Replaces a number of two bytes in the description of the picture of an MP4 file.
std::filesystem::path withWidth(const std::filesystem::path& source, std::size_t width,
                                const testsupport::TemporaryFolder& folder) {
    std::ifstream input(source, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(input), {}};
    const auto description =
        testsupport::findBox(bytes, {"moov", "trak", "mdia", "minf", "stbl", "stsd"});
    // ISO/IEC 14496-12, 8.5.2 and 12.1.3: behind the headers of the table and of its first entry.
    constexpr std::size_t kWidth = 16 + 8 + 24;
    bytes.replace(description->offset + kWidth, 2, testsupport::bigEndian(width).substr(2));
    const auto path = folder.path() / "other-width.mp4";
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

TEST(FirstFrame, correctsWhatTheHeadersSay) {
    const testsupport::TemporaryFolder folder;
    const auto path = withWidth(makeFixture({.duration = 1, .audioTracks = 0}).path, 1234, folder);
    const auto tracks = Asset::open(path)->tracks(MediaType::video);
    EXPECT_EQ(tracks.at(0).codedWidth, 320);
    EXPECT_EQ(tracks.at(0).naturalSize, (Size{320, 240}));
}

} // namespace
} // namespace media
