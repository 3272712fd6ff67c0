#include "Media/ExportForecast.h"

#include "Media/Error.h"
#include "Media/Export/TrialFigures.h"
#include "Media/ExportFixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

namespace media {
namespace {

using testsupport::makeFixture;
using testsupport::VideoCodec;

class ExportForecastTest : public ExportTest {
protected:
    double exportedBytes(const Composition& composition,
                         const std::optional<VideoComposition>& rendering = std::nullopt) {
        StagedExportSession session(composition, m_folder / "out.mp4", FileType::mpeg4);
        session.setVideoComposition(rendering);
        session.run();
        return static_cast<double>(std::filesystem::file_size(m_folder / "out.mp4"));
    }

    static double forecastBytes(const Composition& composition,
                                const std::optional<VideoComposition>& rendering = std::nullopt) {
        return static_cast<double>(forecastExport(composition, rendering).value().bytes);
    }
};

TEST_F(ExportForecastTest, isExactForWhatCanBeEncodedWhole) {
    for (const VideoCodec codec : {VideoCodec::h264, VideoCodec::hevcTenBit}) {
        const auto asset = Asset::open(makeFixture({.codec = codec, .duration = 2}).path);
        const Composition composition = compositionOf(asset, 0.2, 0.7);
        const double real = exportedBytes(composition);
        EXPECT_NEAR(forecastBytes(composition), real, 0.12 * real);
    }
}

TEST_F(ExportForecastTest, takesTheRenderedPicture) {
    const auto asset = Asset::open(makeFixture({.duration = 2}).path);
    const Composition composition = compositionOf(asset);
    const auto small = renderedAt(composition.videoTrack->source, 80, 60, 10);
    const double real = exportedBytes(composition, small);
    EXPECT_NEAR(forecastBytes(composition, small), real, 0.12 * real);
    EXPECT_LT(real, exportedBytes(composition));
}

TEST_F(ExportForecastTest, leavesOutTheSoundThatTheExportLeavesOut) {
    const auto asset = Asset::open(makeFixture({.duration = 2, .audioTracks = 2}).path);
    Composition composition = compositionOf(asset);
    const double with = forecastBytes(composition);
    composition.audioTracks.clear();
    const double without = forecastBytes(composition);
    EXPECT_LT(without, with);
    const double real = exportedBytes(composition);
    EXPECT_NEAR(without, real, 0.12 * real);
}

TEST_F(ExportForecastTest, comesNearTheSizeOfALongFile) {
    const Composition composition = compositionOf(Asset::open(longFixture().path));
    const auto forecast = forecastExport(composition, std::nullopt).value();
    const double real = exportedBytes(composition);
    EXPECT_GT(static_cast<double>(forecast.bytes), 0.5 * real);
    EXPECT_LT(static_cast<double>(forecast.bytes), 2 * real);
    EXPECT_GT(forecast.seconds, 0);
}

TEST_F(ExportForecastTest, endsWithACancellationWhenStopped) {
    const Composition composition = compositionOf(Asset::open(longFixture().path));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(forecastExport(composition, std::nullopt, {}, stop.get_token()), Cancelled);
}

TEST_F(ExportForecastTest, makesRoomForAnExport) {
    const auto asset = Asset::open(longFixture().path);
    StagedExportSession session(compositionOf(asset), m_folder / "out.mp4", FileType::mpeg4);
    RunningExport running(session);
    ASSERT_TRUE(running.waitForProgress(0.01));
    EXPECT_THROW(forecastExport(compositionOf(asset), std::nullopt), Cancelled);
    EXPECT_EQ(session.state(), ExportSession::State::exporting);
    running.requestStop();
    running.join();
}

TEST(TrialFigures, extrapolateRatesAndCountKeyFramesOnce) {
    const TrialFigures figures{
        .seconds = 100,
        .pictures = 3000,
        .keyFrames = 14,
        .indexBytes = 1000,
        .processors = 2,
        .places = {{.laterSeconds = 1, .keyBytes = 50'000, .laterBytes = 100'000},
                   {.laterSeconds = 1, .keyBytes = 70'000, .laterBytes = 300'000}},
        .sound = {.seconds = 2, .bytes = 20'000}};
    const std::int64_t wanted = 14 * 60'000 + 100 * 200'000 + 100 * 10'000 + 1000;
    EXPECT_NEAR(static_cast<double>(extrapolated(figures).bytes), static_cast<double>(wanted),
                0.02 * static_cast<double>(wanted));
}

TEST(TrialFigures, addUpWhatIsWhole) {
    const TrialFigures figures{
        .seconds = 2,
        .pictures = 60,
        .keyFrames = 2,
        .places = {{.laterSeconds = 1, .keyBytes = 5'000, .laterBytes = 7'000}},
        .isWhole = true};
    EXPECT_EQ(extrapolated(figures).bytes, 12'000);
}

TEST(TrialFigures, shareTheWorkAmongTheProcessors) {
    TrialFigures figures{.seconds = 100,
                         .pictures = 3000,
                         .places = {{.laterSeconds = 1}},
                         .decodeSeconds = 0.01,
                         .transformSeconds = 0.01,
                         .encodeSeconds = 0.03};
    figures.processors = 1;
    const double one = extrapolated(figures).seconds;
    figures.processors = 2;
    const double two = extrapolated(figures).seconds;
    figures.processors = 64;
    const double many = extrapolated(figures).seconds;
    EXPECT_NEAR(two / one, 0.5, 0.05);
    // One thread transforms all pictures: 3000 × 0.01 s.
    EXPECT_GE(many, 30);
    EXPECT_LT(many, 35);
}

} // namespace
} // namespace media
