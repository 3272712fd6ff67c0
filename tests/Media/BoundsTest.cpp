#include "Media/ChildProcess.h"
#include "Media/ExportFixture.h"
#include "Media/FFmpeg/PrevailingRate.h"
#include "Media/FFmpeg/Timecode.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <limits>
#include <sys/resource.h>

/// What a file can cost: made-up and damaged ones end in an answer after a bounded amount of work.
namespace media {
namespace {

using testsupport::bigEndian;
using testsupport::makeBox;
using testsupport::makeFixture;
using testsupport::replaceBox;
using testsupport::TemporaryFolder;

constexpr auto kNoPicture = "Not one picture in this file can be decoded.";

constexpr int kRate = 30;

std::string openError(const std::filesystem::path& path) {
    return errorOf([&] { static_cast<void>(Asset::open(path)); });
}

/// Read by what the container states, and by what libav finds out itself.
class LargePicture : public testing::TestWithParam<const char*> {};

TEST_P(LargePicture, isNotDecodedBeyondWhatAnyStandardAllows) {
    const auto path =
        testsupport::cachedMedia(std::string("large-picture.") + GetParam(),
                                 {"-f", "lavfi", "-i", "color=s=16000x9000:r=1:d=1,format=gray",
                                  "-c:v", "png", "-pred", "none", "-compression_level", "1"});
    EXPECT_EQ(openError(path), kNoPicture);
}

INSTANTIATE_TEST_SUITE_P(Containers, LargePicture, testing::Values("mov", "avi"),
                         [](const auto& container) { return container.param; });

/// A sample table of 700 bytes claimed 80 million samples of a byte each, for which libav filled
/// 1.9 GB and we copied a part.
TEST(Bounds, anIndexOfMoreSamplesThanAnyVideoHasIsNotFilled) {
    const TemporaryFolder folder;
    std::string bytes = contentsOf(makeFixture({.audioTracks = 0}).path);
    ASSERT_LT(bytes.find("mdat"), bytes.find("moov"));
    constexpr std::size_t kSamples = 80'000'000;
    const std::vector<std::string> table = {"moov", "trak", "mdia", "minf", "stbl"};
    const auto replaced = [&](const std::string& type, const std::string& payload) {
        std::vector<std::string> path = table;
        path.push_back(type);
        replaceBox(bytes, path, makeBox(type, bigEndian(0) + payload));
    };
    replaced("stsz", bigEndian(1) + bigEndian(kSamples));
    replaced("stts", bigEndian(1) + bigEndian(kSamples) + bigEndian(1));
    replaced("stsc", bigEndian(1) + bigEndian(1) + bigEndian(kSamples) + bigEndian(1));
    writeFile(folder / "claims.mp4", bytes);
    const std::string used = testsupport::inChildProcess([&] {
        static_cast<void>(openError(folder / "claims.mp4"));
        rusage usage = {};
        ::getrusage(RUSAGE_SELF, &usage);
        constexpr long kKilobytes = 1'000'000;
        return std::string(usage.ru_maxrss < kKilobytes ? "little" : "much");
    });
    EXPECT_EQ(used, "little");
}

TEST(Bounds, theDistanceBetweenTheFarthestTimestampsIsPositive) {
    using ffmpeg::Timestamp;
    constexpr std::int64_t kFar = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(ffmpeg::constantDistance({Timestamp(-kFar), Timestamp(kFar)}), kFar);
    constexpr int kNear = 10;
    std::vector<Timestamp> times;
    times.reserve(kNear + 2);
    for (int i = 0; i < kNear; ++i)
        times.emplace_back(i);
    times.emplace_back(-kFar);
    times.emplace_back(kFar);
    const auto rate = ffmpeg::rateBetweenGaps(times, {1, kRate});
    ASSERT_TRUE(rate);
    EXPECT_DOUBLE_EQ(*rate, kRate);
}

TEST(Bounds, aTimecodeThatIsNoLabelCountsNothing) {
    for (const char* text : {"99999:00:00:00", "-1:00:00:00", "01:-1:00:00", "1:2:3:4 and more"})
        EXPECT_EQ(ffmpeg::timecodeAt(text, {25, 1}, Time{0, 1}, {25, 1}), "") << text;
    EXPECT_EQ(ffmpeg::timecodeAt("01:00:00:00", {25, 1}, Time{1, 1}, {25, 1}), "01:00:01:00");
}

/// Read as an enumerator such a number is undefined behaviour, which the sanitizer tells of.
TEST(Bounds, aColorNumberOfNoStandardIsNone) {
    const TemporaryFolder folder;
    std::string bytes = contentsOf(testsupport::cachedMedia(
        "colour-number.mkv", {"-f", "lavfi", "-i", "testsrc2=d=0.2", "-c:v", "mjpeg", "-pix_fmt",
                              "yuvj420p", "-color_trc", "bt709"}));
    const std::string transfer = "\x55\xba\x81\x01";
    const std::size_t place = bytes.find(transfer);
    ASSERT_NE(place, std::string::npos);
    bytes[place + 3] = '\x7f';
    writeFile(folder / "video.mkv", bytes);
    const auto asset = Asset::open(folder / "video.mkv");
    EXPECT_EQ(asset->tracks(MediaType::video).at(0).color.transfer, "");
}

} // namespace
} // namespace media
