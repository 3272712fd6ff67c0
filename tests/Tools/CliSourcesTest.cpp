#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// brisklet-cli on sources that say less of their times than others.
namespace {

using testsupport::makeFixture;
using testsupport::ProcessResult;
using testsupport::TemporaryFolder;

ProcessResult cli(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), BRISKLET_CLI);
    return testsupport::runProcess(arguments);
}

/// A bare bitstream was taken to be of no length, so that nothing of it could be kept.
TEST(CliSources, bareBitstreamsHaveALengthAndAPictureAtEachTime) {
    const TemporaryFolder folder;
    const std::string still = folder / "still.png";
    const std::string source =
        testsupport::cachedMedia(
            "bare-cli.h264",
            {"-i", makeFixture({.audioTracks = 0}).path.string(), "-c", "copy", "-f", "h264"})
            .string();
    EXPECT_THAT(cli({"probe", source}).output, testing::HasSubstr("\"duration\": 4,"));
    for (const auto& [time, number] : {std::pair{"3.5", 105}, {"0.5", 15}, {"1000", 119}}) {
        ASSERT_EQ(cli({"frame", source, time, still}).exitStatus, 0);
        EXPECT_EQ(testsupport::readStillNumber(still), number);
    }
    const std::string output = folder / "out.mp4";
    ASSERT_EQ(cli({"export", source, output, "--start", "1", "--end", "2"}).exitStatus, 0);
    const auto frames = testsupport::readNumberedFrames(output);
    ASSERT_EQ(frames.size(), 30U);
    EXPECT_EQ(frames.front().number, 30);
    EXPECT_EQ(frames.back().number, 59);
}

/// Thirty frames a second with two gaps are 28 on average, and on a grid of 28 some were lost.
TEST(CliSources, gapsCostNoPictureOnAGrid) {
    const TemporaryFolder folder;
    const auto source = testsupport::cachedMedia(
        "gaps-cli.mp4", {"-i", makeFixture({.audioTracks = 0}).path.string(), "-vf",
                         "select='not(between(n,20,24)+between(n,40,43))'", "-fps_mode",
                         "passthrough", "-enc_time_base", "1:90000", "-c:v", "libx264"});
    const std::string output = folder / "out.mp4";
    ASSERT_EQ(cli({"export", source.string(), output, "--max-short-edge", "120"}).exitStatus, 0);
    EXPECT_EQ(testsupport::probe(output).streamsOf("video").at(0).text("r_frame_rate"), "30/1");
    std::vector<int> shown;
    for (const auto& frame : testsupport::readNumberedFrames(output))
        shown.push_back(frame.number);
    for (const auto& frame : testsupport::readNumberedFrames(source))
        EXPECT_THAT(shown, testing::Contains(frame.number));
}

} // namespace
