#include "Media/ExportFixture.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Mp4Boxes.h"
#include "Media/Reading/OpenedAsset.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gmock/gmock.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>
#include <ostream>

/// Every kind of sound comes out with its channels in their places, at its level and in its time.
namespace media {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testsupport::cachedMedia;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::probe;

constexpr double kMillisecond = 0.001;
constexpr double kLevel = 0.2;

struct Sound {
    const char* encoder;
    int sampleRate;
    const char* layout;
    int channels;
    /// What the export has.
    int exportedRate;
    const char* exportedLayout;

    [[nodiscard]] std::string name() const {
        return std::string(encoder) + "_" + std::to_string(sampleRate) + "_" +
               std::to_string(channels) + (std::strchr(layout, '(') ? "_side" : "");
    }

    /// Otherwise printed as bytes, among them addresses, which are part of the names of tests.
    friend void PrintTo(const Sound& sound, std::ostream* stream) { *stream << sound.name(); }
};

/// The tone of each channel; what an effects channel holds lies below 120 Hz. Hz.
double toneOf(const Sound& sound, int channel) {
    const bool hasEffects = sound.channels >= 6;
    return hasEffects && channel == 3 ? 60 : 300 + 100 * channel;
}

std::filesystem::path tonesOf(const Sound& sound) {
    std::string expressions;
    for (int channel = 0; channel < sound.channels; ++channel) {
        if (channel > 0)
            expressions += '|';
        expressions += std::to_string(kLevel);
        expressions += "*sin(2*PI*t*";
        expressions += std::to_string(toneOf(sound, channel));
        expressions += ')';
    }
    return cachedMedia("tones-" + sound.name() + ".mov",
                       {"-f", "lavfi", "-i", "testsrc2=s=64x48:r=25:d=2", "-f", "lavfi", "-i",
                        "aevalsrc=exprs=" + expressions + ":c=" + sound.layout +
                            ":s=" + std::to_string(sound.sampleRate) + ":d=2",
                        "-c:a", sound.encoder});
}

/// All channels of a file's first track, interleaved.
std::vector<float> samplesOf(const std::filesystem::path& path) {
    const std::string bytes =
        testsupport::runProcessOrThrow(
            {"ffmpeg", "-nostdin", "-v", "error", "-i", path, "-map", "0:a:0", "-f", "f32le", "-"})
            .output;
    std::vector<float> samples(bytes.size() / sizeof(float));
    std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(float));
    return samples;
}

/// How loud a tone is in one channel, away from the ends.
double levelIn(const std::vector<float>& samples, int channels, int channel, double frequency,
               int sampleRate) {
    const std::size_t count = samples.size() / static_cast<std::size_t>(channels);
    const std::size_t from = count / 5;
    const std::size_t to = count - count / 5;
    std::complex<double> sum;
    for (std::size_t i = from; i < to; ++i) {
        const auto sample = static_cast<double>(
            samples[i * static_cast<std::size_t>(channels) + static_cast<std::size_t>(channel)]);
        const double angle = 2 * std::numbers::pi * frequency * static_cast<double>(i) / sampleRate;
        sum += std::polar(1.0, angle) * sample;
    }
    return 2 * std::abs(sum) / static_cast<double>(to - from);
}

class SoundExport : public ExportTest, public testing::WithParamInterface<Sound> {};

TEST_P(SoundExport, keepsChannelsAndLevels) {
    const Sound& sound = GetParam();
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(tonesOf(sound), 0.5, 1.5, type);
        const auto fields = probe(output).streamsOf("audio").at(0);
        EXPECT_EQ(fields.text("profile"), "LC");
        EXPECT_EQ(fields.number("sample_rate"), sound.exportedRate);
        EXPECT_EQ(fields.number("channels"), sound.channels);
        EXPECT_EQ(fields.text("channel_layout"), sound.exportedLayout);
        EXPECT_NEAR(fields.number("start_time").value(), 0, 1e-6);
        EXPECT_NEAR(fields.number("duration").value(), 1, 0.5 * kMillisecond);
        const auto samples = samplesOf(output);
        ASSERT_FALSE(samples.empty());
        for (int channel = 0; channel < sound.channels; ++channel) {
            for (int tone = 0; tone < sound.channels; ++tone) {
                const double level = levelIn(samples, sound.channels, channel, toneOf(sound, tone),
                                             sound.exportedRate);
                // Within half a decibel, and 40 decibels below.
                const double expected = tone == channel ? kLevel : 0;
                EXPECT_NEAR(level, expected, kLevel * (tone == channel ? 0.06 : 0.01))
                    << "tone " << tone << " in channel " << channel;
            }
        }
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
    }
}

INSTANTIATE_TEST_SUITE_P(Sounds, SoundExport,
                         testing::Values(Sound{"pcm_u8", 8000, "mono", 1, 8000, "mono"},
                                         Sound{"pcm_alaw", 8000, "mono", 1, 8000, "mono"},
                                         Sound{"pcm_mulaw", 11025, "stereo", 2, 11025, "stereo"},
                                         Sound{"pcm_s16be", 22050, "stereo", 2, 22050, "stereo"},
                                         Sound{"pcm_s16le", 44100, "stereo", 2, 44100, "stereo"},
                                         Sound{"pcm_s24be", 88200, "stereo", 2, 88200, "stereo"},
                                         Sound{"pcm_s24le", 96000, "stereo", 2, 96000, "stereo"},
                                         Sound{"pcm_s32le", 48000, "stereo", 2, 48000, "stereo"},
                                         Sound{"pcm_s32be", 32000, "mono", 1, 32000, "mono"},
                                         Sound{"pcm_f32le", 48000, "stereo", 2, 48000, "stereo"},
                                         Sound{"pcm_f64be", 44100, "mono", 1, 44100, "mono"},
                                         Sound{"pcm_s16le", 48000, "5.1", 6, 48000, "5.1"},
                                         Sound{"pcm_s16le", 48000, "5.1(side)", 6, 48000, "5.1"},
                                         Sound{"pcm_s24le", 48000, "7.1", 8, 48000, "7.1"}),
                         [](const auto& row) { return row.param.name(); });

using SoundTiming = ExportTest;

/// A track that began with an empty edit would show its first picture late in some players.
TEST_F(SoundTiming, beginsEveryTrackWithItsMedia) {
    const Fixture fixture =
        makeFixture({.container = "mov", .duration = 6, .audioStart = 1.5, .audioDuration = 2.75});
    for (const double start : {0.0, 0.5, 2.0}) {
        const std::string bytes = contentsOf(exported(fixture.path, start, 5));
        std::size_t tracks = 0;
        for (std::size_t at = bytes.find("elst"); at != std::string::npos;
             at = bytes.find("elst", at + 1)) {
            ++tracks;
            EXPECT_EQ(testsupport::numberAt(bytes, at + 8), 1U);
            // An empty edit would be all ones.
            EXPECT_LT(testsupport::numberAt(bytes, at + 16), 0x7fffffffU);
        }
        EXPECT_EQ(tracks, 2U);
    }
}

TEST_F(SoundTiming, fillsHolesOfTheSourceWithSilence) {
    // Between 1.5 s and 2.5 s there is no sound, and no packet of it either.
    const Fixture whole = makeFixture({.container = "mkv", .duration = 5});
    const auto source = cachedMedia("hole.mkv", {"-i", whole.path, "-map", "0", "-c", "copy",
                                                 "-bsf:a", "noise=drop='between(pts*tb,1.5,2.5)'"});
    const auto clicks = testsupport::readClicks(source);
    ASSERT_EQ(clicks.size(), 4U);
    ASSERT_GT(clicks[2] - clicks[1], 1.5);
    EXPECT_THAT(testsupport::readClicks(exported(source, 0.5, 4.5)),
                ElementsAre(DoubleNear(clicks[1] - 0.5, kMillisecond),
                            DoubleNear(clicks[2] - 0.5, kMillisecond),
                            DoubleNear(clicks[3] - 0.5, kMillisecond)));
}

TEST_F(SoundTiming, exportsSoundThatOutlastsThePicture) {
    const Fixture fixture = makeFixture({.duration = 2, .audioDuration = 5});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(fixture.path, 0.5, 4.75, type);
        EXPECT_THAT(testsupport::readClicks(output),
                    ElementsAre(DoubleNear(0.5, kMillisecond), DoubleNear(1.5, kMillisecond),
                                DoubleNear(2.5, kMillisecond), DoubleNear(3.5, kMillisecond)));
        EXPECT_NEAR(probe(output).streamsOf("audio").at(0).number("duration").value(), 4.25,
                    kMillisecond);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
    }
}

/// The first packet of Vorbis is silent, but Matroska counts its time.
TEST(SoundOrigin, isWhereVorbisIsFirstHeard) {
    for (const char* container : {"mkv", "webm"}) {
        testsupport::Recipe recipe{.container = container,
                                   .additionalArguments = {"-c:a", "libvorbis"}};
        recipe.codec = recipe.container == "webm" ? testsupport::VideoCodec::vp9
                                                  : testsupport::VideoCodec::h264;
        const Fixture fixture = makeFixture(recipe);
        const auto asset = OpenedAsset::open(fixture.path);
        EXPECT_NEAR(asset->info().origin.seconds(), fixture.clockStart, 0.5 * kMillisecond);
    }
}

} // namespace
} // namespace media
