#include "BriskletApp.h"

#include "Models/EditState.h"
#include "QtSupport/EventPump.h"
#include "Support/FileUrl.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Process.h"
#include "Views/EditorWindow.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace brisklet;
using testsupport::makeFixture;
using testsupport::pumpUntil;
using testsupport::runProcess;

std::vector<EditorWindow*> windows() {
    std::vector<EditorWindow*> result;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<EditorWindow*>(widget))
            result.push_back(window);
    }
    return result;
}

class BriskletAppTest : public testing::Test {
protected:
    ~BriskletAppTest() override {
        for (EditorWindow* window : windows())
            delete window;
    }
};

TEST_F(BriskletAppTest, opensOneEmptyWindowWithoutFiles) {
    BriskletApp::openWindows({});
    ASSERT_EQ(windows().size(), 1U);
    EXPECT_TRUE(windows().front()->isVisible());
    EXPECT_EQ(windows().front()->state()->videoURL(), std::nullopt);
}

TEST_F(BriskletAppTest, opensAWindowForEachFile) {
    const QUrl one = urlOf(makeFixture({.duration = 1}).path);
    const QUrl other = urlOf(makeFixture({.duration = 2}).path);
    BriskletApp::openWindows({one, other, one});
    ASSERT_EQ(windows().size(), 3U);
    ASSERT_TRUE(pumpUntil([] {
        for (const EditorWindow* window : windows()) {
            if (!window->state()->videoURL())
                return false;
        }
        return true;
    }));
    int ones = 0;
    for (const EditorWindow* window : windows())
        ones += window->state()->videoURL() == one ? 1 : 0;
    EXPECT_EQ(ones, 2);
}

TEST(Program, printsHelpAndVersionWithoutADisplay) {
    testsupport::ProcessOptions options;
    options.additionalEnvironment = {"QT_QPA_PLATFORM=xcb", "DISPLAY=:987"};
    const auto help = runProcess({BRISKLET_APP, "--help"}, options);
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_NE(help.output.find("Usage: brisklet"), std::string::npos);
    const auto version = runProcess({BRISKLET_APP, "--version"}, options);
    EXPECT_EQ(version.exitStatus, 0);
    EXPECT_EQ(version.output.rfind("brisklet ", 0), 0U);
}

TEST(Program, refusesAnUnknownOption) {
    const auto result = runProcess({BRISKLET_APP, "--frobnicate"},
                                   {.additionalEnvironment = {"QT_QPA_PLATFORM=offscreen"}});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_NE(result.errors.find("--frobnicate"), std::string::npos);
}

} // namespace
