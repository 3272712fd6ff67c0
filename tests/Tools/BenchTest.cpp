#include "TestSupport/Fixture.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <string>

/// brisklet-bench: that it measures at all, and in the form that scripts expect. What it measures
/// is no matter of tests.
namespace {

using testing::MatchesRegex;
using testsupport::makeFixture;
using testsupport::ProcessResult;
using testsupport::TemporaryFolder;

constexpr const char* kNumber = "[0-9.e-]+";

ProcessResult bench(std::vector<std::string> arguments) {
    const auto program = std::filesystem::path(BRISKLET_CLI).replace_filename("brisklet-bench");
    arguments.insert(arguments.begin(), program);
    return testsupport::runProcess(
        arguments,
        {.input = {},
         .additionalEnvironment = {"QT_QPA_PLATFORM=offscreen", "XDG_RUNTIME_DIR=/nonexistent"}});
}

std::string source() {
    return makeFixture({.container = "mp4"}).path;
}

TEST(Bench, scrubTellsTheTimesOfSeeks) {
    const TemporaryFolder folder;
    const std::string times = folder / "times.json";
    std::ofstream(times) << "[1, 0.5, 3.25, 0]";
    for (const auto& options : {std::vector<std::string>{}, {"--size", "640x360"}}) {
        std::vector<std::string> arguments = {"scrub", source(), times};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ProcessResult result = bench(arguments);
        EXPECT_EQ(result.exitStatus, 0) << result.errors;
        const std::string number = kNumber;
        EXPECT_THAT(result.output,
                    MatchesRegex(R"(\{"first":)" + number + R"(,"glanceP50":)" + number +
                                 R"(,"glanceP95":)" + number + R"(,"max":)" + number +
                                 R"(,"n":4,"p50":)" + number + R"(,"p95":)" + number + "\\}\n"));
    }
}

TEST(Bench, stepTellsTheTimesOfSteps) {
    const ProcessResult result = bench({"step", source(), "1", "-5", "--size", "320x180"});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    const std::string number = kNumber;
    EXPECT_THAT(result.output,
                MatchesRegex(R"(\{"first":)" + number + R"(,"max":)" + number + R"(,"n":5,"p50":)" +
                             number + R"(,"p95":)" + number + "\\}\n"));
}

TEST(Bench, holdTellsTheTimesOfStepsAfterTheFirstSecond) {
    const ProcessResult result = bench({"hold", source(), "2", "-35", "0", "--size", "320x180"});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    const std::string number = kNumber;
    EXPECT_THAT(result.output,
                MatchesRegex(R"(\{"first":)" + number + R"(,"max":)" + number + R"(,"n":5,"p50":)" +
                             number + R"(,"p95":)" + number + "\\}\n"));
}

TEST(Bench, dragTellsHowLongTheMainThreadWasBlocked) {
    const TemporaryFolder folder;
    const std::string times = folder / "times.json";
    std::ofstream(times) << "[1, 0.5, 0.6]";
    const ProcessResult result = bench({"drag", source(), times});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    const std::string number = kNumber;
    EXPECT_THAT(result.output, MatchesRegex(R"(\{"exact":[1-9][0-9]*,"longestBlock":)" + number +
                                            R"(,"longestOwnBlock":)" + number + R"(,"peakMiB":)" +
                                            number + R"(,"seeks":3\})" + "\n"));
}

TEST(Bench, forecastTellsWhatWasSaidAndWhatCame) {
    const ProcessResult result = bench({"forecast", source()});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    const std::string number = kNumber;
    const std::string line =
        R"(\{"bytes":[1-9][0-9]*,"forecastBytes":[1-9][0-9]*,"forecastSeconds":)" + number +
        R"(,"seconds":)" + number + R"(,"trialCpuSeconds":)" + number + "\\}\n";
    EXPECT_THAT(result.output, MatchesRegex(line + line + line + line));
}

TEST(Bench, openAndStartupTellMilliseconds) {
    for (const auto& arguments : {std::vector<std::string>{"open", source()}, {"startup"}}) {
        const ProcessResult result = bench(arguments);
        EXPECT_EQ(result.exitStatus, 0) << result.errors;
        EXPECT_THAT(result.output, MatchesRegex("[0-9]+\\.[0-9]\n"));
    }
}

TEST(Bench, playTellsFramesAndProcessorTime) {
    const ProcessResult result = bench({"play", source(), "1"});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    EXPECT_THAT(result.output,
                MatchesRegex(std::string(R"(\{"cpuSeconds":)") + kNumber +
                             R"(,"dropped":[0-9]+,"height":[1-9][0-9]*)"
                             R"(,"late":[0-9]+,"longestStill":[0-9.]+,"shown":[1-9][0-9]*)"
                             R"(,"width":[1-9][0-9]*\})"
                             "\n"));
}

TEST(Bench, windowsTellsTheirMemory) {
    const TemporaryFolder folder;
    const std::string times = folder / "times.json";
    std::ofstream(times) << "[1, 0.5]";
    const ProcessResult result = bench({"windows", times, source(), source()});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    const std::string number = kNumber;
    EXPECT_THAT(result.output,
                MatchesRegex(R"(\{"exact":[1-9][0-9]*,"openedMiB":)" + number + R"(,"peakMiB":)" +
                             number + R"(,"windows":2\})" + "\n"));
}

TEST(Bench, failsWithAReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(bench({}).exitStatus, 2);
    EXPECT_EQ(bench({"open"}).exitStatus, 2);
    EXPECT_EQ(bench({"step", source(), "1", "none"}).exitStatus, 2);
    EXPECT_EQ(bench({"drag", source()}).exitStatus, 2);
    EXPECT_EQ(bench({"windows", "times.json"}).exitStatus, 2);
    EXPECT_EQ(bench({"scrub", source(), "times.json", "--size", "wide"}).exitStatus, 2);
    EXPECT_EQ(bench({"scrub", source(), folder / "missing.json"}).exitStatus, 1);
    const ProcessResult result = bench({"open", folder / "missing.mp4"});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.errors, testing::HasSubstr("The file doesn’t exist."));
}

} // namespace
