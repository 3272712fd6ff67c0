#include "Media/ExportSession.h"

#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

/// How an export runs, and which pictures and sounds it takes. That they are the right ones at the
/// right times is held against the frame rule for every format elsewhere.
namespace media {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;
using testsupport::cachedMedia;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::NumberedFrame;
using testsupport::probe;
using testsupport::ProbedFields;
using testsupport::readHeardTrack;
using testsupport::readNumberedFrames;
using testsupport::TemporaryFolder;
using testsupport::VideoCodec;

using ExportSessionTest = ExportTest;

constexpr double kMillisecond = 0.001;

std::vector<int> numbersOf(const std::vector<NumberedFrame>& frames) {
    std::vector<int> numbers;
    for (const NumberedFrame& frame : frames)
        numbers.push_back(frame.number);
    return numbers;
}

std::vector<double> timesOf(const std::vector<NumberedFrame>& frames) {
    std::vector<double> times;
    for (const NumberedFrame& frame : frames)
        times.push_back(frame.seconds);
    return times;
}

TEST_F(ExportSessionTest, reportsProgressThatNeverDecreasesAndReachesOne) {
    StagedExportSession session(compositionOf(Asset::open(longFixture().path)),
                                m_folder / "out.mp4", FileType::mpeg4);
    EXPECT_EQ(session.progress(), 0);
    RunningExport running(session);
    std::vector<double> reports;
    EXPECT_TRUE(waitUntil([&] {
        const double progress = session.progress();
        if (reports.empty() || progress != reports.back())
            reports.push_back(progress);
        return session.state() == ExportSession::State::completed;
    }));
    running.join();
    EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
    EXPECT_GT(reports.size(), 10U);
    EXPECT_EQ(session.progress(), 1);
}

TEST_F(ExportSessionTest, tellsHowFarItIs) {
    const auto asset = Asset::open(makeFixture({}).path);
    StagedExportSession session(compositionOf(asset), m_folder / "out.mp4", FileType::mpeg4);
    EXPECT_EQ(session.state(), ExportSession::State::waiting);
    session.run();
    EXPECT_EQ(session.state(), ExportSession::State::completed);

    StagedExportSession failing(compositionOf(asset), m_folder / "missing/out.mp4",
                                FileType::mpeg4);
    EXPECT_THROW(failing.run(), Error);
    EXPECT_EQ(failing.state(), ExportSession::State::failed);
    EXPECT_LT(failing.progress(), 1);

    StagedExportSession stopped(compositionOf(asset), m_folder / "stopped.mp4", FileType::mpeg4);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(stopped.run(stop.get_token()), Cancelled);
    EXPECT_EQ(stopped.state(), ExportSession::State::cancelled);
}

TEST_F(ExportSessionTest, needsAVideoTrack) {
    Composition composition = compositionOf(Asset::open(makeFixture({}).path));
    composition.videoTrack.reset();
    EXPECT_NE(errorOf([&] {
                  const StagedExportSession session(composition, "out.mp4", FileType::mpeg4);
              }),
              "");
    EXPECT_NE(errorOf([&] { const StagedExportSession session({}, "out.mp4", FileType::mpeg4); }),
              "");
}

TEST_F(ExportSessionTest, replacesAnExistingFile) {
    writeFile(m_folder / "out.mp4", "old");
    const auto output = exported(makeFixture({}).path, 1, 2);
    EXPECT_EQ(readNumberedFrames(output).size(), 30U);
    EXPECT_THAT(namesIn(m_folder.path()), ElementsAre("out.mp4"));
}

TEST_F(ExportSessionTest, exportsSeveralRangesOfOneAssetAtATime) {
    const auto asset = Asset::open(makeFixture({.duration = 20}).path);
    StagedExportSession first(compositionOf(asset, 1, 6), m_folder / "first.mp4", FileType::mpeg4);
    StagedExportSession second(compositionOf(asset, 10, 15), m_folder / "second.mp4",
                               FileType::mpeg4);
    {
        RunningExport runningFirst(first);
        RunningExport runningSecond(second);
        runningFirst.join();
        runningSecond.join();
    }
    EXPECT_EQ(readNumberedFrames(m_folder / "first.mp4").front().number, 30);
    EXPECT_EQ(readNumberedFrames(m_folder / "second.mp4").front().number, 300);
}

TEST_F(ExportSessionTest, keepsTheTimesOfAVariableFrameRate) {
    const Fixture fixture = makeFixture({.hasVariableFrameRate = true, .startOffset = 1.3});
    const auto output = exported(fixture.path, 1, 3);
    const auto frames = readNumberedFrames(output);
    std::vector<int> numbers;
    std::vector<double> times;
    for (std::size_t i = 0; i < fixture.frames.size(); ++i) {
        const bool isShown = i + 1 == fixture.frames.size() || fixture.frames[i + 1].seconds > 1;
        if (isShown && fixture.frames[i].seconds < 3) {
            numbers.push_back(fixture.frames[i].number);
            times.push_back(std::max(0.0, fixture.frames[i].seconds - 1));
        }
    }
    EXPECT_EQ(numbersOf(frames), numbers);
    EXPECT_THAT(timesOf(frames), Pointwise(DoubleNear(kMillisecond), times));
    EXPECT_NEAR(videoEnd(output), 2, kMillisecond);
}

TEST_F(ExportSessionTest, exportsASingleFrame) {
    const auto source = cachedMedia(
        "one-frame.mp4", {"-f", "lavfi", "-i", "testsrc2=s=64x48:r=5", "-frames:v", "1"});
    const auto asset = Asset::open(source);
    const auto output = exported(source, 0, asset->duration().seconds());
    const auto packets = testsupport::readPackets(output);
    ASSERT_EQ(packets.size(), 1U);
    EXPECT_NEAR(packets[0].pts, 0, kMillisecond);
    EXPECT_NEAR(packets[0].duration, 0.2, kMillisecond);
    EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
}

TEST_F(ExportSessionTest, exportsARangeInsideOneFrame) {
    const Fixture fixture = makeFixture({.frameRate = {2, 1}, .duration = 4});
    for (const double length : {0.1, 1.0 / 600}) {
        const auto output = exported(fixture.path, 1.2, 1.2 + length);
        const auto frames = readNumberedFrames(output);
        ASSERT_EQ(frames.size(), 1U);
        EXPECT_EQ(frames[0].number, 2);
        EXPECT_NEAR(videoEnd(output), length, kMillisecond);
    }
}

TEST_F(ExportSessionTest, rendersOneFrameForEachOfItsMoments) {
    const Fixture fixture = makeFixture({.frameRate = {24000, 1001}});
    const auto asset = Asset::open(fixture.path);
    const auto track = asset->tracks(MediaType::video)[0];
    for (const int rate : {10, 24, 60}) {
        const auto output =
            exportedAs(compositionOf(asset, 1, 2.05), renderedAt(track, 160, 120, rate));
        const auto frames = readNumberedFrames(output);
        // Every n with n / rate < 1.05.
        ASSERT_EQ(frames.size(), static_cast<std::size_t>(std::ceil(1.05 * rate - 1e-9)));
        for (std::size_t n = 0; n < frames.size(); ++n)
            ASSERT_NEAR(frames[n].seconds, static_cast<double>(n) / rate, kMillisecond);
        EXPECT_NEAR(videoEnd(output), 1.05, kMillisecond);
        EXPECT_EQ(frames.front().number, 23);
    }
}

TEST_F(ExportSessionTest, exportsWithoutSound) {
    const Fixture fixture = makeFixture({.audioTracks = 0});
    const auto output = exported(fixture.path, 0.5, 1.5);
    EXPECT_EQ(probe(output).streams.size(), 1U);
    EXPECT_EQ(readNumberedFrames(output).size(), 30U);
}

TEST_F(ExportSessionTest, leavesOutSoundThatIsNotAskedFor) {
    Composition composition =
        compositionOf(Asset::open(makeFixture({.audioTracks = 2}).path), 0, 1);
    composition.audioTracks.erase(composition.audioTracks.begin());
    StagedExportSession(composition, m_folder / "out.mp4", FileType::mpeg4).run();
    const auto sounds = probe(m_folder / "out.mp4").streamsOf("audio");
    ASSERT_EQ(sounds.size(), 1U);
    EXPECT_EQ(sounds[0].text("tags.language"), "fra");
}

TEST_F(ExportSessionTest, letsSoundStartLaterAndEndEarlierThanThePicture) {
    const Fixture fixture =
        makeFixture({.container = "mov", .duration = 6, .audioStart = 1.5, .audioDuration = 2.75});
    const auto output = exported(fixture.path, 0.5, 5.5);
    const auto heard = readHeardTrack(output);
    EXPECT_THAT(heard.clicks,
                ElementsAre(DoubleNear(1.5, kMillisecond), DoubleNear(2.5, kMillisecond),
                            DoubleNear(3.5, kMillisecond)));
    EXPECT_NEAR(probe(output).format.number("duration").value(), 5, 0.03);
    EXPECT_EQ(readNumberedFrames(output).size(), 150U);
    EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
}

TEST_F(ExportSessionTest, keepsATrackWhoseSoundLiesOutsideTheRange) {
    const Fixture fixture =
        makeFixture({.container = "mov", .duration = 6, .audioStart = 1.5, .audioDuration = 1.75});
    for (const auto& [start, end] : {std::pair{4.0, 5.0}, std::pair{0.2, 1.2}}) {
        const auto output = exported(fixture.path, start, end);
        EXPECT_EQ(probe(output).streamsOf("audio").size(), 1U);
        EXPECT_THAT(testsupport::readClicks(output), testing::IsEmpty());
        EXPECT_EQ(readNumberedFrames(output).size(), 30U);
        EXPECT_NEAR(probe(output).format.number("duration").value(), 1, 0.03);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
    }
}

TEST_F(ExportSessionTest, letsThePictureStandWhereOnlySoundIsLeft) {
    const Fixture fixture = makeFixture({.duration = 2, .audioDuration = 5});
    const auto output = exported(fixture.path, 1, 4);
    EXPECT_EQ(readNumberedFrames(output).back().number, fixture.frames.back().number);
    EXPECT_NEAR(videoEnd(output), 3, kMillisecond);
    EXPECT_THAT(testsupport::readClicks(output), testing::Contains(DoubleNear(2, kMillisecond)));
    // And where nothing else is in the range at all.
    const auto after = exported(fixture.path, 3, 4);
    ASSERT_EQ(readNumberedFrames(after).size(), 1U);
    EXPECT_EQ(readNumberedFrames(after)[0].number, fixture.frames.back().number);
    EXPECT_NEAR(videoEnd(after), 1, kMillisecond);
}

TEST_F(ExportSessionTest, letsTheLastPictureStandBeyondTheEndOfEverything) {
    const Fixture fixture = makeFixture({});
    const auto output = exported(fixture.path, 3, 6);
    const auto frames = readNumberedFrames(output);
    EXPECT_EQ(frames.size(), 30U);
    EXPECT_EQ(frames.back().number, fixture.frames.back().number);
    EXPECT_NEAR(videoEnd(output), 3, kMillisecond);
    EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
}

TEST_F(ExportSessionTest, keepsEveryAudioTrackWithItsLanguageChannelsAndRate) {
    const Fixture fixture = makeFixture({.container = "mkv",
                                         .audioTracks = 3,
                                         .audioCodec = testsupport::AudioCodec::pcm,
                                         .sampleRate = 44100,
                                         .channels = 2});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(fixture.path, 0.5, 3.5, type);
        const auto sounds = probe(output).streamsOf("audio");
        ASSERT_EQ(sounds.size(), 3U);
        const char* const languages[] = {"eng", "fra", type == FileType::mpeg4 ? "deu" : "ger"};
        for (std::size_t i = 0; i < sounds.size(); ++i) {
            EXPECT_EQ(sounds[i].text("codec_name"), "aac");
            EXPECT_EQ(sounds[i].text("profile"), "LC");
            EXPECT_EQ(sounds[i].number("channels"), 2);
            EXPECT_EQ(sounds[i].number("sample_rate"), 44100);
            EXPECT_EQ(sounds[i].text("tags.language"), languages[i]);
            const double phase = 0.1 * static_cast<double>(i);
            EXPECT_THAT(testsupport::readClicks(output, static_cast<int>(i)),
                        testing::Contains(DoubleNear(0.5 + phase, kMillisecond)));
        }
    }
}

TEST_F(ExportSessionTest, mixesTheSoundDownOnlyWhereAacHasNoSuchRate) {
    const auto source =
        cachedMedia("rate-192000.mkv", {"-f", "lavfi", "-i", "testsrc2=s=64x48:d=1", "-f", "lavfi",
                                        "-i", "sine=d=1:r=192000", "-c:a", "pcm_s24le"});
    const auto sound = probe(exported(source, 0, 1)).streamsOf("audio").at(0);
    EXPECT_LE(sound.number("sample_rate"), 96000);
    EXPECT_GE(sound.number("sample_rate"), 48000);
    const auto surround =
        cachedMedia("surround.mkv", {"-f", "lavfi", "-i", "testsrc2=s=64x48:d=1", "-f", "lavfi",
                                     "-i", "anoisesrc=d=1:r=48000", "-af",
                                     "aformat=channel_layouts=5.1", "-c:a", "flac"});
    EXPECT_EQ(probe(exported(surround, 0, 1)).streamsOf("audio").at(0).number("channels"), 6);
}

} // namespace
} // namespace media
