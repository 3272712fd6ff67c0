#include "Media/ExportFixture.h"
#include "Media/FFmpeg/Timecode.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"

#include <gmock/gmock.h>

/// What an export keeps of where its source comes from: time codes, names and roles of tracks.
namespace media {
namespace {

using testsupport::cachedMedia;
using testsupport::makeFixture;
using testsupport::probe;
using testsupport::ProbedFile;

constexpr AVRational kNtsc{30000, 1001};

struct Label {
    const char* first;
    AVRational rate;
    Time start;
    AVRational outputRate;
    const char* expected;
};

TEST(Timecode, countsPicturesToTheInPoint) {
    const Label rows[] = {
        {"01:00:00:00", {25, 1}, Time{0, 600}, {25, 1}, "01:00:00:00"},
        {"01:00:00:00", {25, 1}, Time{1, 1}, {25, 1}, "01:00:01:00"},
        {"01:00:00:24", {25, 1}, Time{24, 600}, {25, 1}, "01:00:01:00"},
        // The last tick of a picture is still that picture.
        {"01:00:00:00", {25, 1}, Time{23, 600}, {25, 1}, "01:00:00:00"},
        {"23:59:59:24", {25, 1}, Time{24, 600}, {25, 1}, "00:00:00:00"},
        {"00:00:00:00", kNtsc, Time{60, 1}, kNtsc, "00:00:59:28"},
        // Two labels of each minute are left out, but not of every tenth.
        {"00:00:59;29", kNtsc, Time{20, 600}, kNtsc, "00:01:00;02"},
        {"00:09:59;29", kNtsc, Time{20, 600}, kNtsc, "00:10:00;00"},
        // Where no label can be left out the colon says so.
        {"00:00:59;29", kNtsc, Time{20, 600}, {30, 1}, "00:01:00:02"},
        {"", {25, 1}, Time{0, 600}, {25, 1}, ""},
        {"no label", {25, 1}, Time{0, 600}, {25, 1}, ""},
        // A rate of no whole number of pictures.
        {"01:00:00:00", {44, 5}, Time{0, 600}, {44, 5}, ""},
        {"01:00:00:00", {0, 1}, Time{0, 600}, {25, 1}, ""},
        {"01:00:00:00", {25, 1}, Time{0, 600}, {0, 0}, ""},
    };
    for (const Label& row : rows) {
        EXPECT_EQ(ffmpeg::timecodeAt(row.first, row.rate, row.start, row.outputRate), row.expected)
            << row.first << " + " << row.start.seconds();
    }
}

using Provenance = ExportTest;

/// The label in a track of its own, as editing programs read it.
std::string timecodeTrackOf(const ProbedFile& file) {
    const auto tracks = file.streamsOf("data");
    if (tracks.size() != 1 || tracks[0].text("codec_tag_string") != "tmcd")
        return "none";
    return tracks[0].text("tags.timecode");
}

TEST_F(Provenance, startsTheTimecodeAtTheInPoint) {
    const auto source = cachedMedia("timecode.mov", {"-i", makeFixture({}).path, "-map", "0", "-c",
                                                     "copy", "-timecode", "10:11:12:00"});
    const auto asset = Asset::open(source);
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(source, 1.5, 3, type);
        const ProbedFile file = probe(output);
        EXPECT_EQ(timecodeTrackOf(file), "10:11:13:15");
        EXPECT_NEAR(file.format.number("duration").value(), 1.5, 1e-4);
        EXPECT_EQ(file.streamsOf("audio").size(), 1U);
        EXPECT_EQ(testsupport::readNumberedFrames(output).front().number, 45);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
    }
    const auto rendered =
        exportedAs(compositionOf(asset, 2, 3),
                   renderedAt(asset->tracks(MediaType::video).at(0), 160, 120, 30));
    EXPECT_EQ(timecodeTrackOf(probe(rendered)), "10:11:14:00");
}

TEST_F(Provenance, keepsTimecodesThatLeaveOutLabels) {
    const auto source =
        cachedMedia("drop-timecode.mov", {"-i", makeFixture({.frameRate = {30000, 1001}}).path,
                                          "-map", "0", "-c", "copy", "-timecode", "00:00:59;00"});
    EXPECT_EQ(timecodeTrackOf(probe(exported(source, 1.5, 3))), "00:01:00;16");
    const auto track = Asset::open(source)->tracks(MediaType::video).at(0);
    const auto rendered =
        exportedAs(compositionOf(Asset::open(source), 1.5, 3), renderedAt(track, 160, 120, 30));
    EXPECT_EQ(timecodeTrackOf(probe(rendered)), "00:01:00:16");
}

/// Matroska spells its tags in capitals; this one has no rate at which it could count.
TEST_F(Provenance, leavesOutTimecodesThatCannotBeCounted) {
    const auto source = cachedMedia("uncountable.mkv",
                                    {"-i", makeFixture({.hasVariableFrameRate = true}).path, "-map",
                                     "0", "-c", "copy", "-metadata", "timecode=01:00:00:00"});
    ASSERT_EQ(probe(source).format.text("tags.TIMECODE"), "01:00:00:00");
    EXPECT_EQ(timecodeTrackOf(probe(exported(source, 1, 2))), "none");
}

TEST_F(Provenance, inventsNoTimecode) {
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie})
        EXPECT_TRUE(probe(exported(makeFixture({}).path, 0, 1, type)).streamsOf("data").empty());
}

TEST_F(Provenance, keepsNamesAndRolesOfTracks) {
    const auto source = cachedMedia("roles.mkv", {"-i",
                                                  makeFixture({.audioTracks = 3}).path,
                                                  "-map",
                                                  "0",
                                                  "-c",
                                                  "copy",
                                                  "-metadata:s:a:0",
                                                  "title=Comments",
                                                  "-metadata:s:a:0",
                                                  "language=eng",
                                                  "-metadata:s:a:1",
                                                  "title=Originál",
                                                  "-metadata:s:a:1",
                                                  "language=ces",
                                                  "-metadata:s:a:2",
                                                  "language=fin",
                                                  "-disposition:a:0",
                                                  "0",
                                                  "-disposition:a:1",
                                                  "default",
                                                  "-disposition:a:2",
                                                  "0"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(source, 0, 1, type);
        const auto sounds = probe(output).streamsOf("audio");
        ASSERT_EQ(sounds.size(), 3U);
        EXPECT_THAT(contentsOf(output), testing::HasSubstr("nameComments"));
        EXPECT_EQ(sounds[0].text("tags.handler_name"), "Comments");
        EXPECT_EQ(sounds[1].text("tags.handler_name"), "Originál");
        EXPECT_EQ(sounds[2].text("tags.handler_name"), "SoundHandler");
        EXPECT_EQ(sounds[0].text("tags.language"), "eng");
        EXPECT_EQ(sounds[1].text("tags.language"), "ces");
        EXPECT_EQ(sounds[2].text("tags.language"), "fin");
        EXPECT_EQ(sounds[0].text("disposition.default"), "0");
        EXPECT_EQ(sounds[1].text("disposition.default"), "1");
        EXPECT_EQ(sounds[2].text("disposition.default"), "0");
    }
}

TEST_F(Provenance, writesEachEntryOnce) {
    const auto source =
        cachedMedia("languages.mov", {"-i", makeFixture({}).path, "-map", "0", "-c", "copy",
                                      "-metadata", "title=A title", "-metadata",
                                      "location=+48.8789+002.3376/", "-metadata", "make=A maker"});
    ASSERT_EQ(probe(source).format.text("tags.title"), "A title");
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto bytes = contentsOf(exported(source, 0, 1, type));
        EXPECT_EQ(bytes.find("title-"), std::string::npos);
        EXPECT_EQ(bytes.find("location-"), std::string::npos);
    }
}

/// Chapters put samples into the file before any picture does.
TEST_F(Provenance, survivesAnIndexThatHasToMoveToTheEnd) {
    const auto list = cachedMedia("burst-chapters.txt", [](const std::filesystem::path& path) {
        writeFile(path, ";FFMETADATA1\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=61000\ntitle=One\n"
                        "[CHAPTER]\nTIMEBASE=1/1000\nSTART=61000\nEND=70000\ntitle=Two\n");
    });
    const auto source = cachedMedia(
        "burst-chapters.mp4",
        {"-f", "lavfi", "-i", "testsrc2=s=64x48:r=300:d=10.5", "-i", list, "-map_chapters", "1",
         "-vf", "settb=1/90000,setpts='if(lt(N,100),N*54000,5400000+(N-100)*300)'", "-fps_mode",
         "passthrough", "-enc_time_base", "1:90000", "-preset", "ultrafast"});
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        const auto output = exported(source, 60.1, 69.9, type);
        EXPECT_EQ(probe(output).chapters.size(), 2U);
        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
        const std::string bytes = contentsOf(output);
        std::vector<std::string> order;
        for (const testsupport::Box& box : testsupport::boxesIn(bytes))
            order.push_back(box.type);
        EXPECT_EQ(order.front(), "ftyp");
        EXPECT_EQ(order.back(), "moov");
    }
}

} // namespace
} // namespace media
