#include "AppFixture.h"

#include "Support/OpenBridge.h"
#include "TestSupport/Process.h"
#include "Views/ContentView.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <vector>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;
using testsupport::runProcess;

class BriskletAppTest : public AppFixture {
protected:
    /// The videos of the windows, in the order in which the windows were opened; waits for them.
    std::vector<QUrl> shownVideos() {
        EXPECT_TRUE(pumpUntil([this] {
            for (const WindowRootView* window : m_app->windows()) {
                if (!window->state()->videoURL())
                    return false;
            }
            return true;
        }));
        std::vector<QUrl> result;
        for (const WindowRootView* window : m_app->windows())
            result.push_back(window->state()->videoURL().value_or(QUrl()));
        return result;
    }

    /// Waits for the alert over a window, and presses its button, which may close the window.
    static bool dismissAlert(WindowRootView& window) {
        if (!pumpUntil([&] { return window.content().attachedSheet() != nullptr; }))
            return false;
        const QPointer alert = window.content().attachedSheet();
        QTest::mouseClick(alert->findChild<QAbstractButton*>(), Qt::LeftButton);
        return pumpUntil([&] { return alert.isNull(); });
    }
};

TEST_F(BriskletAppTest, opensOneEmptyWindowWithoutFiles) {
    m_app->launch({});
    ASSERT_EQ(m_app->windows().size(), 1);
    EXPECT_TRUE(m_app->windows().first()->isVisible());
    EXPECT_EQ(m_app->windows().first()->state()->videoURL(), std::nullopt);
}

TEST_F(BriskletAppTest, opensAWindowForEachFileInOrder) {
    m_app->launch({video(1), video(2), video(1)});
    EXPECT_EQ(m_app->windows().size(), 3);
    EXPECT_THAT(shownVideos(), testing::ElementsAre(video(1), video(2), video(1)));
}

TEST_F(BriskletAppTest, putsLaterFilesIntoTheEmptyWindowFirst) {
    m_app->launch({});
    for (const double seconds : {1, 2, 3})
        OpenBridge::open(video(seconds));
    EXPECT_EQ(m_app->windows().size(), 3);
    EXPECT_THAT(shownVideos(), testing::ElementsAre(video(1), video(2), video(3)));
}

TEST_F(BriskletAppTest, usesAWindowAgainWhoseFileCouldNotBeOpened) {
    m_app->launch({urlOf(m_folder / "missing.mov")});
    WindowRootView* window = m_app->windows().first();
    ASSERT_TRUE(pumpUntil([window] { return window->state()->errorMessage().has_value(); }));
    OpenBridge::open(video(1));
    EXPECT_EQ(m_app->windows().size(), 1);
    ASSERT_TRUE(pumpUntil([window] { return window->state()->videoURL().has_value(); }));
}

TEST_F(BriskletAppTest, closesAWindowAgainWhoseOnlyFileCouldNotBeOpened) {
    m_app->launch({video(1), urlOf(m_folder / "missing.mov")});
    ASSERT_EQ(m_app->windows().size(), 2);
    WindowRootView* good = m_app->windows().first();
    ASSERT_TRUE(dismissAlert(*m_app->windows().last()));
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().size() == 1; }));
    EXPECT_EQ(m_app->windows().first(), good);
}

TEST_F(BriskletAppTest, keepsOneWindowWhenNoFileCouldBeOpened) {
    m_app->launch({urlOf(m_folder / "missing.mov"), urlOf(m_folder / "missing.mp4")});
    ASSERT_EQ(m_app->windows().size(), 2);
    WindowRootView* last = m_app->windows().last();
    ASSERT_TRUE(dismissAlert(*m_app->windows().first()));
    ASSERT_TRUE(pumpUntil([this] { return m_app->windows().size() == 1; }));
    ASSERT_TRUE(dismissAlert(*last));
    pumpPending();
    EXPECT_EQ(m_app->windows(), QList<WindowRootView*>{last});
}

TEST_F(BriskletAppTest, keepsAWindowOfTheUsersWhereAFileCouldNotBeOpened) {
    openWindow();
    WindowRootView* second = openWindow();
    second->state()->load(urlOf(m_folder / "missing.mov"));
    ASSERT_TRUE(dismissAlert(*second));
    pumpPending();
    EXPECT_EQ(m_app->windows().size(), 2);
}

TEST_F(BriskletAppTest, endsWithItsLastWindow) {
    m_app->launch({video(1), video(2)});
    bool hasClosedOne = false;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, m_app.get(), [&] {
        ASSERT_FALSE(m_app->windows().isEmpty()) << "The program outlives its last window.";
        // Each turn of the event loop is another chance to end too early.
        hasClosedOne = hasClosedOne || m_app->windows().size() == 1;
        m_app->windows().first()->close();
    });
    closing.start(0);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(hasClosedOne);
    EXPECT_TRUE(m_app->windows().isEmpty());
}

/// It used to ask in one window after the other.
TEST_F(BriskletAppTest, asksOneQuestionAboutAllExportsBeforeItClosesAWindow) {
    WindowRootView* idle = openWindow();
    WindowRootView* first = openWindow();
    ASSERT_TRUE(startLongExport(*first, "first.mp4"));
    WindowRootView* second = openWindow();
    ASSERT_TRUE(startLongExport(*second, "second.mp4"));
    ASSERT_TRUE(testsupport::showActive(*idle));
    QTest::keyClick(idle, Qt::Key_Q, Qt::ControlModifier);
    QMessageBox* question = visibleQuestion(*first);
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(visibleQuestion(*second), nullptr);
    EXPECT_EQ(question->text(), QStringLiteral("Stop 2 exports and close?"));
    EXPECT_TRUE(pumpUntil([&] { return QApplication::activeWindow() == question; }));
    clickRole(*question, QMessageBox::RejectRole);
    pumpPending();
    EXPECT_EQ(m_app->windows().size(), 3);
    EXPECT_TRUE(first->state()->exportProgress());
    EXPECT_TRUE(second->state()->exportProgress());

    m_app->quit();
    ASSERT_NE(visibleQuestion(*first), nullptr);
    clickRole(*visibleQuestion(*first), QMessageBox::AcceptRole);
    EXPECT_EQ(visibleQuestion(*second), nullptr);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

TEST_F(BriskletAppTest, asksAboutThoseExportsThatStillRun) {
    WindowRootView* first = openWindow();
    ASSERT_TRUE(startLongExport(*first, "first.mp4"));
    WindowRootView* second = openWindow();
    ASSERT_TRUE(startLongExport(*second, "second.mp4"));
    m_app->quit();
    QPointer<QMessageBox> question = visibleQuestion(*second);
    ASSERT_TRUE(question);
    EXPECT_EQ(question->text(), QStringLiteral("Stop 2 exports and close?"));
    first->state()->cancelExport();
    EXPECT_TRUE(pumpUntil([&] {
        return question && question->text() == QStringLiteral("Stop the export and close?");
    }));
    second->state()->cancelExport();
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
}

TEST_F(BriskletAppTest, asksAboutAnExportThatBeganWhileItAsked) {
    WindowRootView* first = openWindow();
    ASSERT_TRUE(startLongExport(*first, "first.mp4"));
    WindowRootView* second = openWindow();
    ASSERT_TRUE(loadAndWait(*second, video(30)));
    m_app->quit();
    ASSERT_NE(visibleQuestion(*first), nullptr);
    second->state()->exportTo(urlOf(m_folder / "second.mp4"));
    clickRole(*visibleQuestion(*first), QMessageBox::AcceptRole);
    ASSERT_NE(visibleQuestion(*second), nullptr);
    EXPECT_EQ(m_app->windows().size(), 2);
    clickRole(*visibleQuestion(*second), QMessageBox::AcceptRole);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
}

TEST_F(BriskletAppTest, asksOnceWhereAWindowIsAskedAlready) {
    WindowRootView* exporting = openWindow();
    ASSERT_TRUE(startLongExport(*exporting));
    openWindow();
    exporting->close();
    QMessageBox* question = visibleQuestion(*exporting);
    ASSERT_NE(question, nullptr);
    m_app->quit();
    m_app->quit();
    EXPECT_EQ(exporting->findChildren<QMessageBox*>(), QList<QMessageBox*>{question});
    clickRole(*question, QMessageBox::AcceptRole);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
}

TEST_F(BriskletAppTest, quitsWhenTheExportThatItAsksAboutIsDone) {
    WindowRootView* exporting = openWindow();
    openWindow();
    ASSERT_TRUE(loadAndWait(*exporting, video(1)));
    exporting->state()->exportTo(urlOf(m_folder / "out.mp4"));
    m_app->quit();
    ASSERT_NE(visibleQuestion(*exporting), nullptr);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
    EXPECT_TRUE(std::filesystem::exists(m_folder / "out.mp4"));
}

TEST_F(BriskletAppTest, staysToShowThatTheExportThatItAsksAboutFailed) {
    WindowRootView* exporting = openWindow();
    openWindow();
    ASSERT_TRUE(loadAndWait(*exporting, video(1)));
    exporting->state()->exportTo(urlOf(m_folder / "missing" / "out.mp4"));
    m_app->quit();
    ASSERT_NE(visibleQuestion(*exporting), nullptr);
    ASSERT_TRUE(pumpUntil([&] { return exporting->state()->errorMessage().has_value(); }));
    pumpPending();
    EXPECT_EQ(m_app->windows().size(), 2);
}

TEST_F(BriskletAppTest, asksAboutExportsWhenTheDesktopWantsItToEnd) {
    WindowRootView* idle = openWindow();
    WindowRootView* exporting = openWindow();
    ASSERT_TRUE(startLongExport(*exporting));
    QEvent wish(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &wish);
    EXPECT_FALSE(wish.isAccepted());
    ASSERT_NE(visibleQuestion(*exporting), nullptr);
    EXPECT_TRUE(idle->isVisible());
    clickRole(*visibleQuestion(*exporting), QMessageBox::AcceptRole);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
}

TEST_F(BriskletAppTest, leavesNothingUnfinishedWhenTheSystemEndsIt) {
    WindowRootView* exporting = openWindow();
    openWindow();
    ASSERT_TRUE(startLongExport(*exporting));
    ASSERT_TRUE(pumpUntil([&] { return exporting->state()->exportProgress().value_or(0) > 0; }));
    std::raise(SIGTERM);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().isEmpty(); }));
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
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
} // namespace brisklet
