#include "TestSupport/ClickTrack.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Process.h"
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
#include <sstream>

/// Exports random ranges of files whose frames show their own number and whose sound clicks every
/// second, through brisklet-cli, and holds every frame and click of the outcome, as ffmpeg reads
/// it, against the frame rule.
namespace {

using testsupport::Fixture;
using testsupport::HeardTrack;
using testsupport::NumberedFrame;
using testsupport::Recipe;
using testsupport::VideoCodec;

constexpr double kTolerance = 0.001;
constexpr int kCap = 96;

/// A range to keep, in seconds as given to the tool.
struct Range {
    double start = 0;
    double end = 0;

    std::int64_t startTicks() const { return std::llround(start * 600); }

    std::int64_t endTicks() const { return std::llround(end * 600); }

    /// The start that the engine works with.
    double startSeconds() const { return static_cast<double>(startTicks()) / 600; }

    double ticksDuration() const { return static_cast<double>(endTicks() - startTicks()) / 600; }
};

std::ostream& operator<<(std::ostream& stream, const Range& range) {
    return stream << "[" << range.start << ", " << range.end << ")";
}

struct ExpectedFrame {
    int number = 0;
    double seconds = 0;
};

/// The nearest 1/600 s to a frame's time. Frames of containers that count in milliseconds may lie
/// half-way between two: those go up, also where the sum of their parts is a bit short of it.
std::int64_t ticksOf(const NumberedFrame& frame) {
    return static_cast<std::int64_t>(std::floor(frame.seconds * 600 + 0.5 + 1e-6));
}

/// The index of the frame that is shown at a time, both in ticks of 1/600 s. The first frame also
/// stands for what comes before it, the last for what comes after.
std::size_t frameAt(const Fixture& source, std::int64_t ticks) {
    std::size_t index = 0;
    while (index + 1 < source.frames.size() && ticksOf(source.frames[index + 1]) <= ticks)
        ++index;
    return index;
}

/// Without a video composition: every frame that is shown in the range, at its own time.
std::vector<ExpectedFrame> expectedStraight(const Fixture& source, const Range& range) {
    const double start = range.startSeconds();
    const std::size_t first = frameAt(source, range.startTicks());
    const std::size_t last = frameAt(source, range.endTicks() - 1);
    std::vector<ExpectedFrame> expected = {{source.frames[first].number, 0}};
    for (std::size_t index = first + 1; index <= last; ++index)
        expected.push_back({source.frames[index].number, source.frames[index].seconds - start});
    return expected;
}

/// With a video composition: the frame of each n-th part of a second.
std::vector<ExpectedFrame> expectedAtRate(const Fixture& source, const Range& range, int rate) {
    std::vector<ExpectedFrame> expected;
    const std::int64_t length = range.endTicks() - range.startTicks();
    for (std::int64_t n = 0; 600 * n < rate * length; ++n) {
        const std::int64_t ticks =
            range.startTicks() + std::llround(600 * static_cast<double>(n) / rate);
        expected.push_back(
            {source.frames[frameAt(source, ticks)].number, static_cast<double>(n) / rate});
    }
    return expected;
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
    const double length = range.ticksDuration();
    const auto isWhole = [&](double click) {
        return click > 2 * kTolerance &&
               click + testsupport::kClickDuration < length - 2 * kTolerance;
    };
    std::vector<double> places;
    for (const double click : source.clicks)
        places.push_back(click - range.startSeconds());
    for (const double place : places)
        EXPECT_TRUE(!isWhole(place) || hasNear(exported.clicks, place)) << "no click at " << place;
    for (const double click : exported.clicks)
        EXPECT_TRUE(!isWhole(click) || hasNear(places, click)) << "a click at " << click;

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

/// How long an exported MP4 file shows its picture, from the header of its first track. (ffprobe
/// tells another number: the sum of the decoding steps, which with B-frames and an irregular first
/// or last frame is not the length of the presentation.)
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
        SCOPED_TRACE(testing::Message() << m_source.path.filename() << ' ' << range);
        const auto output = exported(range, {});
        if (HasFatalFailure())
            return;
        const auto expected = expectedStraight(m_source, range);
        expectFrames(testsupport::readNumberedFrames(output), expected);
        // The header counts whole milliseconds, rounded up.
        EXPECT_NEAR(pictureDuration(output), range.ticksDuration(), kTolerance + 1e-6);
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
        SCOPED_TRACE(testing::Message() << m_source.path.filename() << ' ' << range);
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

INSTANTIATE_TEST_SUITE_P(AllFormats, Exactness, testing::ValuesIn(everyCase()),
                         [](const auto& testCase) { return nameOf(testCase.param); });

} // namespace
