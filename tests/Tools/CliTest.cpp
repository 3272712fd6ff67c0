#include "TestSupport/Fixture.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <regex>
#include <sys/stat.h>

/// brisklet-cli's arguments, answers and messages.
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::ProcessResult;
using testsupport::TemporaryFolder;

ProcessResult cli(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), BRISKLET_CLI);
    return testsupport::runProcess(arguments);
}

/// The numbers that stand behind a name in JSON, in order.
std::vector<double> numbersOf(const std::string& json, const std::string& name) {
    const std::regex pattern("\"" + name + R"("\s*:\s*(-?[0-9.eE+-]+))");
    std::vector<double> numbers;
    for (std::sregex_iterator match(json.begin(), json.end(), pattern), end; match != end; ++match)
        numbers.push_back(std::stod((*match)[1]));
    return numbers;
}

void expectOneLine(const std::string& text) {
    EXPECT_THAT(text, testing::EndsWith("\n"));
    EXPECT_EQ(std::ranges::count(text, '\n'), 1) << text;
}

void expectFailure(const ProcessResult& result, const std::string& message) {
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr(message));
    expectOneLine(result.errors);
}

std::filesystem::path written(const std::filesystem::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

TEST(Cli, explainsItselfWhenAsked) {
    for (const char* option : {"--help", "-h"}) {
        const ProcessResult result = cli({option});
        EXPECT_EQ(result.exitStatus, 0);
        EXPECT_THAT(result.output, HasSubstr("Usage: brisklet-cli probe SOURCE"));
    }
    EXPECT_EQ(cli({"export", "--help"}).exitStatus, 0);
    const ProcessResult version = cli({"--version"});
    EXPECT_EQ(version.exitStatus, 0);
    EXPECT_THAT(version.output, testing::MatchesRegex("brisklet-cli [0-9.]+\n"));
}

TEST(Cli, tellsWhatIsWrongWithItsArguments) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{}, "no command is given"},
        {{"polish"}, "\"polish\" is no command"},
        {{"probe"}, "expected SOURCE"},
        {{"probe", ""}, "a name is empty"},
        {{"probe", "a", "b"}, "unexpected argument \"b\""},
        {{"probe", "a", "--fast"}, "unknown option --fast"},
        {{"filmstrip", "a"}, "expected SOURCE DIRECTORY"},
        {{"filmstrip", "a", "b", "--count", "0"}, "--count needs a number"},
        {{"filmstrip", "a", "b", "--count", "many"}, "not \"many\""},
        {{"filmstrip", "a", "b", "--count"}, "--count needs a value"},
        {{"frame", "a", "1"}, "expected SOURCE SECONDS OUTPUT.png"},
        {{"frame", "a", "soon", "b.png"}, "not \"soon\""},
        {{"frame", "a", "nan", "b.png"}, "not \"nan\""},
        {{"frame", "a", "1,5", "b.png"}, "not \"1,5\""},
        {{"export", "a"}, "expected SOURCE OUTPUT"},
        {{"export", "a", "b"}, "does not say which format"},
        {{"export", "a", "b.avi"}, "does not say which format"},
        {{"export", "a", "b.mp4", "--format", "avi"}, "--format knows mp4 and mov"},
        {{"export", "a", "b.mp4", "--start", "-1"}, "--start must not be negative"},
        {{"export", "a", "b.mp4", "--start", "2", "--end", "2"}, "--end must come after --start"},
        {{"export", "a", "b.mp4", "--start", "1", "--start", "2"}, "--start is given twice"},
        {{"export", "a", "b.mp4", "--end", "inf"}, "--end needs a number"},
        {{"export", "a", "b.mp4", "--crop", "0,0,1"}, "--crop needs X,Y,W,H"},
        {{"export", "a", "b.mp4", "--crop", "0,0,1,1,1"}, "--crop needs X,Y,W,H"},
        {{"export", "a", "b.mp4", "--crop", "0,0,0,1"}, "--crop needs fractions"},
        {{"export", "a", "b.mp4", "--crop", "0.5,0,0.6,1"}, "--crop needs fractions"},
        {{"export", "a", "b.mp4", "--rotate", "1.5"}, "--rotate needs a whole number"},
        {{"export", "a", "b.mp4", "--h264-preset", "quick"}, "--h264-preset knows no \"quick\""},
        {{"export", "a", "b.mp4", "--hevc-preset="}, "--hevc-preset knows no"},
        {{"export", "a", "b.mp4", "--max-short-edge", "0"}, "--max-short-edge needs"},
        {{"export", "a", "b.mp4", "--mute=yes"}, "--mute takes no value"},
        {{"export", "a", "b.mp4", "--progress", "xml"}, "--progress knows json only"},
    };
    for (const auto& [arguments, reason] : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const ProcessResult result = cli(arguments);
        EXPECT_EQ(result.exitStatus, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.errors, StartsWith("brisklet-cli: "));
        EXPECT_THAT(result.errors.substr(0, result.errors.find('\n')), HasSubstr(reason));
        EXPECT_THAT(result.errors, HasSubstr("Usage: brisklet-cli probe SOURCE"));
    }
}

TEST(Cli, probeDescribesTheFile) {
    const Fixture fixture = makeFixture({.container = "mov",
                                         .duration = 2,
                                         .pixelAspect = {3, 2},
                                         .displayRotation = 90,
                                         .audioTracks = 2,
                                         .sampleRate = 44100,
                                         .channels = 2});
    const ProcessResult result = cli({"probe", fixture.path.string()});
    ASSERT_EQ(result.exitStatus, 0) << result.errors;
    EXPECT_THAT(numbersOf(result.output, "duration"),
                testing::ElementsAre(testing::DoubleNear(2, 0.03)));
    // The display size comes first, then the natural one: names are in alphabetical order.
    EXPECT_THAT(numbersOf(result.output, "width"), testing::ElementsAre(240, 480));
    EXPECT_THAT(numbersOf(result.output, "height"), testing::ElementsAre(480, 240));
    EXPECT_THAT(numbersOf(result.output, "nominalFrameRate"), testing::ElementsAre(30));
    EXPECT_THAT(numbersOf(result.output, "channels"), testing::ElementsAre(2, 2));
    EXPECT_THAT(numbersOf(result.output, "sampleRate"), testing::ElementsAre(44100, 44100));
    for (const char* part : {"\"h264\"", "\"yuv420p\"", "\"aac\"", "\"eng\"", "\"fra\"",
                             "\"preferredTransform\"", "\"colour\""})
        EXPECT_THAT(result.output, HasSubstr(part));
}

TEST(Cli, filmstripWritesStillsAndTheirTimes) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 6, .height = 480});
    const std::filesystem::path stills = folder / "new" / "stills";
    const ProcessResult result =
        cli({"filmstrip", fixture.path.string(), stills.string(), "--count=3"});
    ASSERT_EQ(result.exitStatus, 0) << result.errors;
    const auto requested = numbersOf(result.output, "requested");
    const auto actual = numbersOf(result.output, "actual");
    ASSERT_EQ(actual.size(), 3U);
    EXPECT_THAT(requested, testing::Pointwise(testing::DoubleNear(0.02), {1.0, 3.0, 5.0}));
    EXPECT_THAT(actual, testing::Pointwise(testing::DoubleNear(0.5), requested));
    const std::vector<std::string> names = {"00.png", "01.png", "02.png"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(testsupport::readStillNumber(stills / names[i]), std::lround(actual[i] * 30));
        EXPECT_EQ(testsupport::probe(stills / names[i]).streams.at(0).text("height"), "120");
    }
    EXPECT_FALSE(std::filesystem::exists(stills / "03.png"));
}

TEST(Cli, frameWritesTheFrameAtATimeUprightAndAtFullSize) {
    const TemporaryFolder folder;
    const Fixture fixture =
        makeFixture({.container = "mov", .duration = 2, .displayRotation = 270});
    const std::string still = folder / "still.png";
    for (const auto& [time, number] :
         {std::pair{"0", 0}, {"0.5", 15}, {"0.9999", 30}, {"1.03", 30}, {"1000", 59}}) {
        SCOPED_TRACE(time);
        const ProcessResult result = cli({"frame", fixture.path.string(), time, still});
        ASSERT_EQ(result.exitStatus, 0) << result.errors;
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(testsupport::readStillNumber(still), number);
    }
    EXPECT_EQ(testsupport::probe(still).streams.at(0).text("width"), "240");
}

TEST(Cli, takesNamesThatAreNoText) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 2});
    const std::vector<std::string> names = {
        "a name with  spaces, 'quotes' \"too\" & %41 ümläut 🎬.mp4", "invalid \xff\xc3 utf-8.mp4",
        std::string(251, 'x') + ".mp4", "-dash.mp4", "line\nbreak.mp4"};
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const std::string source = folder / name;
        std::filesystem::copy_file(fixture.path, source);
        const std::filesystem::path outputs = folder / "outputs";
        std::filesystem::create_directory(outputs);
        const std::string output = outputs / name;
        EXPECT_EQ(cli({"probe", source}).exitStatus, 0);
        EXPECT_EQ(cli({"frame", source, "1", outputs / (name.substr(0, 200) + ".png")}).exitStatus,
                  0);
        const ProcessResult result =
            cli({"export", source, output, "--start", "0.5", "--end", "1"});
        EXPECT_EQ(result.exitStatus, 0) << result.errors;
        EXPECT_EQ(testsupport::readNumberedFrames(output).size(), 15U);
        std::filesystem::remove_all(outputs);
    }
}

TEST(Cli, saysWhyASourceDoesNotOpen) {
    const TemporaryFolder folder;
    const std::filesystem::path pipe = folder / "pipe.mp4";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const std::vector<std::pair<std::filesystem::path, std::string>> cases = {
        {folder / "missing.mp4", "“missing.mp4”: The file doesn’t exist."},
        {folder.path(), "folder"},
        {written(folder / "empty.mp4", ""), "The file is empty."},
        {written(folder / "text\nfile.mp4", "Not a video at all.\n"), "Couldn't open “text"},
        {pipe, "It is not a regular file."},
        {"/dev/zero", "It is not a regular file."}};
    for (const auto& [path, message] : cases) {
        SCOPED_TRACE(path);
        for (const ProcessResult& result :
             {cli({"probe", path}), cli({"frame", path, "0", folder / "out.png"}),
              cli({"filmstrip", path, folder / "stills"})}) {
            expectFailure(result, message);
            EXPECT_THAT(result.errors, StartsWith("Couldn't open “"));
        }
        const ProcessResult result = cli({"export", path, folder / "out.mp4"});
        expectFailure(result, "Export failed: ");
        EXPECT_FALSE(std::filesystem::exists(folder / "out.mp4"));
    }
}

TEST(Cli, takesAnAddressForWhatItIs) {
    const TemporaryFolder folder;
    const auto source = folder / "a b.mp4";
    std::filesystem::copy_file(makeFixture({.duration = 1}).path, source);
    const std::string path = folder.path().string();
    EXPECT_EQ(cli({"probe", "file://" + path + "/a%20b.mp4"}).exitStatus, 0);
    EXPECT_EQ(cli({"probe", "file://localhost" + path + "/a%20b.mp4"}).exitStatus, 0);
    for (const std::string start : {"sftp://nas", "file://otherhost"}) {
        const std::string address = start + path + "/a%20b.mp4";
        const std::string refusal = "“" + start + path +
                                    "/a b.mp4” is not on this computer, and no folder here leads "
                                    "to it.";
        expectFailure(cli({"probe", address}), refusal);
        expectFailure(cli({"filmstrip", address, path}), refusal);
        expectFailure(cli({"frame", address, "0", path + "/x.png"}), refusal);
        expectFailure(cli({"export", address, path + "/out.mp4"}), refusal);
    }
    expectFailure(cli({"export", source.string(), "sftp://nas" + path + "/out.mp4"}),
                  "“sftp://nas" + path + "/out.mp4” is not on this computer");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.mp4"));
    EXPECT_EQ(cli({"export", source.string(), "file://" + path + "/o%41.mp4"}).exitStatus, 0);
    EXPECT_TRUE(std::filesystem::exists(folder / "oA.mp4"));
}

// What begins like an address may be the path of a file.
TEST(Cli, takesAFileForAFileWhateverItsName) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "sftp:");
    const auto source = folder / "sftp:" / "x.mp4";
    std::filesystem::copy_file(makeFixture({.duration = 1}).path, source);
    const auto result =
        testsupport::runProcess({"sh", "-c", "cd \"$1\" && \"$0\" probe sftp://x.mp4", BRISKLET_CLI,
                                 folder.path().string()});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
}

TEST(Cli, saysWhenThereIsNoPicture) {
    const TemporaryFolder folder;
    const std::string sound = folder / "sound.m4a";
    testsupport::runProcessOrThrow(
        {"ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=d=1", sound});
    const ProcessResult probed = cli({"probe", sound});
    EXPECT_EQ(probed.exitStatus, 0);
    EXPECT_THAT(probed.output, HasSubstr("\"videoTrack\": null"));
    expectFailure(cli({"frame", sound, "0", folder / "out.png"}), "contains no video track.");
    expectFailure(cli({"filmstrip", sound, folder / "stills"}), "contains no video track.");
    expectFailure(cli({"export", sound, folder / "out.mp4"}),
                  "Export failed: The source file contains no video track.");
}

TEST(Cli, saysWhenAStillCannotBeWritten) {
    const TemporaryFolder folder;
    const std::string source = makeFixture({.container = "mp4", .duration = 2}).path;
    expectFailure(cli({"frame", source, "0", folder / "missing" / "out.png"}),
                  "Couldn’t write “out.png”: No such file or directory.");
    const std::string notAFolder = written(folder / "file", "x");
    expectFailure(cli({"filmstrip", source, notAFolder}), "Couldn’t make the folder “file”");
}

} // namespace
