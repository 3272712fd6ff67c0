#include "Export/AVFoundationExporter.h"
#include "Support/FileUrl.h"
#include "TestSupport/DisplayRotation.h"
#include "TestSupport/FrameRule.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>

/// Exports drawn by lot: sources, ranges, crops, turns, caps, containers, with sound and without.
/// Each is held against the frame rule by the numbers that its pictures show and the clicks that
/// are heard. BRISKLET_RANDOM_EXPORTS says how many there are in all; which ones they are depends
/// on their number alone.
namespace brisklet {
namespace {

using testsupport::Fixture;
using testsupport::KeptRange;
using testsupport::Recipe;
using testsupport::VideoCodec;

constexpr int kUsualCount = 60;
constexpr int kShards = 6;
constexpr double kTolerance = 0.001;

/// The numbered part of a picture, and all of it: what lies around may be cropped away.
constexpr int kNumberWidth = 192;
constexpr int kNumberHeight = 144;
constexpr int kLeft = 24;
constexpr int kTop = 18;
constexpr int kWidth = 256;
constexpr int kHeight = 192;

struct SourceKind {
    Recipe recipe;
    /// How ffmpeg makes it again with room around the numbers.
    std::vector<std::string> encoder;
};

Recipe numbered(Recipe recipe) {
    recipe.duration = 5;
    recipe.width = kNumberWidth;
    recipe.height = kNumberHeight;
    return recipe;
}

std::vector<SourceKind> everyKind() {
    const std::vector<std::string> x264 = {"-c:v", "libx264", "-preset", "veryfast", "-g"};
    const auto h264 = [&](const char* group, const char* bFrames) {
        std::vector<std::string> encoder = x264;
        encoder.insert(encoder.end(), {group, "-bf", bFrames});
        return encoder;
    };
    return {
        {numbered({}), h264("12", "2")},
        {numbered({.container = "mov", .frameRate = {30000, 1001}, .audioTracks = 2}),
         h264("250", "3")},
        {numbered({.container = "mkv", .frameRate = {25, 1}, .hasVariableFrameRate = true}),
         h264("50", "2")},
        {numbered({.container = "ts", .frameRate = {24000, 1001}, .startOffset = 3.7}),
         h264("24", "2")},
        {numbered({.container = "mp4", .frameRate = {60, 1}, .sampleRate = 44100}),
         {"-c:v", "libx265", "-preset", "ultrafast", "-x265-params", "log-level=error:keyint=30",
          "-tag:v", "hvc1"}},
        {numbered({.container = "mkv", .frameRate = {24, 1}}),
         {"-c:v", "libx265", "-preset", "ultrafast", "-pix_fmt", "yuv420p10le", "-x265-params",
          "log-level=error:keyint=48"}},
        {numbered({.codec = VideoCodec::vp9, .container = "webm"}),
         {"-c:v", "libvpx-vp9", "-deadline", "realtime", "-cpu-used", "8", "-g", "40"}},
        {numbered({.codec = VideoCodec::mpeg2, .container = "ts", .frameRate = {25, 1}}),
         {"-c:v", "mpeg2video", "-q:v", "4", "-g", "15", "-bf", "2", "-enc_time_base", "1:25"}},
        {numbered({.container = "mov", .frameRate = {25, 1}, .channels = 2}),
         {"-c:v", "prores_ks", "-profile:v", "2"}},
        {numbered({.container = "mp4", .frameRate = {15, 1}, .audioTracks = 0}),
         {"-c:v", "mpeg4", "-q:v", "4", "-bf", "2", "-g", "30", "-enc_time_base", "1:15"}},
        {numbered({.container = "mp4", .frameRate = {50, 1}, .displayRotation = 90}),
         h264("25", "0")},
        {numbered({.container = "mov", .hasVariableFrameRate = true, .displayRotation = 270}),
         h264("60", "2")},
    };
}

std::string storedTurn(int displayRotation) {
    return displayRotation == 90 ? ",transpose=cclock" : displayRotation == 270 ? ",transpose" : "";
}

std::string numbersOnly() {
    std::ostringstream filter;
    filter << "format=gray,crop=" << kNumberWidth << ':' << kNumberHeight << ':' << kLeft << ':'
           << kTop;
    return filter.str();
}

/// The file of a kind, and what ffmpeg shows and plays of it.
Fixture makeSource(const SourceKind& kind) {
    const Fixture inner = testsupport::makeFixture(kind.recipe);
    const int rotation = kind.recipe.displayRotation;
    std::ostringstream pad;
    pad << "pad=" << kWidth << ':' << kHeight << ':' << kLeft << ':' << kTop << ":0x506070"
        << storedTurn(rotation);
    std::vector<std::string> arguments = {"-i",        inner.path,    "-map",           "0",
                                          "-vf",       pad.str(),     "-c:a",           "copy",
                                          "-fps_mode", "passthrough", "-enc_time_base", "1:90000"};
    arguments.insert(arguments.end(), kind.encoder.begin(), kind.encoder.end());
    const std::string name = inner.path.filename().string();
    Fixture source;
    source.path = testsupport::cachedMedia("room-around-" + name, arguments);
    if (rotation != 0) {
        source.path = testsupport::cachedMedia(
            "turned-room-around-" + name, [&](const std::filesystem::path& path) {
                std::filesystem::copy_file(source.path, path,
                                           std::filesystem::copy_options::overwrite_existing);
                testsupport::setDisplayRotation(path, rotation, kHeight, kWidth);
            });
    }
    source.frames = testsupport::readNumberedFrames(source.path, 0, numbersOnly());
    source.clockStart = source.frames.front().seconds;
    for (int track = 0; track < kind.recipe.audioTracks; ++track) {
        source.audio.push_back(testsupport::readHeardTrack(source.path, track));
        source.clockStart = std::min(source.clockStart, source.audio.back().start);
    }
    for (auto& frame : source.frames)
        frame.seconds -= source.clockStart;
    for (auto& track : source.audio) {
        track.start -= source.clockStart;
        track.end -= source.clockStart;
        for (double& click : track.clicks)
            click -= source.clockStart;
    }
    return source;
}

/// One export and how its pictures lie in the source's, both upright.
struct Draw {
    ExportRequest request;
    KeptRange range;
    int quarters = 0;
    /// What is kept of the upright source; pixels.
    int left = 0, top = 0, right = kWidth, bottom = kHeight;
    bool isRendered = false;
    /// Output pixels a source pixel.
    double scale = 1;
};

media::Rect turnedCrop(const Draw& draw) {
    const double w = draw.right - draw.left;
    const double h = draw.bottom - draw.top;
    switch (draw.quarters) {
    case 1:
        return {double{kHeight} - draw.bottom, double(draw.left), h, w};
    case 2:
        return {double{kWidth} - draw.right, double{kHeight} - draw.bottom, w, h};
    case 3:
        return {double(draw.top), double{kWidth} - draw.right, h, w};
    default:
        return {double(draw.left), double(draw.top), w, h};
    }
}

class Lot {
public:
    explicit Lot(int number) : m_random(static_cast<unsigned>(number) * 2654435761U + 17) {}

    int among(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    double within(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }

private:
    std::mt19937 m_random;
};

KeptRange drawRange(Lot& lot, const Fixture& source) {
    const double end = source.videoEnd();
    const auto atFrame = [&] {
        const auto last = static_cast<int>(source.frames.size()) - 1;
        return source.frames[static_cast<std::size_t>(lot.among(0, last))].seconds;
    };
    double start = lot.among(0, 2) == 0 ? atFrame() : lot.within(0, end - 0.1);
    if (lot.among(0, 5) == 0)
        start = 0;
    double stop = lot.among(0, 2) == 0 ? atFrame() : std::min(end, start + lot.within(0.05, 2));
    if (stop < start + 0.01)
        stop = std::min(end, start + lot.within(0.05, 2));
    // The last of frames at a varying rate ends where it begins.
    if (stop < start + 0.01)
        start = std::max(0.0, stop - lot.within(0.05, 2));
    return {start, stop};
}

Draw draw(Lot& lot, const Fixture& source) {
    Draw result;
    result.range = drawRange(lot, source);
    ExportRequest& request = result.request;
    request.sourceURL = urlOf(source.path);
    request.startTime = result.range.start;
    request.endTime = result.range.end;
    request.muted = lot.among(0, 5) == 0;
    request.format = lot.among(0, 1) == 0 ? ExportFormat::mp4 : ExportFormat::mov;
    constexpr std::array kTurns = {0, 90, 180, 270, -90, 360, 450};
    if (lot.among(0, 1) == 0)
        request.rotation = kTurns[static_cast<std::size_t>(lot.among(0, 6))];
    result.quarters = ((request.rotation % 360 + 360) % 360) / 90;
    const bool isTurned = result.quarters % 2 != 0;
    double shortEdge = kHeight;
    if (lot.among(0, 1) == 0) {
        result.left = lot.among(0, kLeft);
        result.top = lot.among(0, kTop);
        result.right = lot.among(kLeft + kNumberWidth, kWidth);
        result.bottom = lot.among(kTop + kNumberHeight, kHeight);
        const media::Rect crop = turnedCrop(result);
        const double width = isTurned ? kHeight : kWidth;
        const double height = isTurned ? kWidth : kHeight;
        request.cropRect =
            media::Rect{crop.x / width, crop.y / height, crop.width / width, crop.height / height};
        shortEdge = std::min(crop.width, crop.height);
    }
    if (lot.among(0, 2) == 0) {
        request.maxShortEdge = lot.among(96, 220);
        result.scale = std::min(1.0, *request.maxShortEdge / shortEdge);
    }
    result.isRendered = request.cropRect || request.maxShortEdge || request.rotation % 360 != 0;
    return result;
}

/// The filter that finds the numbers in the export's pictures.
std::string numbersIn(const Draw& draw) {
    constexpr std::array kBack = {"null", "transpose=cclock", "hflip,vflip", "transpose=clock"};
    std::ostringstream filter;
    filter << kBack[static_cast<std::size_t>(draw.quarters)]
           << ",format=gray,crop=" << std::floor(kNumberWidth * draw.scale) - 1 << ':'
           << std::floor(kNumberHeight * draw.scale) - 1 << ':'
           << std::lround((kLeft - draw.left) * draw.scale) << ':'
           << std::lround((kTop - draw.top) * draw.scale);
    return filter.str();
}

std::string describe(int number, const Draw& draw) {
    std::ostringstream text;
    text.precision(12);
    text << "export " << number << " of " << pathOf(draw.request.sourceURL).filename() << " ["
         << draw.range.start << ", " << draw.range.end << ") turned " << draw.request.rotation
         << ", kept " << draw.left << ' ' << draw.top << ' ' << draw.right << ' ' << draw.bottom
         << ", cap " << draw.request.maxShortEdge.value_or(0)
         << (draw.request.muted ? ", muted" : "");
    return text.str();
}

bool hasNear(const std::vector<double>& times, double time) {
    return std::ranges::any_of(times,
                               [&](double other) { return std::abs(other - time) <= kTolerance; });
}

void expectPictures(const std::filesystem::path& output, const Draw& draw, const Fixture& source) {
    std::vector<testsupport::ExpectedFrame> expected;
    if (draw.isRendered) {
        const auto asset = media::Asset::open(source.path);
        const auto rate = asset->tracks(media::MediaType::video).at(0).nominalFrameRate;
        expected = expectedAtRate(source, draw.range, static_cast<int>(std::lround(rate)));
    } else {
        expected = expectedStraight(source, draw.range);
    }
    const auto shown = testsupport::readNumberedFrames(output, 0, numbersIn(draw));
    EXPECT_EQ(shown.size(), expected.size());
    for (std::size_t i = 0; i < std::min(shown.size(), expected.size()); ++i) {
        ASSERT_EQ(shown[i].number, expected[i].number) << "at frame " << i;
        ASSERT_NEAR(shown[i].seconds, expected[i].seconds, kTolerance) << "at frame " << i;
    }
}

void expectSound(const std::filesystem::path& output, const Draw& draw, const Fixture& source) {
    for (std::size_t track = 0; track < source.audio.size(); ++track) {
        const auto heard = testsupport::readClicks(output, static_cast<int>(track));
        const auto expected = testsupport::expectedClicks(source.audio[track], draw.range);
        for (const double click : expected)
            EXPECT_TRUE(!isWholeClick(click, draw.range) || hasNear(heard, click)) << click;
        for (const double click : heard)
            EXPECT_TRUE(!isWholeClick(click, draw.range) || hasNear(expected, click)) << click;
    }
}

void expectFile(const std::filesystem::path& output, const Draw& draw, const Fixture& source) {
    const auto file = testsupport::probe(output);
    EXPECT_EQ(file.streamsOf("video").size(), 1U);
    EXPECT_EQ(file.streamsOf("audio").size(), draw.request.muted ? 0 : source.audio.size());
    EXPECT_NEAR(file.format.number("start_time").value_or(1), 0, 1e-6);
    EXPECT_NEAR(file.format.number("duration").value_or(0), draw.range.duration(), kTolerance);
    EXPECT_NEAR(file.streamsOf("video").at(0).number("duration").value_or(0), draw.range.duration(),
                kTolerance);
}

int exportCount() {
    const char* wanted = std::getenv("BRISKLET_RANDOM_EXPORTS");
    return wanted ? std::max(kShards, std::atoi(wanted)) : kUsualCount;
}

class RandomExports : public testing::TestWithParam<int> {};

TEST_P(RandomExports, areRight) {
    static const std::vector<SourceKind> kinds = everyKind();
    std::vector<std::optional<Fixture>> sources(kinds.size());
    const testsupport::TemporaryFolder folder;
    for (int number = GetParam(); number < exportCount(); number += kShards) {
        Lot lot(number);
        const auto kind =
            static_cast<std::size_t>(lot.among(0, static_cast<int>(kinds.size()) - 1));
        if (!sources[kind])
            sources[kind] = makeSource(kinds[kind]);
        const Fixture& source = *sources[kind];
        Draw drawn = draw(lot, source);
        SCOPED_TRACE(describe(number, drawn));
        const auto output =
            folder / (drawn.request.format == ExportFormat::mov ? "out.mov" : "out.mp4");
        drawn.request.outputURL = urlOf(output);
        AVFoundationExporter::run(drawn.request, {}, {});
        expectFile(output, drawn, source);
        expectPictures(output, drawn, source);
        if (!drawn.request.muted)
            expectSound(output, drawn, source);
    }
}

// What one shard finds no single case stands for: it is there to try what nobody thought of. Ten
// draws do that again and again, and the others as often as everything is run.
INSTANTIATE_TEST_SUITE_P(Shard, RandomExports, testing::Values(0));
INSTANTIATE_TEST_SUITE_P(Exhaustive, RandomExports, testing::Range(1, kShards));

} // namespace
} // namespace brisklet
