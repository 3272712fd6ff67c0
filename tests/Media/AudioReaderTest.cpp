#include "Media/Reading/AudioReader.h"

#include "Media/Error.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Reading/OpenedAsset.h"
#include "TestSupport/ClickTrack.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

namespace media {
namespace {

using testsupport::AudioCodec;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::Recipe;

constexpr double kMillisecond = 0.001;
/// What comes from reading positions with a precision of a millisecond in Matroska and FLV.
constexpr double kRounding = 0.0005;

struct Sound {
    std::vector<float> samples; ///< Of the first channel.
    int sampleRate = 0;
    int channels = 0;
};

std::shared_ptr<const OpenedAsset> opened(const std::filesystem::path& path) {
    return OpenedAsset::open(path);
}

AudioReader makeReader(const std::shared_ptr<const Asset>& asset, int track = 0,
                       AudioReader::Format format = {}) {
    const auto tracks = asset->tracks(MediaType::audio);
    return {asset, tracks.at(static_cast<std::size_t>(track)), format};
}

Time seconds(double value) {
    return Time::fromSeconds(value, 48000);
}

/// Reads up to `duration` seconds, and checks on the way that the blocks follow one another.
Sound readSound(AudioReader& reader, double duration) {
    Sound sound;
    sound.sampleRate = reader.sampleRate();
    sound.channels = reader.channelLayout().nb_channels;
    const auto wanted = static_cast<std::size_t>(duration * sound.sampleRate);
    while (sound.samples.size() < wanted) {
        const auto block = reader.next();
        if (!block)
            break;
        EXPECT_EQ(block->pts, static_cast<std::int64_t>(sound.samples.size()));
        EXPECT_EQ(block->format, AV_SAMPLE_FMT_FLTP);
        EXPECT_GT(block->nb_samples, 0);
        const auto* first = reinterpret_cast<const float*>(block->extended_data[0]);
        sound.samples.insert(sound.samples.end(), first, first + block->nb_samples);
    }
    return sound;
}

std::vector<double> clicksOf(const Sound& sound, double start) {
    std::vector<double> result;
    for (const std::size_t click : testsupport::findClicks(sound.samples, sound.sampleRate))
        result.push_back(start + static_cast<double>(click) / sound.sampleRate);
    return result;
}

/// Without the click that lies on the edge and may be cut.
std::vector<double> clicksAfter(const std::vector<double>& clicks, double start) {
    std::vector<double> result;
    std::ranges::copy_if(clicks, std::back_inserter(result),
                         [&](double click) { return click > start + kMillisecond; });
    return result;
}

void expectClicks(const std::vector<double>& found, const std::vector<double>& expected,
                  double tolerance = kMillisecond + kRounding) {
    EXPECT_THAT(found, testing::Pointwise(testing::DoubleNear(tolerance), expected));
}

/// When the clicks of a track are heard on the asset's time line.
std::vector<double> clicksOn(const OpenedAsset& asset, const Fixture& fixture, std::size_t track) {
    std::vector<double> result = fixture.audio.at(track).clicks;
    for (double& click : result)
        click += fixture.clockStart - asset.info().origin.seconds();
    return result;
}

void expectClicksAfterSeeks(const std::shared_ptr<const Asset>& asset,
                            const std::vector<double>& clicks, int track = 0,
                            AudioReader::Format format = {}) {
    AudioReader reader = makeReader(asset, track, format);
    expectClicks(clicksOf(readSound(reader, 100), 0), clicks);
    for (const double start : {0.0, 0.4, 4.45, 1.97, 3.0 - 0.004, 5.2, 2.5, 0.97}) {
        SCOPED_TRACE("from " + std::to_string(start));
        reader.seek(seconds(start));
        expectClicks(clicksAfter(clicksOf(readSound(reader, 100), start), start),
                     clicksAfter(clicks, start));
    }
}

void expectClicksAfterSeeks(const Fixture& fixture, AudioReader::Format format = {}) {
    const auto asset = opened(fixture.path);
    for (std::size_t track = 0; track < fixture.audio.size(); ++track)
        expectClicksAfterSeeks(asset, clicksOn(*asset, fixture, track), static_cast<int>(track),
                               format);
}

struct Format {
    const char* container;
    const char* encoder;
    int sampleRate;
};

void PrintTo(const Format& format, std::ostream* stream) {
    *stream << format.container << " " << format.encoder << " " << format.sampleRate;
}

class AudioReaderFormats : public testing::TestWithParam<Format> {};

class AudioReaderCounts : public testing::TestWithParam<const char*> {};

TEST_P(AudioReaderFormats, findsEveryClickAfterAnySeek) {
    const Format& format = GetParam();
    Recipe recipe{.container = format.container,
                  .duration = 6,
                  .groupOfPictures = 60,
                  .bFrames = 0,
                  .sampleRate = format.sampleRate,
                  .additionalArguments = {"-c:a", format.encoder}};
    if (recipe.container == "webm")
        recipe.codec = testsupport::VideoCodec::vp9;
    // Their clocks cannot go below zero to where the encoder's priming lies.
    if (recipe.container == "ts" || recipe.container == "webm")
        recipe.startOffset = 1;
    expectClicksAfterSeeks(makeFixture(recipe));
}

/// AVI has no timestamps but counts, so what precedes the first sound cannot be told: where the
/// clicks are is taken from playing the file from its start.
TEST_P(AudioReaderCounts, findsEveryClickAfterAnySeek) {
    const auto path = testsupport::cachedMedia(
        std::string("clicks-") + GetParam() + ".avi",
        {"-i",
         makeFixture({.container = "mov", .duration = 6, .audioCodec = AudioCodec::pcm})
             .path.string(),
         "-c:v", "mpeg4", "-c:a", GetParam()});
    const auto asset = opened(path);
    expectClicksAfterSeeks(asset, testsupport::readClicks(path));
}

INSTANTIATE_TEST_SUITE_P(Codecs, AudioReaderCounts,
                         testing::Values("libmp3lame", "ac3", "aac", "pcm_s16le"),
                         [](const auto& test) { return std::string(test.param); });

INSTANTIATE_TEST_SUITE_P(
    Containers, AudioReaderFormats,
    testing::Values(Format{"mp4", "aac", 48000}, Format{"mp4", "aac", 44100},
                    Format{"mp4", "libmp3lame", 44100}, Format{"mp4", "ac3", 48000},
                    Format{"mp4", "libopus", 48000}, Format{"mov", "aac", 44100},
                    Format{"mov", "pcm_s16le", 44100}, Format{"mov", "pcm_s24be", 48000},
                    Format{"mkv", "aac", 44100}, Format{"mkv", "libmp3lame", 44100},
                    Format{"mkv", "libvorbis", 44100}, Format{"mkv", "ac3", 48000},
                    Format{"mkv", "flac", 44100}, Format{"mkv", "pcm_s16le", 44100},
                    Format{"ts", "aac", 44100}, Format{"ts", "libmp3lame", 44100},
                    Format{"ts", "ac3", 48000}, Format{"ts", "libopus", 48000},
                    Format{"webm", "libopus", 48000}, Format{"webm", "libvorbis", 44100},
                    Format{"flv", "aac", 44100}, Format{"flv", "libmp3lame", 44100}),
    [](const auto& test) {
        return std::string(test.param.container) + "_" + test.param.encoder + "_" +
               std::to_string(test.param.sampleRate);
    });

TEST(AudioReader, keepsTracksApart) {
    expectClicksAfterSeeks(makeFixture({.container = "mkv", .duration = 6, .audioTracks = 3}));
}

TEST(AudioReader, followsAContainerClockThatDoesNotBeginAtZero) {
    for (const char* container : {"mp4", "mov", "mkv", "ts"}) {
        SCOPED_TRACE(container);
        expectClicksAfterSeeks(
            makeFixture({.container = container, .duration = 6, .startOffset = 3.7}));
    }
}

TEST(AudioReader, isSilentBeforeALateTrackAndEndsWithIt) {
    for (const char* container : {"mp4", "mov", "mkv", "ts"}) {
        SCOPED_TRACE(container);
        const Fixture fixture = makeFixture(
            {.container = container, .duration = 6, .audioStart = 1.5, .audioDuration = 2});
        expectClicksAfterSeeks(fixture);
        AudioReader reader = makeReader(opened(fixture.path));
        const Sound sound = readSound(reader, 100);
        EXPECT_TRUE(std::all_of(sound.samples.begin(),
                                sound.samples.begin() + static_cast<int>(1.4 * sound.sampleRate),
                                [](float sample) { return sample == 0; }));
        EXPECT_NEAR(static_cast<double>(sound.samples.size()) / sound.sampleRate,
                    fixture.audio[0].end, 0.03);
    }
}

TEST(AudioReader, givesNothingBehindTheEnd) {
    AudioReader reader = makeReader(
        opened(makeFixture({.container = "mp4", .duration = 6, .audioDuration = 2}).path));
    reader.seek(seconds(4));
    EXPECT_EQ(reader.next(), nullptr);
    EXPECT_EQ(reader.next(), nullptr);
    reader.seek(seconds(0.5));
    EXPECT_NE(reader.next(), nullptr);
}

/// A copy of `source` whose sound is gone between two times.
std::filesystem::path withHole(const Fixture& source, const std::string& container) {
    return testsupport::cachedMedia("sound-missing-2.2s-to-3.5s." + container,
                                    {"-copyts", "-i", source.path.string(), "-c", "copy",
                                     "-muxdelay", "0", "-muxpreload", "0", "-bsf:a",
                                     "noise=amount=0:drop=gt(pts*tb\\,2.2)*lt(pts*tb\\,3.5)"});
}

TEST(AudioReader, fillsHolesWithSilence) {
    for (const char* container : {"mkv", "ts"}) {
        SCOPED_TRACE(container);
        const auto path = withHole(makeFixture({.container = container, .duration = 6}), container);
        const auto asset = opened(path);
        AudioReader reader = makeReader(asset);
        std::vector<double> expected = testsupport::readClicks(path);
        for (double& click : expected)
            click -= asset->info().origin.seconds();
        ASSERT_EQ(expected.size(), 5U);
        expectClicks(clicksOf(readSound(reader, 100), 0), expected);
        reader.seek(seconds(2.7));
        const Sound sound = readSound(reader, 100);
        expectClicks(clicksAfter(clicksOf(sound, 2.7), 2.7), clicksAfter(expected, 2.7));
        EXPECT_TRUE(std::all_of(sound.samples.begin(),
                                sound.samples.begin() + static_cast<int>(0.6 * sound.sampleRate),
                                [](float sample) { return sample == 0; }));
    }
}

TEST(AudioReader, convertsRateAndChannelsWithoutShift) {
    const Fixture fixture = makeFixture(
        {.container = "mov", .duration = 6, .audioCodec = AudioCodec::pcm, .sampleRate = 44100});
    const AudioReader::Format format{AV_SAMPLE_FMT_FLTP, 48000, 2};
    expectClicksAfterSeeks(fixture, format);
    AudioReader reader = makeReader(opened(fixture.path), 0, format);
    EXPECT_EQ(reader.sampleRate(), 48000);
    EXPECT_EQ(reader.channelLayout().nb_channels, 2);
    const Sound sound = readSound(reader, 100);
    EXPECT_NEAR(static_cast<double>(sound.samples.size()), 6 * 48000, 48);
}

TEST(AudioReader, isExactToTheSampleForSoundWithoutLoss) {
    const Fixture fixture = makeFixture(
        {.container = "mov", .duration = 6, .audioCodec = AudioCodec::pcm, .sampleRate = 44100});
    AudioReader reader = makeReader(opened(fixture.path));
    const Sound whole = readSound(reader, 100);
    ASSERT_EQ(whole.samples.size(), 6U * 44100);
    for (const int start : {0, 1, 44099, 100'001, 6 * 44100 - 1}) {
        reader.seek({start, 44100});
        const Sound part = readSound(reader, 100);
        EXPECT_TRUE(std::ranges::equal(
            part.samples, std::span(whole.samples).subspan(static_cast<std::size_t>(start))))
            << "from sample " << start;
    }
}

TEST(AudioReader, mixesManyUnnamedChannelsToStereo) {
    const auto path = testsupport::cachedMedia(
        "ten-unnamed-channels.mov",
        {"-f", "lavfi", "-i", "testsrc2=size=64x64:duration=1", "-f", "lavfi", "-i",
         "aevalsrc=0.5|0|0|0|0|0|0|0|0|0:s=48000:d=1", "-c:v", "mjpeg", "-c:a", "pcm_s16le"});
    const auto asset = opened(path);
    AudioReader reader = makeReader(asset, 0, {AV_SAMPLE_FMT_FLTP, 0, 2});
    const Sound sound = readSound(reader, 10);
    EXPECT_EQ(sound.channels, 2);
    EXPECT_EQ(sound.samples.size(), 48000U);
    EXPECT_NEAR(sound.samples[24000], 0.5F, 0.4F);
}

TEST(AudioReader, goesOnThroughChangesOfRateAndChannels) {
    const testsupport::TemporaryFolder folder;
    const Fixture first = makeFixture(
        {.container = "ts", .duration = 3, .audioCodec = AudioCodec::mp2, .sampleRate = 44100});
    const Fixture second = makeFixture({.container = "ts",
                                        .duration = 3,
                                        .startOffset = 3.5,
                                        .audioCodec = AudioCodec::mp2,
                                        .sampleRate = 48000,
                                        .channels = 2});
    const auto path = folder / "joined.ts";
    std::ofstream(path, std::ios::binary) << std::ifstream(first.path, std::ios::binary).rdbuf()
                                          << std::ifstream(second.path, std::ios::binary).rdbuf();
    AudioReader reader = makeReader(opened(path));
    std::vector<double> expected = first.audio[0].clicks;
    const double shift = second.clockStart - first.clockStart;
    for (const double click : second.audio[0].clicks)
        expected.push_back(click + shift);
    expectClicks(clicksOf(readSound(reader, 100), 0), expected);
    EXPECT_EQ(reader.sampleRate(), 44100);
}

TEST(AudioReader, stopsWhenAsked) {
    AudioReader reader = makeReader(opened(makeFixture({.container = "mp4"}).path));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(reader.next(stop.get_token()), Cancelled);
    EXPECT_THROW(
        {
            reader.seek(seconds(1), stop.get_token());
            reader.next(stop.get_token());
        },
        Cancelled);
    reader.seek(seconds(1));
    EXPECT_NE(reader.next(), nullptr);
}

/// The sound of real files: comes in one run that is about as long as the file, from the start and
/// from its middle.
TEST(AudioReader, readsTheSoundOfRealFilesToTheEnd) {
    const std::filesystem::path folder =
        std::filesystem::path(BRISKLET_SOURCE_DIR) / ".." / "shared" / "media";
    if (!std::filesystem::exists(folder))
        GTEST_SKIP() << "the collection of real files is not here";
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path().filename().string());
        std::shared_ptr<const Asset> asset;
        try {
            asset = opened(entry.path());
        } catch (const Error&) {
            continue;
        }
        const auto tracks = asset->tracks(MediaType::audio);
        for (std::size_t i = 0; i < tracks.size(); ++i) {
            try {
                AudioReader reader = makeReader(asset, static_cast<int>(i));
                const Sound whole = readSound(reader, 1e6);
                const double length = static_cast<double>(whole.samples.size()) / whole.sampleRate;
                EXPECT_LE(length, asset->duration().seconds() + 1);
                reader.seek(Time::fromSeconds(length / 2, 600));
                const Sound rest = readSound(reader, 1e6);
                EXPECT_NEAR(static_cast<double>(rest.samples.size()) / rest.sampleRate, length / 2,
                            0.1);
                ++files;
            } catch (const Error& error) {
                std::cout << entry.path().filename() << " track " << i << ": " << error.what()
                          << '\n';
            }
        }
    }
    EXPECT_GT(files, 20);
}

} // namespace
} // namespace media
