#include "Media/FFmpeg/HevcLevel.h"

#include "Media/ExportFixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gmock/gmock.h>

#include <sstream>

/// What HEVC files say about the decoder that they need, and whether they keep to it.
namespace media {
namespace {

using testsupport::cachedMedia;
using testsupport::probe;

/// A 10-bit picture that changes, `size` being like "320x240".
std::filesystem::path movingPicture(const std::string& size, const std::string& rate) {
    return cachedMedia("level-" + size + "-" + rate + ".mkv",
                       {"-f", "lavfi", "-i", "testsrc2=d=0.1:s=" + size + ":r=" + rate, "-c:v",
                        "ffv1", "-pix_fmt", "yuv420p10le"});
}

/// Nothing but noise for two seconds: no encoder makes it small.
std::filesystem::path noise() {
    return cachedMedia("level-noise.mkv", {"-f", "lavfi", "-i",
                                           "nullsrc=s=480x272:r=60:d=2,format=yuv420p10le,"
                                           "geq=lum='random(1)*1023':cb=512:cr=512",
                                           "-c:v", "ffv1"});
}

/// The parameter sets of a file, as ffmpeg spells them out.
class ParameterSets {
public:
    explicit ParameterSets(const std::filesystem::path& path)
        : m_trace(testsupport::runProcessOrThrow({"ffmpeg", "-v", "trace", "-i", path, "-map",
                                                  "0:v", "-c", "copy", "-bsf:v", "trace_headers",
                                                  "-f", "null", "-"})
                      .errors) {}

    /// The first value of that name; none if there is none.
    [[nodiscard]] std::optional<int> value(const std::string& name) const {
        const std::size_t line = m_trace.find(' ' + name + ' ');
        if (line == std::string::npos)
            return std::nullopt;
        return std::stoi(m_trace.substr(m_trace.find('=', line) + 1));
    }

    /// The side of the coding tree units; pixels.
    [[nodiscard]] int codingTreeUnit() const {
        return 1 << (3 + value("log2_min_luma_coding_block_size_minus3").value() +
                     value("log2_diff_max_min_luma_coding_block_size").value());
    }

private:
    std::string m_trace;
};

/// By how many bits a buffer that holds a second's worth at `bitsPerSecond` is overdrawn at worst,
/// if it is filled at that rate and each picture is taken out at its time of decoding.
double overdraft(const std::filesystem::path& path, double bitsPerSecond) {
    std::istringstream packets(
        testsupport::runProcessOrThrow({"ffprobe", "-v", "error", "-select_streams", "v:0",
                                        "-show_entries", "packet=dts_time,size", "-of",
                                        "csv=p=0:s=\\ ", path})
            .output);
    double fill = bitsPerSecond, worst = 0, time = 0, size = 0;
    std::optional<double> last;
    while (packets >> time >> size) {
        fill = std::min(bitsPerSecond, fill + bitsPerSecond * (time - last.value_or(time)));
        fill -= 8 * size;
        worst = std::max(worst, -fill);
        last = time;
    }
    EXPECT_TRUE(last);
    return worst;
}

using HevcLevels = ExportTest;

TEST_F(HevcLevels, areStatedBySizeAndRateOfThePictures) {
    struct {
        const char* size;
        const char* framesPerSecond;
        int level, isHighTier;
    } const rows[] = {{"320x240", "30", 41, 0},
                      {"1280x720", "50", 51, 0},
                      {"2048x1152", "30", 51, 1},
                      {"4320x40", "30", 51, 1}};

    for (const auto& row : rows) {
        const std::string size = row.size, rate = row.framesPerSecond;
        SCOPED_TRACE(size + " at " + rate);
        const auto output = exported(movingPicture(size, rate), 0, 0.1);
        const auto video = probe(output).streamsOf("video").at(0);
        EXPECT_EQ(video.text("profile"), "Main 10");
        EXPECT_EQ(video.number("level"), 3 * row.level);
        const ParameterSets sets(output);
        EXPECT_EQ(sets.value("general_tier_flag"), row.isHighTier);
        EXPECT_EQ(sets.codingTreeUnit(), 32);
    }
}

// Units of 32 pixels do not fit there, and smaller ones are not for level 5.
TEST_F(HevcLevels, makeRoomForPicturesOfAFewLines) {
    const auto output = exported(movingPicture("320x24", "30"), 0, 0.1);
    EXPECT_EQ(probe(output).streamsOf("video").at(0).number("level"), 3 * 41);
    EXPECT_EQ(ParameterSets(output).codingTreeUnit(), 16);
    EXPECT_EQ(probe(exported(movingPicture("4320x24", "30"), 0, 0.1))
                  .streamsOf("video")
                  .at(0)
                  .text("codec_name"),
              "h264");
}

TEST_F(HevcLevels, boundWhatPicturesTake) {
    constexpr double kMostBits = 20e6;
    const auto output = exported(noise(), 0, 2);
    EXPECT_EQ(probe(output).streamsOf("video").at(0).number("level"), 3 * 41);
    EXPECT_EQ(ParameterSets(output).value("general_tier_flag"), 0);
    EXPECT_EQ(overdraft(output, kMostBits), 0);
}

// The model counts in pictures of equal duration, which pictures with times of their own are not.
TEST_F(HevcLevels, comeWithAModelOfTheBufferWherePicturesAreEquallyLong) {
    const auto asset = Asset::open(movingPicture("320x240", "30"));
    const Composition composition = compositionOf(asset);
    const ParameterSets rendered(
        exportedAs(composition, renderedAt(composition.videoTrack->source, 160, 120, 30)));
    EXPECT_EQ(rendered.value("vui_hrd_parameters_present_flag"), 1);
    EXPECT_EQ(rendered.value("nal_hrd_parameters_present_flag"), 1);
    const ParameterSets asItIs(exported(movingPicture("320x240", "30"), 0, 0.1));
    EXPECT_EQ(asItIs.value("vui_hrd_parameters_present_flag"), 0);
}

TEST(HevcLevel, countsWholeBlocks) {
    const auto number = [](int width, int height, double rate) {
        const auto level = ffmpeg::hevcLevel(width, height, rate);
        return level ? level->number : 0;
    };
    EXPECT_EQ(number(1920, 1080, 60), 51);
    EXPECT_EQ(number(3840, 2160, 60), 51);
    EXPECT_EQ(number(3840, 2160, 120), 52);
    EXPECT_EQ(number(4096, 2176, 30), 51);
    EXPECT_EQ(number(4096, 2178, 30), 60);
    EXPECT_EQ(number(7680, 4320, 60), 61);
    EXPECT_EQ(number(7680, 4320, 120), 62);
    EXPECT_EQ(number(7680, 4320, 240), 0);
    EXPECT_EQ(number(16384, 16384, 1), 0);
}

} // namespace
} // namespace media
