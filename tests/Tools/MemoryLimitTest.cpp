#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <regex>

/// The whole tool where the system gives it no more than so much memory, from too little for its
/// libraries to enough.
namespace {

namespace fs = std::filesystem;
using testsupport::makeFixture;
using testsupport::ProcessResult;

class MemoryLimitTest : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        try {
            testsupport::runProcessOrThrow({"prlimit", "--version"});
        } catch (const std::exception&) {
            GTEST_SKIP() << "prlimit is not here";
        }
        // What sanitizers map is more than there is.
        if (limited({"--version"}).exitStatus != 0)
            GTEST_SKIP() << "the tool does not even start";
    }

    static ProcessResult limited(std::vector<std::string> arguments) {
        arguments.insert(
            arguments.begin(),
            {"prlimit", "--as=" + std::to_string(GetParam()) + "000000", BRISKLET_CLI});
        return testsupport::runProcess(arguments);
    }

    /// Whether it has done what it was told, or has said in a sentence why not.
    static void expectWords(const ProcessResult& result) {
        if (result.succeeded())
            return;
        EXPECT_EQ(result.exitStatus, 1) << result.errors;
        EXPECT_TRUE(std::regex_search(result.errors, std::regex("[A-Z“][^\n]*\\.\n$")))
            << result.errors;
        EXPECT_THAT(result.errors, testing::Not(testing::HasSubstr("nstall")));
    }

    testsupport::TemporaryFolder m_folder;
    std::string m_source = makeFixture({.duration = 1}).path;
};

TEST_P(MemoryLimitTest, isEnoughOrASentence) {
    std::ofstream(m_folder / "out.mp4") << "old";
    const ProcessResult exported =
        limited({"export", m_source, m_folder / "out.mp4", "--end", "0.5"});
    expectWords(exported);
    if (exported.succeeded())
        EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "out.mp4").size(), 15U);
    else
        EXPECT_EQ(fs::file_size(m_folder / "out.mp4"), 3U);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder.path()), {}), 1);
    expectWords(limited({"probe", m_source}));
    expectWords(limited({"filmstrip", m_source, m_folder / "strip"}));
}

INSTANTIATE_TEST_SUITE_P(Megabytes, MemoryLimitTest,
                         testing::Values(200, 300, 350, 400, 450, 500, 600, 800, 1200, 2000));

} // namespace
