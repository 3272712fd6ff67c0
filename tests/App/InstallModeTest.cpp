#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using testsupport::runProcess;

class InstallModeTest : public testing::Test {
protected:
    /// Without a display, a session bus and the user's own folders.
    testsupport::ProcessResult install() {
        return runProcess({BRISKLET_APP, "--install-quick-action"},
                          {.additionalEnvironment = {"QT_QPA_PLATFORM=xcb", "DISPLAY=:987",
                                                     "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere",
                                                     "HOME=" + m_home.path().string(),
                                                     "XDG_DATA_HOME=" + dataFolder().string()}});
    }

    fs::path dataFolder() const { return m_home / "data"; }

    fs::path workflow() const {
        return m_home / "Library/Services/Trim Video.workflow/Contents/document.wflow";
    }

    testsupport::TemporaryFolder m_home;
};

std::string contentOf(const fs::path& path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

TEST_F(InstallModeTest, printsOneLineAndWorksTwice) {
    const auto first = install();
    EXPECT_EQ(first.exitStatus, 0);
    EXPECT_EQ(first.output, "Installed Trim Video Quick Action\n");
    EXPECT_EQ(first.errors, "");
    const std::string written = contentOf(workflow());
    EXPECT_FALSE(written.empty());
    const auto second = install();
    EXPECT_EQ(second.exitStatus, 0);
    EXPECT_EQ(second.output, "Installed Trim Video Quick Action\n");
    EXPECT_NE(contentOf(workflow()), written);
}

TEST_F(InstallModeTest, addsItselfToTheFileManagers) {
    install();
    const std::string script = contentOf(dataFolder() / "nautilus/scripts/Trim Video");
    EXPECT_NE(script.find(fs::canonical(BRISKLET_APP).string()), std::string::npos) << script;
}

// One entry that could not be written kept all that follow it away, the workflow among them.
TEST_F(InstallModeTest, installsAllThatCanBeAndSaysWhatCannot) {
    fs::create_directories(dataFolder() / "nemo");
    std::ofstream(dataFolder() / "kio") << "no folder";
    std::ofstream(dataFolder() / "nemo/actions") << "no folder";
    const auto result = install();
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(std::ranges::count(result.output, '\n'), 1) << result.output;
    EXPECT_TRUE(result.output.starts_with("Quick Action install failed: “")) << result.output;
    EXPECT_NE(result.output.find("kio/servicemenus"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("nemo/actions"), std::string::npos) << result.output;
    EXPECT_TRUE(fs::exists(workflow()));
    EXPECT_TRUE(fs::exists(dataFolder() / "nautilus/scripts/Trim Video"));
    EXPECT_TRUE(fs::exists(dataFolder() / "Thunar/sendto"));
}

// Without the workflow the menu offers to install, and nothing would remove the entries again.
TEST_F(InstallModeTest, leavesNoEntriesBehindWhereTheWorkflowCannotBeWritten) {
    std::ofstream(m_home / "Library") << "no folder";
    EXPECT_EQ(install().exitStatus, 1);
    EXPECT_FALSE(fs::exists(dataFolder() / "nautilus"));
    EXPECT_FALSE(fs::exists(dataFolder() / "kio"));
}

TEST_F(InstallModeTest, saysWhyItFailed) {
    std::ofstream(m_home / "Library") << "no folder";
    const auto result = install();
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.output,
              "Quick Action install failed: “Contents” couldn’t be made: Not a directory\n");
}

} // namespace
