#include "TestSupport/Fixture.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// The module with the media engine, as the programs find it.
namespace {

namespace fs = std::filesystem;

/// A program apart from its build, in which tests put a module beside it, or none.
class EngineTest : public testing::Test {
protected:
    EngineTest() {
        fs::create_directories(m_program.parent_path());
        fs::create_directories(m_module.parent_path());
        fs::copy_file(BRISKLET_CLI, m_program);
    }

    [[nodiscard]] testsupport::ProcessResult probe() const {
        return testsupport::runProcess(
            {m_program, "probe", testsupport::makeFixture({.duration = 1}).path});
    }

    /// A library that is loaded here, and anything but the engine.
    static fs::path otherLibrary() {
        std::ifstream maps("/proc/self/maps");
        for (std::string line; std::getline(maps, line);) {
            if (const auto at = line.find('/'); line.find("libstdc++.so") != std::string::npos)
                return line.substr(at);
        }
        return {};
    }

    testsupport::TemporaryFolder m_folder;
    fs::path m_program = m_folder / "bin" / fs::path(BRISKLET_CLI).filename();
    fs::path m_module = (m_program.parent_path() /
                         fs::relative(BRISKLET_ENGINE, fs::path(BRISKLET_CLI).parent_path()))
                            .lexically_normal();
};

TEST_F(EngineTest, isFoundFromWhereTheProgramStands) {
    fs::copy_file(BRISKLET_ENGINE, m_module);
    EXPECT_EQ(probe().exitStatus, 0) << probe().errors;
    // Through a link too, as from a folder of one's own.
    fs::create_symlink(m_program, m_folder / "trim");
    const auto linked = testsupport::runProcess(
        {m_folder / "trim", "probe", testsupport::makeFixture({.duration = 1}).path});
    EXPECT_EQ(linked.exitStatus, 0) << linked.errors;
}

TEST_F(EngineTest, isMissedWithASentence) {
    const auto result = probe();
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.errors,
                testing::HasSubstr("Brisklet is not completely installed. Install it again.\n"));
    // For whoever looks into it, in a line of its own.
    EXPECT_THAT(result.errors, testing::ContainsRegex("^/[^\n]*brisklet-media\\.so: "));
}

TEST_F(EngineTest, isRefusedWhenItHasOtherClassesThanTheProgram) {
    std::ifstream original(BRISKLET_ENGINE, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(original), {}};
    const auto at = content.find(BRISKLET_ENGINE_INTERFACE);
    ASSERT_NE(at, std::string::npos);
    content[at] = content[at] == '0' ? '1' : '0';
    std::ofstream(m_module, std::ios::binary) << content;
    const auto result = probe();
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.errors, testing::HasSubstr("Brisklet has been updated. Start it again."));
}

TEST_F(EngineTest, isRefusedWhenItIsAnythingElse) {
    fs::copy_file(otherLibrary(), m_module);
    const auto result = probe();
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.errors, testing::HasSubstr("Brisklet has been updated. Start it again."));
}

} // namespace
