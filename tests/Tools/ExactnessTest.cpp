#include "TestSupport/Fixture.h"
#include "TestSupport/FrameRule.h"
#include "TestSupport/Process.h"
#include "TestSupport/Representatives.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <ostream>
#include <random>
#include <regex>
#include <set>
#include <sstream>

/// Exports random ranges of files whose frames show their own number and whose sound clicks every
/// second, through brisklet-cli, and holds every frame and click of the outcome, as ffmpeg reads
/// it, against the frame rule.
namespace {

using testsupport::ExpectedFrame;
using testsupport::Fixture;
using testsupport::HeardTrack;
using testsupport::NumberedFrame;
using testsupport::Recipe;
using testsupport::VideoCodec;
using Range = testsupport::KeptRange;

constexpr double kTolerance = 0.001;
constexpr int kCap = 96;

std::string shown(const Range& range) {
    std::ostringstream text;
    text << '[' << range.start << ", " << range.end << ')';
    return text.str();
}

void expectFrames(const std::vector<NumberedFrame>& exported,
                  const std::vector<ExpectedFrame>& expected) {
    EXPECT_EQ(exported.size(), expected.size());
    for (std::size_t i = 0; i < std::min(exported.size(), expected.size()); ++i) {
        ASSERT_EQ(exported[i].number, expected[i].number) << "at frame " << i;
        ASSERT_NEAR(exported[i].seconds, expected[i].seconds, kTolerance) << "at frame " << i;
    }
}

bool hasNear(const std::vector<double>& times, double time) {
    return std::ranges::any_of(times,
                               [&](double other) { return std::abs(other - time) <= kTolerance; });
}

/// All clicks that lie whole in the range are there and no others; those that its ends cut may be.
void expectSound(const HeardTrack& exported, const HeardTrack& source, const Range& range) {
    const double length = range.duration();
    const auto places = testsupport::expectedClicks(source, range);
    for (const double place : places)
        EXPECT_TRUE(!isWholeClick(place, range) || hasNear(exported.clicks, place))
            << "no click at " << place;
    for (const double click : exported.clicks)
        EXPECT_TRUE(!isWholeClick(click, range) || hasNear(places, click))
            << "a click at " << click;

    EXPECT_NEAR(exported.start, std::max(0.0, source.start - range.startSeconds()), kTolerance);
    // AAC is cut in whole frames of 1024 samples; what is too much at the end is for players with
    // an eye for the edit list.
    const double end = std::min(length, source.end - range.startSeconds());
    EXPECT_GT(exported.end, end - kTolerance);
    EXPECT_LT(exported.end, end + 0.05);
}

std::string decimal(double value) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(9) << value;
    return text.str();
}

/// A big-endian number of four bytes in a box of the file, at an offset from the box's name.
std::uint32_t boxField(const std::string& file, const char* box, std::size_t offset) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = (value << 8) | static_cast<std::uint8_t>(file.at(file.find(box) + offset + i));
    return value;
}

/// How long an exported MP4 file shows its picture, from the header of its first track.
double pictureDuration(const std::filesystem::path& path) {
    std::ifstream input(path, std::ios::binary);
    const std::string file{std::istreambuf_iterator<char>(input), {}};
    constexpr std::size_t kTimescale = 16;
    constexpr std::size_t kDuration = 24;
    return static_cast<double>(boxField(file, "tkhd", kDuration)) /
           boxField(file, "mvhd", kTimescale);
}

void runCli(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), BRISKLET_CLI);
    const auto result = testsupport::runProcess(arguments);
    ASSERT_EQ(result.exitStatus, 0) << result.errors;
}

/// The rate that an export with a video composition gets.
int compositionRate(const Fixture& source) {
    const auto result = testsupport::runProcessOrThrow({BRISKLET_CLI, "probe", source.path});
    std::smatch match;
    const std::regex pattern(R"json("nominalFrameRate"\s*:\s*([0-9.eE+-]+))json");
    if (!std::regex_search(result.output, match, pattern))
        throw std::runtime_error("No frame rate in " + result.output);
    return static_cast<int>(std::lround(std::stod(match[1])));
}

/// Ranges of up to three seconds: one anywhere, one that begins and ends on a frame's own time, and
/// one that begins with the file. Exactly as the tool gets them, in decimals.
std::vector<Range> rangesOf(const Fixture& source, unsigned variation) {
    std::mt19937 random(20240229U + variation);
    const auto within = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    const double end = source.videoEnd();
    const double start = within(0, end - 3.5);
    const auto frameTime = [&](double low, double high) {
        const double time = within(low, high);
        const auto found = std::ranges::find_if(
            source.frames, [&](const NumberedFrame& frame) { return frame.seconds >= time; });
        return found->seconds;
    };
    const double first = frameTime(0.5, end - 3.5);
    std::vector<Range> ranges = {{start, start + within(0.3, 3)},
                                 {first, frameTime(first + 0.3, first + 2.5)},
                                 {0, within(0.2, 1.5)}};
    for (Range& range : ranges)
        range = {std::stod(decimal(range.start)), std::stod(decimal(range.end))};
    return ranges;
}

struct Case {
    std::string name;
    Recipe recipe;
    unsigned variation = 0;
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << testCase.name;
}

std::string nameOf(const Case& testCase) {
    return testCase.name;
}

class Exactness : public testing::TestWithParam<Case> {
protected:
    void SetUp() override { m_source = testsupport::makeFixture(GetParam().recipe); }

    /// Exports the range and hands back where it is.
    std::filesystem::path exported(const Range& range, const std::vector<std::string>& options) {
        std::filesystem::path output = m_folder / "export.mp4";
        std::vector<std::string> arguments = {"export",          m_source.path,        output,
                                              "--start",         decimal(range.start), "--end",
                                              decimal(range.end)};
        arguments.insert(arguments.end(), options.begin(), options.end());
        runCli(arguments);
        return output;
    }

    void expectStillShows(const Range& range, int number) {
        const std::filesystem::path still = m_folder / "still.png";
        runCli({"frame", m_source.path, decimal(range.start), still});
        EXPECT_EQ(testsupport::readStillNumber(still), number);
    }

    void expectEverySound(const std::filesystem::path& output, const Range& range) const {
        ASSERT_EQ(testsupport::probe(output).streamsOf("audio").size(), m_source.audio.size());
        for (std::size_t track = 0; track < m_source.audio.size(); ++track) {
            expectSound(testsupport::readHeardTrack(output, static_cast<int>(track)),
                        m_source.audio[track], range);
        }
    }

    Fixture m_source;
    testsupport::TemporaryFolder m_folder;
};

TEST_P(Exactness, keepsEveryFrameAndClickOfARange) {
    for (const Range& range : rangesOf(m_source, GetParam().variation)) {
        SCOPED_TRACE(testing::Message() << m_source.path.filename() << ' ' << shown(range));
        const auto output = exported(range, {});
        if (HasFatalFailure())
            return;
        const auto expected = expectedStraight(m_source, range);
        expectFrames(testsupport::readNumberedFrames(output), expected);
        EXPECT_NEAR(pictureDuration(output), range.duration(), kTolerance);
        expectEverySound(output, range);
        expectStillShows(range, expected.front().number);
    }
}

TEST_P(Exactness, showsTheFrameOfEachMomentUnderASizeCap) {
    const int rate = compositionRate(m_source);
    if (!GetParam().recipe.hasVariableFrameRate) {
        ASSERT_EQ(rate, std::lround(GetParam().recipe.frameRate.value()));
    }
    for (const Range& range : rangesOf(m_source, GetParam().variation + 1000)) {
        SCOPED_TRACE(testing::Message() << m_source.path.filename() << ' ' << shown(range));
        const auto output = exported(range, {"--max-short-edge", std::to_string(kCap)});
        if (HasFatalFailure())
            return;
        EXPECT_EQ(testsupport::probe(output).streamsOf("video").at(0).number("height"), kCap);
        const auto expected = expectedAtRate(m_source, range, rate);
        expectFrames(testsupport::readNumberedFrames(output), expected);
        expectEverySound(output, range);
        expectStillShows(range, expected.front().number);
    }
}

struct Combination {
    VideoCodec codec;
    const char* codecName;
    const char* container;
};

constexpr std::array kCombinations = {
    Combination{VideoCodec::h264, "H264", "mp4"},   Combination{VideoCodec::h264, "H264", "mov"},
    Combination{VideoCodec::h264, "H264", "mkv"},   Combination{VideoCodec::h264, "H264", "ts"},
    Combination{VideoCodec::hevc, "HEVC", "mp4"},   Combination{VideoCodec::hevc, "HEVC", "mov"},
    Combination{VideoCodec::hevc, "HEVC", "mkv"},   Combination{VideoCodec::hevc, "HEVC", "ts"},
    Combination{VideoCodec::vp9, "VP9", "mp4"},     Combination{VideoCodec::vp9, "VP9", "mkv"},
    Combination{VideoCodec::vp9, "VP9", "webm"},    Combination{VideoCodec::mpeg2, "MPEG2", "mp4"},
    Combination{VideoCodec::mpeg2, "MPEG2", "mov"}, Combination{VideoCodec::mpeg2, "MPEG2", "mkv"},
    Combination{VideoCodec::mpeg2, "MPEG2", "ts"}};

constexpr std::array kFrameRates = {
    testsupport::Fraction{24000, 1001}, testsupport::Fraction{25, 1},
    testsupport::Fraction{30000, 1001}, testsupport::Fraction{50, 1}, testsupport::Fraction{60, 1}};

constexpr std::array kStartOffsets = {0.0, 1.3, 3.7};

Recipe recipeFor(const Combination& combination, int groupOfPictures, unsigned index) {
    return {.codec = combination.codec,
            .container = combination.container,
            .frameRate = kFrameRates[index % std::size(kFrameRates)],
            .duration = 11,
            .groupOfPictures = groupOfPictures,
            .bFrames = groupOfPictures == 1 ? 0
                       : index % 4 == 3     ? 0
                                            : 2,
            .isOpenGroup = groupOfPictures > 1 && index % 2 == 0,
            .startOffset = kStartOffsets[index % std::size(kStartOffsets)],
            .width = 192,
            .height = 144,
            .audioTracks = index % 7 == 0 ? 2 : 1,
            .sampleRate =
                index % 5 == 1 && std::string(combination.container) != "webm" ? 44100 : 48000};
}

/// Each codec in each container with each length of groups; the frame rates, start offsets, open
/// groups and B-frames are dealt out so that each meets each of the others.
std::vector<Case> everyCase() {
    std::vector<Case> cases;
    unsigned index = 0;
    for (const Combination& combination : kCombinations) {
        const std::string name = std::string(combination.codecName) + "_" + combination.container;
        for (const int group : {1, 12, 250}) {
            cases.push_back({name + "_GroupOf" + std::to_string(group),
                             recipeFor(combination, group, index), index});
            ++index;
        }
        if (combination.codec != VideoCodec::mpeg2) {
            Recipe recipe = recipeFor(combination, 12, index);
            recipe.hasVariableFrameRate = true;
            recipe.frameRate = {30, 1};
            recipe.duration = 7;
            cases.push_back({name + "_VariableFrameRate", recipe, index});
            ++index;
        }
    }
    return cases;
}

/// Each codec in each container is a format of its own: together they decide where the times come
/// from and in which order. All else is independent of the format and of each other.
std::set<std::string> featuresOf(const Case& testCase) {
    const Recipe& recipe = testCase.recipe;
    std::set<std::string> features = {
        testCase.name.substr(0, testCase.name.rfind('_')),
        "groups of " + std::to_string(recipe.groupOfPictures),
        decimal(recipe.frameRate.value()) + " a second",
        "from " + decimal(recipe.startOffset),
        std::to_string(recipe.audioTracks) + " tracks",
        std::to_string(recipe.sampleRate) + " Hz",
    };
    if (recipe.hasVariableFrameRate)
        features.insert("variable rate");
    if (recipe.isOpenGroup)
        features.insert("open groups");
    if (recipe.bFrames > 0)
        features.insert("B-frames");
    return features;
}

testsupport::Selection<Case> selection() {
    return testsupport::selectRepresentatives(everyCase(), featuresOf);
}

INSTANTIATE_TEST_SUITE_P(Formats, Exactness, testing::ValuesIn(selection().representatives),
                         [](const auto& testCase) { return nameOf(testCase.param); });
INSTANTIATE_TEST_SUITE_P(Exhaustive, Exactness, testing::ValuesIn(selection().others),
                         [](const auto& testCase) { return nameOf(testCase.param); });

} // namespace
