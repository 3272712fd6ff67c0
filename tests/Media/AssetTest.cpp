#include "Media/Asset.h"

#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "TestSupport/ColourTags.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>

namespace media {
namespace {

using testing::DoubleNear;
using testsupport::cachedMedia;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::VideoCodec;

constexpr double kMillisecond = 0.001;

AssetTrack firstTrack(const Asset& asset, MediaType type = MediaType::video) {
    return asset.tracks(type).at(0);
}

TEST(Asset, describesItsTracks) {
    const Fixture fixture = makeFixture({.codec = VideoCodec::hevcTenBit,
                                         .container = "mov",
                                         .frameRate = {30000, 1001},
                                         .audioTracks = 2,
                                         .sampleRate = 44100,
                                         .channels = 2});
    const auto asset = Asset::open(fixture.path);
    EXPECT_EQ(asset->path(), fixture.path);
    ASSERT_EQ(asset->tracks(MediaType::video).size(), 1U);
    const AssetTrack video = firstTrack(*asset);
    EXPECT_EQ(video.type, MediaType::video);
    EXPECT_EQ(video.codec, "hevc");
    EXPECT_EQ(video.naturalSize, (Size{320, 240}));
    EXPECT_EQ(video.codedWidth, 320);
    EXPECT_EQ(video.codedHeight, 240);
    EXPECT_EQ(video.preferredTransform, AffineTransform{});
    EXPECT_NEAR(video.nominalFrameRate, 29.97, 0.01);
    EXPECT_EQ(video.pixelFormat, "yuv420p10le");
    EXPECT_EQ(video.bitsPerComponent, 10);

    const auto sounds = asset->tracks(MediaType::audio);
    ASSERT_EQ(sounds.size(), 2U);
    for (const AssetTrack& sound : sounds) {
        EXPECT_EQ(sound.type, MediaType::audio);
        EXPECT_EQ(sound.codec, "aac");
        EXPECT_EQ(sound.sampleRate, 44100);
        EXPECT_EQ(sound.channels, 2);
    }
    EXPECT_EQ(sounds[0].language, "eng");
    EXPECT_EQ(sounds[1].language, "fra");
    EXPECT_NE(sounds[0].streamIndex, sounds[1].streamIndex);
}

TEST(Asset, tellsTheColourThatTheFileStatesAndNoOther) {
    std::vector<std::string> arguments = {
        "-f",       "lavfi",       "-i",   "testsrc2=s=64x48:d=0.2",
        "-pix_fmt", "yuv420p10le", "-c:v", "libx264"};
    std::ranges::copy(testsupport::colourArguments({"bt2020", "smpte2084", "bt2020nc", "pc"}),
                      std::back_inserter(arguments));
    std::ranges::copy(testsupport::h264ChromaArguments("topleft"), std::back_inserter(arguments));
    const auto tagged = cachedMedia("tagged-bt2020-pq.mp4", arguments);
    const ColorDescription color = firstTrack(*Asset::open(tagged)).color;
    EXPECT_EQ(color.primaries, "bt2020");
    EXPECT_EQ(color.transfer, "smpte2084");
    EXPECT_EQ(color.matrix, "bt2020nc");
    EXPECT_EQ(color.range, "pc");
    EXPECT_EQ(color.chromaLocation, "topleft");
    const ColorDescription none = firstTrack(*Asset::open(makeFixture({}).path)).color;
    EXPECT_EQ(none.primaries, "");
    EXPECT_EQ(none.transfer, "");
    EXPECT_EQ(none.matrix, "");
}

TEST(Asset, countsTimeFromTheEarliestTrack) {
    for (const char* container : {"mp4", "mkv", "ts"}) {
        for (const double offset : {0.0, 1.3, 3.7}) {
            const Fixture fixture = makeFixture({.container = container, .startOffset = offset});
            const auto asset = Asset::open(fixture.path);
            EXPECT_NEAR(firstTrack(*asset).startTime.seconds(), fixture.frames[0].seconds,
                        kMillisecond)
                << fixture.path;
            EXPECT_NEAR(firstTrack(*asset, MediaType::audio).startTime.seconds(),
                        fixture.audio[0].start, 0.025)
                << fixture.path;
            EXPECT_NEAR(asset->duration().seconds(),
                        std::max(fixture.videoEnd(), fixture.audio[0].end), 0.03)
                << fixture.path;
        }
    }
}

/// Opus in Matroska starts before 0, with samples that nobody hears.
TEST(Asset, countsTimeFromTheFirstSampleThatIsHeard) {
    for (const char* container : {"webm", "mp4"}) {
        const Fixture fixture = makeFixture({.codec = VideoCodec::vp9,
                                             .container = container,
                                             .duration = 2,
                                             .audioCodec = testsupport::AudioCodec::opus});
        const auto asset = Asset::open(fixture.path);
        EXPECT_NEAR(firstTrack(*asset).startTime.seconds(), fixture.frames[0].seconds, kMillisecond)
            << container;
        EXPECT_NEAR(firstTrack(*asset, MediaType::audio).startTime.seconds(),
                    fixture.audio[0].start, kMillisecond)
            << container;
    }
}

TEST(Asset, knowsTracksThatStartLaterOrEndEarlier) {
    const Fixture fixture =
        makeFixture({.container = "mov", .audioStart = 1.5, .audioDuration = 1.75});
    const auto asset = Asset::open(fixture.path);
    EXPECT_NEAR(firstTrack(*asset).startTime.seconds(), 0, kMillisecond);
    // The encoder's priming lies before the sound.
    EXPECT_NEAR(firstTrack(*asset, MediaType::audio).startTime.seconds(), 1.5, 0.025);
    EXPECT_NEAR(asset->duration().seconds(), 4, 0.01);
    const auto longSound = Asset::open(makeFixture({.audioDuration = 6}).path);
    EXPECT_NEAR(longSound->duration().seconds(), 6, 0.03);
}

TEST(Asset, knowsWhichWayUpThePictureIs) {
    const AffineTransform transforms[] = {
        {}, {0, 1, -1, 0, 240, 0}, {-1, 0, 0, -1, 320, 240}, {0, -1, 1, 0, 0, 320}};
    for (const int quarter : {0, 1, 2, 3}) {
        const auto asset = Asset::open(
            makeFixture({.container = "mov", .duration = 1, .displayRotation = 90 * quarter}).path);
        const AssetTrack video = firstTrack(*asset);
        EXPECT_EQ(video.preferredTransform, transforms[quarter]) << quarter;
        EXPECT_EQ(video.naturalSize, (Size{320, 240}));
        EXPECT_EQ(orientedSize(video), quarter % 2 == 0 ? (Size{320, 240}) : (Size{240, 320}));
    }
}

TEST(Asset, appliesThePixelAspectToTheWidth) {
    const AssetTrack video =
        firstTrack(*Asset::open(makeFixture({.duration = 1, .pixelAspect = {16, 11}}).path));
    EXPECT_NEAR(video.naturalSize.width, 320 * 16.0 / 11, 1e-9);
    EXPECT_EQ(video.naturalSize.height, 240);
    EXPECT_EQ(video.codedWidth, 320);
}

TEST(Asset, tellsTheAverageRateOfAVariableOne) {
    const Fixture fixture = makeFixture({.hasVariableFrameRate = true});
    const double average = static_cast<double>(fixture.frames.size()) /
                           (fixture.videoEnd() - fixture.frames[0].seconds);
    EXPECT_NEAR(firstTrack(*Asset::open(fixture.path)).nominalFrameRate, average, 0.5);
}

TEST(Asset, takesCoverPicturesForNoVideo) {
    const auto sound = cachedMedia("sound.m4a", {"-f", "lavfi", "-i", "sine=d=1", "-ac", "2"});
    const auto cover =
        cachedMedia("still.png", {"-f", "lavfi", "-i", "testsrc2=s=64x48:d=1", "-frames:v", "1"});
    const auto album = cachedMedia("cover.m4a", {"-i", sound, "-i", cover, "-map", "0", "-map", "1",
                                                 "-c", "copy", "-disposition:v", "attached_pic"});
    const auto asset = Asset::open(album);
    EXPECT_TRUE(asset->tracks(MediaType::video).empty());
    EXPECT_EQ(asset->tracks(MediaType::audio).size(), 1U);
    EXPECT_NEAR(asset->duration().seconds(), 1, 0.05);
}

TEST(Asset, takesOtherTracksForNeitherVideoNorSound) {
    const auto subtitles = cachedMedia("lines.srt", [](const std::filesystem::path& path) {
        writeFile(path, "1\n00:00:00,500 --> 00:30:00,000\nA line.\n\n");
    });
    const auto path =
        cachedMedia("with-subtitles.mkv", {"-i", makeFixture({}).path, "-i", subtitles, "-map", "0",
                                           "-map", "1", "-c", "copy", "-c:s", "srt"});
    const auto asset = Asset::open(path);
    EXPECT_EQ(asset->tracks(MediaType::video).size(), 1U);
    EXPECT_EQ(asset->tracks(MediaType::audio).size(), 1U);
    // Half an hour of a line of text is no half an hour of video.
    EXPECT_NEAR(asset->duration().seconds(), 4, 0.1);
}

TEST(Asset, measuresTheDurationThatAFileDoesNotState) {
    const Fixture fixture = makeFixture({.container = "mkv", .duration = 5});
    const auto live = cachedMedia("no-duration.mkv", {"-i", fixture.path, "-map", "0", "-c", "copy",
                                                      "-live", "1", "-f", "matroska"});
    EXPECT_NEAR(Asset::open(live)->duration().seconds(), 5, 0.05);
    const auto fragmented =
        cachedMedia("fragmented.mp4", {"-i", fixture.path, "-map", "0", "-c", "copy", "-movflags",
                                       "frag_keyframe+empty_moov"});
    // Without an edit list the delays of the encoders belong to it.
    EXPECT_NEAR(Asset::open(fragmented)->duration().seconds(), 5, 0.1);
}

TEST(Asset, opensAsManyTimesAsAsked) {
    const auto path = makeFixture({}).path;
    std::vector<std::shared_ptr<const Asset>> assets;
    for (int i = 0; i < 20; ++i)
        assets.push_back(Asset::open(path));
    for (const auto& asset : assets)
        EXPECT_EQ(asset->duration(), assets[0]->duration());
}

TEST(Asset, givesUpWhenItIsStopped) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(static_cast<void>(Asset::open(makeFixture({}).path, stop.get_token())), Cancelled);
}

} // namespace
} // namespace media
