#include "Media/FFmpeg/HevcLevel.h"

#include "Media/ExportFixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What HEVC files say about the decoder that they need.
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

using HevcLevels = ExportTest;

TEST_F(HevcLevels, areStatedBySizeAndRateOfThePicturesWithUnitsThatTheyAllow) {
    struct Row {
        const char* size;
        const char* framesPerSecond;
        int level, isHighTier, unit;
    };

    const std::array rows = {
        Row{"320x240", "30", 41, 0, 16},    Row{"320x24", "30", 41, 0, 16},
        Row{"1280x720", "50", 41, 1, 16},   Row{"1080x1920", "60", 41, 1, 16},
        Row{"1920x1080", "120", 51, 1, 32}, Row{"2048x1080", "60.1", 51, 1, 32},
        Row{"2048x1152", "30", 51, 1, 32},  Row{"1460x1524", "30", 51, 1, 32},
        Row{"4208x128", "30", 41, 1, 16},   Row{"4320x40", "30", 51, 1, 32}};

    for (const auto& row : rows) {
        const std::string size = row.size;
        const std::string rate = row.framesPerSecond;
        SCOPED_TRACE(testing::Message() << size << " at " << rate);
        const auto output = exported(movingPicture(size, rate), 0, 0.1);
        const auto video = probe(output).streamsOf("video").at(0);
        EXPECT_EQ(video.text("profile"), "Main 10");
        EXPECT_EQ(video.number("level"), 3 * row.level);
        const ParameterSets sets(output);
        EXPECT_EQ(sets.value("general_tier_flag"), row.isHighTier);
        EXPECT_EQ(sets.codingTreeUnit(), row.unit);
    }
}

// No unit fits there.
TEST_F(HevcLevels, areNotForPicturesOfAFewLinesBeyondTheSmallOnes) {
    EXPECT_EQ(probe(exported(movingPicture("4320x24", "30"), 0, 0.1))
                  .streamsOf("video")
                  .at(0)
                  .text("codec_name"),
              "h264");
}

TEST(HevcLevel, countsWholeBlocks) {
    const auto number = [](int width, int height, double rate) {
        const auto level = ffmpeg::hevcLevel(width, height, rate);
        return level ? level->number : 0;
    };
    EXPECT_EQ(number(1920, 1080, 60), 41);
    EXPECT_EQ(number(1456, 1520, 30), 41);
    EXPECT_EQ(number(1457, 1520, 30), 51);
    EXPECT_EQ(number(3840, 2160, 60), 51);
    EXPECT_EQ(number(3840, 2160, 120), 52);
    EXPECT_EQ(number(4096, 2176, 30), 51);
    EXPECT_EQ(number(4096, 2177, 30), 60);
    EXPECT_EQ(number(7680, 4320, 60), 61);
    EXPECT_EQ(number(7680, 4320, 120), 62);
    EXPECT_EQ(number(7680, 4320, 240), 0);
    EXPECT_EQ(number(16384, 16384, 1), 0);
}

/// Parameter sets that x265 writes for level 4 of the main tier, but for what follows the level.
std::vector<std::uint8_t> headers() {
    return {0, 0, 0, 1,    0x40, 1,    0x0c, 1,    0xff, 0xff, 2, 0x20, 0,
            0, 3, 0, 0x90, 0,    0,    3,    0,    0,    3,    0, 0x78, 0x95, //
            0, 0, 1, 0x42, 1,    1,    2,    0x20, 0,    0,    3, 0,    0x90,
            0, 0, 3, 0,    0,    3,    0,    0x78, 0xa0, //
            0, 0, 1, 0x44, 1,    0xc1, 0x72};
}

TEST(HevcLevel, isWrittenIntoBothKindsOfParameterSetsAndNowhereElse) {
    auto expected = headers();
    expected.at(10) = expected.at(32) = 0x22;
    expected.at(24) = expected.at(46) = 153;
    auto bytes = headers();
    ffmpeg::stateLevel(bytes, {51, true, false});
    EXPECT_EQ(bytes, expected);
    expected.at(10) = expected.at(32) = 2;
    ffmpeg::stateLevel(bytes, {51, false, false});
    EXPECT_EQ(bytes, expected);
}

TEST(HevcLevel, leavesParameterSetsAloneThatAreCutShort) {
    for (std::size_t size = 0; size <= 24; ++size) {
        auto bytes = headers();
        bytes.resize(size);
        const auto before = bytes;
        ffmpeg::stateLevel(bytes, {51, true, false});
        EXPECT_EQ(bytes, before) << size;
    }
}

} // namespace
} // namespace media
