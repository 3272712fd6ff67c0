#include "Export/AVFoundationExporter.h"

#include "Media/Error.h"
#include "QtSupport/EventPump.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/TemporaryFolder.h"

#include <QCoroTask>

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <string>
#include <vector>

namespace {

using namespace brisklet;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::probe;
using testsupport::TemporaryFolder;
using Kind = AVFoundationExporter::ExportError::Kind;

ExportRequest requestFor(const std::filesystem::path& source, const std::filesystem::path& output) {
    return {
        .sourceURL = urlOf(source), .startTime = 0.5, .endTime = 1.5, .outputURL = urlOf(output)};
}

void runExport(const ExportRequest& request, ExportProgressHandler onProgress = {},
               std::stop_token stop = {}) {
    testsupport::await(AVFoundationExporter().exportVideo(request, std::move(onProgress), stop));
}

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t filesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

std::filesystem::path soundOnly() {
    return testsupport::cachedMedia("sine-4s.m4a",
                                    {"-f", "lavfi", "-i", "sine=d=4", "-c:a", "aac"});
}

/// The message that the export ends with.
std::string failureOf(const ExportRequest& request) {
    try {
        runExport(request);
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

TEST(AVFoundationExporter, writesTheKeptRange) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    runExport(requestFor(source.path, folder / "out.mp4"));
    const auto frames = testsupport::readNumberedFrames(folder / "out.mp4");
    ASSERT_EQ(frames.size(), 30U);
    EXPECT_EQ(frames.front().number, 15);
    EXPECT_EQ(frames.back().number, 44);
    EXPECT_EQ(testsupport::warningsWhilePlaying(folder / "out.mp4"), "");
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST(AVFoundationExporter, keepsTheOrientationByTheTracksTransform) {
    const Fixture source = makeFixture({.displayRotation = 90});
    const TemporaryFolder folder;
    for (const int rotation : {0, 360, -360}) {
        ExportRequest request = requestFor(source.path, folder / "out.mov");
        request.rotation = rotation;
        request.format = ExportFormat::mov;
        runExport(request);
        const auto video = probe(folder / "out.mov").streamsOf("video").at(0);
        EXPECT_EQ(video.number("width"), 320);
        EXPECT_EQ(video.number("height"), 240);
        EXPECT_NE(video.text("side_data_list.side_data.0.rotation"), "") << rotation;
        EXPECT_EQ(testsupport::readNumberedFrames(folder / "out.mov").front().number, 15);
    }
}

TEST(AVFoundationExporter, doesNotTurnByAnEighth) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    ExportRequest request = requestFor(source.path, folder / "out.mp4");
    request.rotation = 45;
    runExport(request);
    EXPECT_EQ(testsupport::readNumberedFrames(folder / "out.mp4").front().number, 15);
}

TEST(AVFoundationExporter, turnsMinus90As270) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    ExportRequest request = requestFor(source.path, folder / "left.mp4");
    request.rotation = -90;
    runExport(request);
    request.rotation = 270;
    request.outputURL = urlOf(folder / "right.mp4");
    runExport(request);
    EXPECT_EQ(probe(folder / "left.mp4").streamsOf("video").at(0).number("width"), 240);
    EXPECT_GT(testsupport::ssim(folder / "left.mp4", folder / "right.mp4"), 0.9999);
}

TEST(AVFoundationExporter, cropsTurnsAndCaps) {
    const Fixture source = makeFixture({.width = 640, .height = 480});
    const TemporaryFolder folder;
    ExportRequest request = requestFor(source.path, folder / "out.mp4");
    request.rotation = 90;
    request.cropRect = media::Rect{0, 0, 1, 0.5};
    request.maxShortEdge = 200;
    runExport(request);
    const auto video = probe(folder / "out.mp4").streamsOf("video").at(0);
    // 480 × 640 turned, 480 × 320 cropped, 300 × 200 capped.
    EXPECT_EQ(video.number("width"), 300);
    EXPECT_EQ(video.number("height"), 200);
}

TEST(AVFoundationExporter, takesAllAudioTracksOrNone) {
    const TemporaryFolder folder;
    for (const int tracks : {0, 1, 2}) {
        const Fixture source = makeFixture({.audioTracks = tracks});
        ExportRequest request = requestFor(source.path, folder / "out.mp4");
        runExport(request);
        EXPECT_EQ(probe(folder / "out.mp4").streamsOf("audio").size(),
                  static_cast<std::size_t>(tracks));
        request.muted = true;
        runExport(request);
        EXPECT_EQ(probe(folder / "out.mp4").streamsOf("audio").size(), 0U);
        EXPECT_EQ(probe(folder / "out.mp4").streamsOf("video").size(), 1U);
    }
}

TEST(AVFoundationExporter, writesTheContainerThatTheFormatNames) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    const auto brandOf = [&](ExportFormat format) {
        ExportRequest request = requestFor(source.path, folder / "out");
        request.format = format;
        runExport(request);
        return probe(folder / "out").format.text("tags.major_brand");
    };
    EXPECT_EQ(brandOf(ExportFormat::mov), "qt  ");
    EXPECT_THAT(brandOf(ExportFormat::mp4), testing::AnyOf("isom", "mp42", "iso5", "iso6"));
}

/// What the encoder says about itself in the file, from such a word on.
std::string encoderSettings(const std::filesystem::path& path, const std::string& begin) {
    const std::string file = contentsOf(path);
    const std::size_t start = file.find(begin);
    if (start == std::string::npos)
        return {};
    const auto isText = [](char c) { return c >= ' ' && c <= '~'; };
    const auto end =
        std::find_if_not(file.begin() + static_cast<std::ptrdiff_t>(start), file.end(), isText);
    return {file.begin() + static_cast<std::ptrdiff_t>(start), end};
}

TEST(AVFoundationExporter, asksForTheSameHighestQualityInBothFormats) {
    const Fixture source = makeFixture({.duration = 1});
    const TemporaryFolder folder;
    for (const ExportFormat format : {ExportFormat::mp4, ExportFormat::mov}) {
        const std::string name = format == ExportFormat::mov ? "out.mov" : "out.mp4";
        ExportRequest request = requestFor(source.path, folder / name);
        request.startTime = 0;
        request.endTime = 0.2;
        request.format = format;
        runExport(request);
        const std::string settings = encoderSettings(folder / name, "options: ");
        for (const char* each : {" rc=crf ", " crf=17.1 ", " subme=2 ", " qcomp=0.85 ",
                                 " aq=2:0.90", " deblock=1:1:1 ", " b_adapt=0 "})
            EXPECT_THAT(settings, testing::HasSubstr(each)) << name;
        // Scaled down it loses the grain that hides the encoder's errors.
        request.maxShortEdge = 120;
        runExport(request);
        EXPECT_THAT(encoderSettings(folder / name, "options: "), testing::HasSubstr(" crf=16.1 "));
    }
}

TEST(AVFoundationExporter, asksForTheSameHighestQualityOfDeepPicturesInBothFormats) {
    const auto source = testsupport::cachedMedia(
        "deep-halfsecond.mkv", {"-f", "lavfi", "-i", "testsrc2=s=320x240:r=30:d=0.5", "-pix_fmt",
                                "yuv420p10le", "-c:v", "ffv1"});
    const TemporaryFolder folder;
    for (const ExportFormat format : {ExportFormat::mp4, ExportFormat::mov}) {
        const std::string name = format == ExportFormat::mov ? "out.mov" : "out.mp4";
        ExportRequest request = requestFor(source, folder / name);
        request.startTime = 0;
        request.endTime = 0.2;
        request.format = format;
        runExport(request);
        EXPECT_EQ(probe(folder / name).streamsOf("video").at(0).text("codec_name"), "hevc");
        const std::string settings = encoderSettings(folder / name, "options: ");
        for (const char* each :
             {" rc=crf ", " crf=11.0 ", " psy-rd=0.00 ", " deblock=2:2 ", " ctu=16 "})
            EXPECT_THAT(settings, testing::HasSubstr(each)) << name;
    }
}

TEST(AVFoundationExporter, replacesAnExistingFile) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    std::ofstream(folder / "out.mp4") << "old";
    runExport(requestFor(source.path, folder / "out.mp4"));
    EXPECT_EQ(testsupport::readNumberedFrames(folder / "out.mp4").size(), 30U);
}

TEST(AVFoundationExporter, failsWithoutAVideoTrackAndLeavesAnExistingFileUntouched) {
    const TemporaryFolder folder;
    std::ofstream(folder / "out.mp4") << "old";
    const ExportRequest request = requestFor(soundOnly(), folder / "out.mp4");
    try {
        runExport(request);
        FAIL() << "no error";
    } catch (const AVFoundationExporter::ExportError& error) {
        EXPECT_EQ(error.kind(), Kind::noVideoTrack);
        EXPECT_STREQ(error.what(), "The source file contains no video track.");
    }
    EXPECT_EQ(contentsOf(folder / "out.mp4"), "old");
}

TEST(AVFoundationExporter, refusesToWriteOverItsSource) {
    const Fixture original = makeFixture({});
    const TemporaryFolder folder;
    const auto source = folder / "source.mp4";
    std::filesystem::copy_file(original.path, source);
    std::filesystem::create_symlink(source, folder / "link.mp4");
    std::filesystem::create_hard_link(source, folder / "hard.mp4");
    const std::string before = contentsOf(source);
    for (const char* output : {"source.mp4", "link.mp4", "hard.mp4"}) {
        try {
            runExport(requestFor(source, folder / output));
            FAIL() << "no error";
        } catch (const AVFoundationExporter::ExportError& error) {
            EXPECT_EQ(error.kind(), Kind::sessionCreationFailed);
            EXPECT_STREQ(error.what(), "Couldn't create an export session for this video.");
        }
    }
    EXPECT_EQ(contentsOf(source), before);
    EXPECT_EQ(filesIn(folder.path()), 3U);
}

// An error of a type that nothing may derive from once lost its cause.
TEST(AVFoundationExporter, keepsTheCauseOfARefusalBesideTheMessage) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(makeFixture({}).path, folder / "source.mp4");
    std::string cause;
    try {
        runExport(requestFor(folder / "source.mp4", folder / "source.mp4"));
        FAIL() << "no error";
    } catch (const AVFoundationExporter::ExportError& error) {
        try {
            std::rethrow_if_nested(error);
        } catch (const media::Error& nested) {
            cause = nested.what();
        }
    }
    EXPECT_EQ(cause, "The video can’t be exported over itself.");
}

TEST(AVFoundationExporter, exportsTheOpenFileWhateverItsNameLeadsTo) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(makeFixture({}).path, folder / "source.mp4");
    ExportRequest request = requestFor(folder / "source.mp4", folder / "out.mp4");
    request.asset = media::Asset::open(folder / "source.mp4");
    std::filesystem::remove(folder / "source.mp4");
    runExport(request);
    const auto frames = testsupport::readNumberedFrames(folder / "out.mp4");
    ASSERT_EQ(frames.size(), 30U);
    EXPECT_EQ(frames.front().number, 15);
}

TEST(AVFoundationExporter, passesOnWhatIsWrongWithTheSource) {
    const TemporaryFolder folder;
    EXPECT_THROW(runExport(requestFor(folder / "missing.mp4", folder / "out.mp4")), media::Error);
    EXPECT_EQ(failureOf(requestFor(folder / "missing.mp4", folder / "out.mp4")),
              "Couldn't open “missing.mp4”: The file doesn’t exist.");
    EXPECT_EQ(filesIn(folder.path()), 0U);
}

TEST(AVFoundationExporter, leavesAnExistingFileUntouchedWhenTheExportFails) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    std::ofstream(folder / "out.mp4") << "old";
    ExportRequest request = requestFor(source.path, folder / "out.mp4");
    request.endTime = request.startTime;
    EXPECT_THROW(runExport(request), media::Error);
    request.outputURL = urlOf(folder / "missing" / "out.mp4");
    request.endTime = 1.5;
    EXPECT_THROW(runExport(request), media::Error);
    EXPECT_EQ(contentsOf(folder / "out.mp4"), "old");
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST(AVFoundationExporter, keepsARangeInsideTheSource) {
    const Fixture source = makeFixture({.audioTracks = 0});
    const TemporaryFolder folder;
    ExportRequest request = requestFor(source.path, folder / "out.mp4");
    request.startTime = -0.06;
    request.endTime = 100;
    runExport(request);
    EXPECT_EQ(testsupport::readNumberedFrames(folder / "out.mp4").size(), source.frames.size());
    EXPECT_NEAR(probe(folder / "out.mp4").format.number("duration").value_or(0), 4, 0.002);
}

TEST(AVFoundationExporter, takesNamesThatAreNoText) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    std::filesystem::copy_file(source.path, folder / "in\xff.mp4");
    runExport(requestFor(folder / "in\xff.mp4", folder / "out\xfe \"'\xf0\x9f\x98\x80.mp4"));
    EXPECT_TRUE(std::filesystem::exists(folder / "out\xfe \"'\xf0\x9f\x98\x80.mp4"));
}

TEST(AVFoundationExporter, reportsProgressOffTheMainThreadUntilItEnds) {
    const Fixture source = makeFixture({.duration = 20, .width = 640, .height = 480});
    const TemporaryFolder folder;
    ExportRequest request = requestFor(source.path, folder / "out.mp4");
    request.endTime = 20;
    std::mutex mutex;
    std::vector<double> reports;
    std::atomic<bool> hasEnded = false;
    std::atomic<bool> wasLate = false;
    std::atomic<bool> wasOnMainThread = false;
    const auto begin = std::chrono::steady_clock::now();
    runExport(request, [&](double fraction) {
        const std::scoped_lock lock(mutex);
        reports.push_back(fraction);
        wasLate = wasLate || hasEnded;
        wasOnMainThread = wasOnMainThread || isMainThread();
    });
    hasEnded = true;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;

    EXPECT_FALSE(wasLate);
    EXPECT_FALSE(wasOnMainThread);
    ASSERT_FALSE(reports.empty());
    EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
    EXPECT_GE(reports.front(), 0);
    EXPECT_LE(reports.back(), 1);
    // However fast or slow the machine is: each two reports lie a tenth of a second apart.
    EXPECT_LE(static_cast<double>(reports.size() - 1) * 0.1, took.count());
}

TEST(AVFoundationExporter, endsWithACancellationWhenStopped) {
    const Fixture source = makeFixture({.duration = 20, .width = 640, .height = 480});
    const TemporaryFolder folder;
    std::ofstream(folder / "out.mp4") << "old";
    ExportRequest request = requestFor(source.path, folder / "out.mp4");
    request.endTime = 20;
    std::stop_source stopping;
    EXPECT_THROW(
        runExport(
            request, [&stopping](double) { stopping.request_stop(); }, stopping.get_token()),
        media::Cancelled);
    EXPECT_EQ(contentsOf(folder / "out.mp4"), "old");
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST(AVFoundationExporter, endsWithACancellationWhenStoppedBeforeItBegins) {
    const Fixture source = makeFixture({});
    const TemporaryFolder folder;
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(runExport(requestFor(source.path, folder / "out.mp4"), {}, stop.get_token()),
                 media::Cancelled);
    EXPECT_EQ(filesIn(folder.path()), 0U);
}

} // namespace
