#include "TestSupport/Fixture.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <regex>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// brisklet-cli export: what it leaves behind, whatever happens.
namespace {

using testing::HasSubstr;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::ProcessResult;
using testsupport::TemporaryFolder;

ProcessResult exported(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {BRISKLET_CLI, "export"});
    return testsupport::runProcess(arguments);
}

std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

double progressOf(const std::string& line) {
    std::smatch match;
    const std::regex pattern(R"(\{"progress":([0-9.eE-]+)\})");
    if (!std::regex_match(line, match, pattern))
        throw std::runtime_error("not a report: " + line);
    return std::stod(match[1]);
}

/// An export that runs, slowly, until it is told otherwise.
class RunningExport final {
public:
    RunningExport(const std::string& source, const std::string& output) {
        std::vector<std::string> arguments = {
            BRISKLET_CLI, "export",     source, output,          "--progress", "json",
            "--mute",     "--h264-crf", "1",    "--h264-preset", "veryslow"};
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        std::array<int, 2> ends = {};
        if (::pipe(ends.data()) != 0)
            throw std::runtime_error("no pipe");
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        posix_spawn_file_actions_addclose(&actions, ends[0]);
        if (::posix_spawn(&m_process, BRISKLET_CLI, &actions, nullptr, pointers.data(), environ) !=
            0)
            throw std::runtime_error("brisklet-cli does not start");
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        m_reports.reset(::fdopen(ends[0], "r"));
    }

    RunningExport(const RunningExport&) = delete;
    RunningExport& operator=(const RunningExport&) = delete;

    ~RunningExport() {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            finish();
        }
    }

    /// Reads reports until one of them reaches `fraction`.
    void waitFor(double fraction) {
        std::array<char, 100> line = {};
        while (std::fgets(line.data(), line.size(), m_reports.get())) {
            std::string text = line.data();
            text.pop_back();
            if (progressOf(text) >= fraction)
                return;
        }
        throw std::runtime_error("the export has ended too early");
    }

    void send(int signal) const { ::kill(m_process, signal); }

    /// The exit status, as a shell tells it.
    int finish() {
        int status = 0;
        ::waitpid(std::exchange(m_process, -1), &status, 0);
        return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    pid_t m_process = -1;
    std::unique_ptr<std::FILE, Close> m_reports;
};

TEST(CliExport, writesTheWholeFileByDefault) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 2});
    const std::string output = folder / "out.MOV";
    const ProcessResult result = exported({fixture.path, output});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(testsupport::readNumberedFrames(output).size(), 60U);
    EXPECT_EQ(testsupport::probe(output).format.text("tags.major_brand"), "qt  ");
    EXPECT_THAT(namesIn(folder.path()), testing::ElementsAre("out.MOV"));
}

TEST(CliExport, takesTheFormatFromItsOptionFirst) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 2});
    const std::string output = folder / "out.mp4";
    ASSERT_EQ(exported({fixture.path, output, "--format", "mov", "--end=0.5"}).exitStatus, 0);
    EXPECT_EQ(testsupport::probe(output).format.text("tags.major_brand"), "qt  ");
}

TEST(CliExport, appliesEveryOption) {
    const TemporaryFolder folder;
    const Fixture fixture =
        makeFixture({.container = "mp4", .duration = 2, .width = 640, .height = 480});
    const std::string output = folder / "out.mp4";
    const ProcessResult result =
        exported({"--crop", "0,0.25,1,0.5", "--rotate", "-90", "--mute", "--max-short-edge", "240",
                  "--start", "0.5", "--end", "1.5", fixture.path, output});
    ASSERT_EQ(result.exitStatus, 0) << result.errors;
    const auto file = testsupport::probe(output);
    ASSERT_EQ(file.streams.size(), 1U);
    EXPECT_EQ(file.streams[0].text("width"), "360");
    EXPECT_EQ(file.streams[0].text("height"), "240");
    EXPECT_NEAR(*file.format.number("duration"), 1, 0.001);
}

TEST(CliExport, takesACropOfAllForNone) {
    const TemporaryFolder folder;
    // Without a video composition the pixel aspect ratio is kept.
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 2, .pixelAspect = {3, 2}});
    const std::string output = folder / "out.mp4";
    ASSERT_EQ(exported({fixture.path, output, "--crop", "0.0005,0,0.9995,1"}).exitStatus, 0);
    EXPECT_EQ(testsupport::probe(output).streams.at(0).text("sample_aspect_ratio"), "3:2");
}

TEST(CliExport, reportsProgressAsJson) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 2});
    const ProcessResult result = exported({fixture.path, folder / "out.mp4", "--progress", "json"});
    ASSERT_EQ(result.exitStatus, 0);
    std::istringstream lines(result.output);
    std::string line;
    double last = 0;
    while (std::getline(lines, line)) {
        const double progress = progressOf(line);
        EXPECT_GE(progress, last);
        EXPECT_LE(progress, 1);
        last = progress;
    }
    EXPECT_EQ(last, 1);
}

TEST(CliExport, replacesAnOlderFileOnlyWhenItSucceeds) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.container = "mp4", .duration = 2});
    const std::filesystem::path output = folder / "out.mp4";
    std::ofstream(output) << "older";
    EXPECT_EQ(exported({fixture.path, output, "--start", "100"}).exitStatus, 1);
    EXPECT_EQ(std::filesystem::file_size(output), 5U);
    EXPECT_EQ(exported({fixture.path, output}).exitStatus, 0);
    EXPECT_EQ(testsupport::readNumberedFrames(output).size(), 60U);
    EXPECT_THAT(namesIn(folder.path()), testing::ElementsAre("out.mp4"));
}

TEST(CliExport, failsWithOneLineAndLeavesNothing) {
    const TemporaryFolder folder;
    const std::string source = makeFixture({.container = "mp4", .duration = 2}).path;
    const std::filesystem::path copy = folder / "copy.mp4";
    std::filesystem::copy_file(source, copy);
    std::filesystem::create_symlink(copy, folder / "link.mp4");
    const std::vector<std::vector<std::string>> cases = {
        {folder / "missing.mp4", folder / "out.mp4"},
        {source, folder / "missing" / "out.mp4"},
        {source, folder / "out.mp4", "--start", "2.5"},
        {copy, copy},
        {copy, folder / "link.mp4"}};
    for (const auto& arguments : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const ProcessResult result = exported(arguments);
        EXPECT_EQ(result.exitStatus, 1);
        EXPECT_THAT(result.errors, testing::StartsWith("Export failed: "));
        EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1) << result.errors;
        EXPECT_THAT(namesIn(folder.path()), testing::ElementsAre("copy.mp4", "link.mp4"));
    }
    EXPECT_EQ(std::filesystem::file_size(copy), std::filesystem::file_size(source));
}

TEST(CliExport, saysWhichFileIsMeant) {
    const TemporaryFolder folder;
    const std::string source = makeFixture({.container = "mp4", .duration = 2}).path;
    EXPECT_EQ(exported({folder / "holiday.mov", folder / "out.mp4"}).errors,
              "Export failed: Couldn't open “holiday.mov”: The file doesn’t exist.\n");
    EXPECT_EQ(exported({source, folder / "missing" / "out.mp4"}).errors,
              "Export failed: The folder “missing” for the new file doesn’t exist.\n");
}

TEST(CliExport, isRefusedWhereAnotherProcessIsExporting) {
    const std::string source =
        makeFixture({.container = "mp4", .duration = 6, .width = 640, .height = 480}).path;
    const TemporaryFolder folder;
    RunningExport running(source, folder / "out.mp4");
    running.waitFor(0);
    EXPECT_EQ(exported({source, folder / "out.mp4"}).errors,
              "Export failed: “out.mp4” is being written by another export.\n");
    EXPECT_THAT(namesIn(folder.path()), testing::Not(testing::Contains("out.mp4")));
    running.send(SIGKILL);
    EXPECT_EQ(running.finish(), 128 + SIGKILL);
    EXPECT_EQ(exported({source, folder / "out.mp4", "--end", "1"}).exitStatus, 0);
    EXPECT_THAT(namesIn(folder.path()), testing::ElementsAre("out.mp4"));
}

TEST(CliExport, leavesNothingWhenInterrupted) {
    const std::string source =
        makeFixture({.container = "mp4", .duration = 6, .width = 640, .height = 480}).path;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        for (const double fraction : {0.0, 0.5}) {
            SCOPED_TRACE(signal);
            SCOPED_TRACE(fraction);
            const TemporaryFolder folder;
            RunningExport running(source, folder / "out.mp4");
            running.waitFor(fraction);
            running.send(signal);
            EXPECT_EQ(running.finish(), 130);
            EXPECT_THAT(namesIn(folder.path()), testing::IsEmpty());
        }
    }
}

TEST(CliExport, leavesNothingOrAllWhenInterruptedAtTheEnd) {
    const std::string source =
        makeFixture({.container = "mp4", .duration = 6, .width = 640, .height = 480}).path;
    const TemporaryFolder folder;
    const std::filesystem::path output = folder / "out.mp4";
    RunningExport running(source, output);
    running.waitFor(0.97);
    running.send(SIGINT);
    if (running.finish() == 0)
        EXPECT_EQ(testsupport::readNumberedFrames(output).size(), 180U);
    else
        EXPECT_THAT(namesIn(folder.path()), testing::IsEmpty());
}

TEST(CliExport, leavesNothingUnderTheFinalNameWhenKilled) {
    const std::string source =
        makeFixture({.container = "mp4", .duration = 6, .width = 640, .height = 480}).path;
    const TemporaryFolder folder;
    RunningExport running(source, folder / "out.mp4");
    running.waitFor(0.3);
    running.send(SIGKILL);
    EXPECT_EQ(running.finish(), 128 + SIGKILL);
    EXPECT_FALSE(std::filesystem::exists(folder / "out.mp4"));
}

} // namespace
