#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/ColourTags.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>

/// What an exported file is made of: codecs, colour, geometry, index, metadata.
namespace media {
namespace {

using testing::ElementsAre;
using testsupport::cachedMedia;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::probe;
using testsupport::ProbedFields;
using testsupport::readNumberedFrames;

using ExportedFile = ExportTest;

constexpr double kMillisecond = 0.001;

TEST_F(ExportedFile, cutsOddSizesToEvenOnes) {
    struct {
        const char* size;
        int width, height;
    } const rows[] = {{"321x241", 320, 240}, {"65x64", 64, 64}, {"17x33", 16, 32}, {"3x3", 2, 2}};

    for (const auto& row : rows) {
        const std::string size = row.size;
        const auto source =
            cachedMedia("odd-" + size + ".mkv", {"-f", "lavfi", "-i", "testsrc2=d=1:s=" + size,
                                                 "-c:v", "ffv1", "-pix_fmt", "yuv444p"});
        const auto output = exported(source, 0, 0.5);
        EXPECT_EQ(video(output).number("width"), row.width);
        EXPECT_EQ(video(output).number("height"), row.height);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "") << size;
    }
}

TEST_F(ExportedFile, exportsEvenASinglePixel) {
    const auto source =
        cachedMedia("pixel.mkv", {"-f", "lavfi", "-i", "testsrc2=s=16x16:d=1,crop=1:1:exact=1",
                                  "-c:v", "ffv1", "-pix_fmt", "yuv444p"});
    const auto output = exported(source, 0, 0.5);
    EXPECT_EQ(video(output).number("width"), 2);
    EXPECT_EQ(video(output).number("height"), 2);
}

TEST_F(ExportedFile, encodesEightBitsAsH264AndMoreAsHevc) {
    struct {
        const char* format;
        const char* codec;
        const char* tag;
        const char* pixelFormat;
    } const rows[] = {{"yuv420p", "h264", "avc1", "yuv420p"},
                      {"yuv422p", "h264", "avc1", "yuv420p"},
                      {"yuv444p", "h264", "avc1", "yuv420p"},
                      {"yuv410p", "h264", "avc1", "yuv420p"},
                      {"gray", "h264", "avc1", "yuvj420p"},
                      {"bgr0", "h264", "avc1", "yuv420p"},
                      {"yuv420p10le", "hevc", "hvc1", "yuv420p10le"},
                      {"yuv422p10le", "hevc", "hvc1", "yuv420p10le"},
                      {"yuv444p12le", "hevc", "hvc1", "yuv420p10le"},
                      {"gbrp10le", "hevc", "hvc1", "yuv420p10le"}};

    for (const auto& row : rows) {
        const std::string format = row.format;
        SCOPED_TRACE(format);
        const auto source =
            cachedMedia("pixels-" + format + ".mkv",
                        {"-f", "lavfi", "-i", "testsrc2=s=128x96:d=1:r=10", "-vf",
                         "hue=s=0.6,format=" + format, "-c:v", "ffv1", "-pix_fmt", format});
        for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
            const auto output = exported(source, 0, 1, type);
            const ProbedFields fields = video(output);
            EXPECT_EQ(fields.text("codec_name"), row.codec);
            EXPECT_EQ(fields.text("codec_tag_string"), row.tag);
            EXPECT_EQ(fields.text("pix_fmt"), row.pixelFormat);
            EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
            // Both sides go through ffmpeg's own conversion to one format.
            EXPECT_GT(testsupport::ssim(source, output), 0.93);
        }
    }
}

TEST_F(ExportedFile, writesTheIndexBeforeTheMedia) {
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(makeFixture({}).path, 0, 3, type);
        const std::string bytes = contentsOf(output);
        std::vector<std::string> order;
        for (const testsupport::Box& box : testsupport::boxesIn(bytes)) {
            if (box.type != "free" && box.type != "wide")
                order.push_back(box.type);
        }
        EXPECT_THAT(order, ElementsAre("ftyp", "moov", "mdat"));
        EXPECT_EQ(bytes.substr(8, 4), type == FileType::mpeg4 ? "isom" : "qt  ");
    }
}

/// The room for the index is reserved by the average frame rate. This source runs several times as
/// fast as that in the range that is kept.
TEST_F(ExportedFile, exportsRightWhereTheRoomForTheIndexIsTooSmall) {
    constexpr double kRate = 300;
    const auto source = cachedMedia(
        "burst.mp4",
        {"-f", "lavfi", "-i", "testsrc2=s=64x48:r=300:d=10.5", "-vf",
         "settb=1/90000,setpts='if(lt(N,100),N*54000,5400000+(N-100)*300)'", "-fps_mode",
         "passthrough", "-enc_time_base", "1:90000", "-preset", "ultrafast"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(source, 60.1, 69.9, type);
        std::vector<double> times;
        for (const auto& packet : testsupport::readPackets(output))
            times.push_back(packet.pts);
        std::ranges::sort(times);
        ASSERT_NEAR(static_cast<double>(times.size()), 9.8 * kRate, 1);
        for (std::size_t i = 0; i < times.size(); ++i)
            ASSERT_NEAR(times[i], static_cast<double>(i) / kRate, 2 * kMillisecond);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
        // What was reserved is marked as free; no byte is left unaccounted for.
        EXPECT_EQ(testsupport::boxesIn(contentsOf(output)).back().type, "moov");
        EXPECT_TRUE(testsupport::findBox(contentsOf(output), {"moov", "trak"}));
    }
}

/// A track's own length sums up decoding times, which pictures in another order and of unequal
/// length do not fill.
TEST_F(ExportedFile, statesTheSameLengthEverywhere) {
    for (const bool isVariable : {false, true}) {
        const Fixture fixture = makeFixture({.hasVariableFrameRate = isVariable});
        for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
            const auto file = probe(exported(fixture.path, 0.515, 2.83, type));
            constexpr double kLength = 1389.0 / 600;
            EXPECT_NEAR(file.format.number("duration").value(), kLength, 1e-5);
            EXPECT_NEAR(file.streamsOf("video").at(0).number("duration").value(), kLength, 1e-5);
            EXPECT_NEAR(file.streamsOf("audio").at(0).number("duration").value(), kLength, 1e-4);
            const auto picture = file.streamsOf("video").at(0);
            EXPECT_NEAR(picture.number("avg_frame_rate").value(),
                        picture.number("nb_frames").value() / kLength, 0.01);
        }
    }
}

TEST_F(ExportedFile, keepsTheColourTagsAndInventsNone) {
    struct Tags {
        const char *name, *primaries, *transfer, *matrix, *range, *location, *format;
    };

    const Tags rows[] = {
        {"sd", "smpte170m", "smpte170m", "smpte170m", "tv", "left", "yuv420p"},
        {"pal", "bt470bg", "smpte170m", "bt470bg", "tv", "center", "yuv420p"},
        {"hd", "bt709", "bt709", "bt709", "tv", "left", "yuv420p"},
        {"full", "bt709", "iec61966-2-1", "bt709", "pc", "left", "yuv420p"},
        {"pq", "bt2020", "smpte2084", "bt2020nc", "tv", "topleft", "yuv420p10le"},
        {"hlg", "bt2020", "arib-std-b67", "bt2020nc", "tv", "topleft", "yuv420p10le"}};
    for (const Tags& row : rows) {
        SCOPED_TRACE(row.name);
        std::vector<std::string> arguments = {
            "-f", "lavfi", "-i", "testsrc2=s=128x96:d=1:r=10", "-pix_fmt", row.format};
        std::ranges::copy(
            testsupport::colourArguments({row.primaries, row.transfer, row.matrix, row.range}),
            std::back_inserter(arguments));
        std::ranges::copy(testsupport::h264ChromaArguments(row.location),
                          std::back_inserter(arguments));
        const auto source = cachedMedia(std::string("colour-") + row.name + ".mp4", arguments);
        const auto asset = Asset::open(source);
        const auto straight = video(exported(source, 0, 0.5));
        const auto track = asset->tracks(MediaType::video)[0];
        const auto rendered =
            video(exportedAs(compositionOf(asset, 0, 0.5), renderedAt(track, 64, 48, 10)));
        for (const ProbedFields& fields : {straight, rendered}) {
            EXPECT_EQ(fields.text("color_primaries"), row.primaries);
            EXPECT_EQ(fields.text("color_transfer"), row.transfer);
            EXPECT_EQ(fields.text("color_space"), row.matrix);
            EXPECT_EQ(fields.text("color_range"), row.range);
            EXPECT_EQ(fields.text("chroma_location"), row.location);
        }
    }
    const Fixture untagged = makeFixture({.additionalArguments = {"-bsf:v", "h264_metadata"}});
    const auto fields = video(exported(untagged.path, 0, 1));
    const auto before = video(untagged.path);
    for (const char* name : {"color_primaries", "color_transfer", "color_space"}) {
        EXPECT_EQ(fields.text(name), before.text(name)) << name;
        EXPECT_THAT(fields.text(name), testing::AnyOf("", "unknown")) << name;
    }
}

TEST_F(ExportedFile, keepsMasteringDisplayAndLightLevel) {
    std::vector<std::string> arguments = {
        "-f",
        "lavfi",
        "-i",
        "testsrc2=s=128x96:d=1:r=10",
        "-pix_fmt",
        "yuv420p10le",
        "-c:v",
        "libx265",
        "-preset",
        "ultrafast",
        "-x265-params",
        "log-level=error:hdr10=1:master-display=G(13250,34500)B(7500,3000)R(34000,16000)"
        "WP(15635,16450)L(10000000,50):max-cll=1000,400"};
    std::ranges::copy(testsupport::colourArguments({"bt2020", "smpte2084", "bt2020nc", "tv"}),
                      std::back_inserter(arguments));
    const auto source = cachedMedia("mastering.mkv", arguments);
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const std::string facts =
            testsupport::runProcessOrThrow({"ffprobe", "-v", "error", "-select_streams", "v",
                                            "-read_intervals", "%+#1", "-show_frames", "-of",
                                            "json", exported(source, 0, 0.5, type)})
                .output;
        EXPECT_THAT(facts, testing::HasSubstr("\"red_x\": \"34000/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"red_y\": \"16000/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"green_x\": \"13250/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"green_y\": \"34500/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"blue_x\": \"7500/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"blue_y\": \"3000/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"white_point_x\": \"15635/50000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"min_luminance\": \"50/10000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"max_luminance\": \"10000000/10000\""));
        EXPECT_THAT(facts, testing::HasSubstr("\"max_content\": 1000"));
        EXPECT_THAT(facts, testing::HasSubstr("\"max_average\": 400"));
    }
}

TEST_F(ExportedFile, keepsThePixelAspectUnlessItRenders) {
    const Fixture fixture = makeFixture({.duration = 1, .pixelAspect = {16, 11}});
    const auto asset = Asset::open(fixture.path);
    EXPECT_EQ(video(exported(fixture.path, 0, 0.5)).text("sample_aspect_ratio"), "16:11");
    const auto track = asset->tracks(MediaType::video)[0];
    const auto rendered =
        video(exportedAs(compositionOf(asset, 0, 0.5), renderedAt(track, 464, 240, 30)));
    EXPECT_THAT(rendered.text("sample_aspect_ratio"), testing::AnyOf("1:1", "N/A", ""));
    EXPECT_EQ(rendered.number("width"), 464);
}

TEST_F(ExportedFile, keepsTheOrientationUnlessItRenders) {
    for (const int rotation : {0, 90, 180, 270}) {
        const Fixture fixture =
            makeFixture({.container = "mov", .duration = 1, .displayRotation = rotation});
        const auto asset = Asset::open(fixture.path);
        for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
            const auto output = exported(fixture.path, 0, 0.5, type);
            EXPECT_EQ(Asset::open(output)->tracks(MediaType::video)[0].preferredTransform,
                      asset->tracks(MediaType::video)[0].preferredTransform);
            EXPECT_EQ(readNumberedFrames(output).front().number, 0) << rotation;
        }
        const bool isTurned = rotation % 180 != 0;
        const auto track = asset->tracks(MediaType::video)[0];
        const auto rendered =
            exportedAs(compositionOf(asset, 0, 0.5),
                       renderedAt(track, isTurned ? 240 : 320, isTurned ? 320 : 240, 30));
        EXPECT_EQ(video(rendered).number("width"), isTurned ? 240 : 320);
        EXPECT_EQ(Asset::open(rendered)->tracks(MediaType::video)[0].preferredTransform,
                  AffineTransform{});
        EXPECT_EQ(readNumberedFrames(rendered).front().number, 0) << rotation;
    }
}

TEST_F(ExportedFile, carriesTheMetadataOver) {
    const auto source = cachedMedia("metadata.mp4", {"-i",
                                                     makeFixture({}).path,
                                                     "-map",
                                                     "0",
                                                     "-c",
                                                     "copy",
                                                     "-metadata",
                                                     "title=A title",
                                                     "-metadata",
                                                     "creation_time=2020-02-29T12:34:56Z",
                                                     "-metadata",
                                                     "comment=A comment",
                                                     "-metadata",
                                                     "artist=An artist",
                                                     "-metadata:s:v:0",
                                                     "language=nor",
                                                     "-metadata:s:v:0",
                                                     "handler_name=The picture",
                                                     "-metadata:s:a:0",
                                                     "language=fin",
                                                     "-metadata:s:a:0",
                                                     "handler_name=The sound"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto file = probe(exported(source, 1, 2, type));
        EXPECT_EQ(file.format.text("tags.title"), "A title");
        EXPECT_EQ(file.format.text("tags.artist"), "An artist");
        EXPECT_EQ(file.format.text("tags.comment"), "A comment");
        EXPECT_THAT(file.format.text("tags.creation_time"),
                    testing::StartsWith("2020-02-29T12:34:56"));
        EXPECT_EQ(file.streamsOf("video").at(0).text("tags.language"), "nor");
        EXPECT_EQ(file.streamsOf("video").at(0).text("tags.handler_name"), "The picture");
        EXPECT_EQ(file.streamsOf("audio").at(0).text("tags.language"), "fin");
        EXPECT_EQ(file.streamsOf("audio").at(0).text("tags.handler_name"), "The sound");
    }
}

TEST_F(ExportedFile, keepsWhereAndWithWhatItWasTaken) {
    const auto source = cachedMedia(
        "camera.mov", {"-i", makeFixture({}).path, "-map", "0", "-c", "copy", "-movflags",
                       "use_metadata_tags", "-metadata", "com.apple.quicktime.make=A maker",
                       "-metadata", "com.apple.quicktime.model=A model", "-metadata",
                       "com.apple.quicktime.location.ISO6709=+59.9139+010.7522/"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto format = probe(exported(source, 0, 1, type)).format;
        EXPECT_EQ(format.text("tags.com_apple_quicktime_make"), "A maker");
        EXPECT_EQ(format.text("tags.com_apple_quicktime_model"), "A model");
        EXPECT_EQ(format.text("tags.com_apple_quicktime_location_ISO6709"), "+59.9139+010.7522/");
    }
}

TEST_F(ExportedFile, keepsTheLocationThatPhonesWrite) {
    const auto source =
        cachedMedia("location.mp4", {"-i", makeFixture({}).path, "-map", "0", "-c", "copy",
                                     "-metadata", "location=+59.9139+010.7522/"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        EXPECT_THAT(probe(exported(source, 0, 1, type)).format.text("tags.location"),
                    testing::StartsWith("+59.9139+010.7522/"));
    }
}

/// All of it stands in the index, for which room has to be kept.
TEST_F(ExportedFile, carriesAnyAmountOfMetadataOver) {
    const std::string lyrics(100'000, 'x');
    for (const char* prefix : {"", "com.example."}) {
        const auto source = cachedMedia(std::string("long-") + prefix + "metadata.mkv",
                                        {"-i", makeFixture({}).path, "-map", "0", "-c", "copy",
                                         "-metadata", std::string(prefix) + "comment=" + lyrics,
                                         "-metadata", "description=" + lyrics});
        for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
            const auto output = exported(source, 0, 1, type);
            EXPECT_EQ(readNumberedFrames(output).size(), 30U);
            EXPECT_THAT(contentsOf(output), testing::HasSubstr(lyrics));
        }
    }
}

/// QuickTime numbers its languages; MP4 spells them.
TEST_F(ExportedFile, keepsTheLanguagesThatBothSpellingsOfACodeName) {
    struct {
        const char *code, *mp4, *mov;
    } const rows[] = {{"eng", "eng", "eng"}, {"fre", "fre", "fra"}, {"fra", "fra", "fra"},
                      {"deu", "deu", "ger"}, {"nld", "nld", "dut"}, {"swe", "swe", "sve"},
                      {"ces", "ces", "ces"}, {"jpn", "jpn", "jpn"}, {"und", "und", "und"}};

    for (const auto& row : rows) {
        const std::string code = row.code;
        const auto source = cachedMedia("language-" + code + ".mkv",
                                        {"-i", makeFixture({}).path, "-map", "0", "-c", "copy",
                                         "-metadata:s:a:0", "language=" + code});
        const auto languageIn = [&](FileType type) {
            const auto sound = probe(exported(source, 0, 0.2, type)).streamsOf("audio").at(0);
            return sound.text("tags.language").empty() ? "und" : sound.text("tags.language");
        };
        EXPECT_EQ(languageIn(FileType::mpeg4), row.mp4);
        EXPECT_EQ(languageIn(FileType::quickTimeMovie), row.mov);
    }
}

TEST_F(ExportedFile, cutsAndMovesChapters) {
    const auto list = cachedMedia("chapters.txt", [](const std::filesystem::path& path) {
        writeFile(path, ";FFMETADATA1\n"
                        "[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=1000\ntitle=One\n"
                        "[CHAPTER]\nTIMEBASE=1/1000\nSTART=1000\nEND=2500\ntitle=Two\n"
                        "[CHAPTER]\nTIMEBASE=1/1000\nSTART=2500\nEND=3500\ntitle=Three\n"
                        "[CHAPTER]\nTIMEBASE=1/1000\nSTART=3500\nEND=4000\ntitle=Four\n");
    });
    const auto source =
        cachedMedia("chapters.mkv", {"-i", makeFixture({}).path, "-i", list, "-map", "0",
                                     "-map_metadata", "1", "-map_chapters", "1", "-c", "copy"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(source, 1.5, 3, type);
        const auto chapters = probe(output).chapters;
        ASSERT_EQ(chapters.size(), 2U);
        EXPECT_EQ(chapters[0].text("tags.title"), "Two");
        EXPECT_NEAR(chapters[0].number("start_time").value(), 0, kMillisecond);
        EXPECT_NEAR(chapters[0].number("end_time").value(), 1, kMillisecond);
        EXPECT_EQ(chapters[1].text("tags.title"), "Three");
        EXPECT_NEAR(chapters[1].number("start_time").value(), 1, kMillisecond);
        EXPECT_NEAR(chapters[1].number("end_time").value(), 1.5, kMillisecond);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
    }
    EXPECT_TRUE(probe(exported(makeFixture({}).path, 0, 1)).chapters.empty());
}

TEST_F(ExportedFile, dropsWhatIsNeitherPictureNorSound) {
    const auto subtitles = cachedMedia("lines.srt", [](const std::filesystem::path& path) {
        writeFile(path, "1\n00:00:00,500 --> 00:30:00,000\nA line.\n\n");
    });
    const auto source =
        cachedMedia("with-subtitles.mkv", {"-i", makeFixture({}).path, "-i", subtitles, "-map", "0",
                                           "-map", "1", "-c", "copy", "-c:s", "srt"});
    const auto file = probe(exported(source, 0, 1));
    EXPECT_EQ(file.streams.size(), 2U);
    EXPECT_NEAR(file.format.number("duration").value(), 1, 0.03);
}

} // namespace
} // namespace media
