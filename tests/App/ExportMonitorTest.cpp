#include "AppFixture.h"

#include "FakeDesktop.h"
#include "OddNames.h"
#include "Platform/SleepInhibitor.h"
#include "QtSupport/PrivateBus.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <memory>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class ExportMonitorTest : public AppFixture {
protected:
    void SetUp() override {
        if (!m_bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not here";
        m_desktop = std::make_unique<Desktop>(m_bus);
        m_session =
            std::make_unique<DesktopApplication>(m_bus.connect(), BriskletApp::sessionName());
        ASSERT_EQ(m_session->claim({}, {}), DesktopApplication::Role::owner);
        m_app->launch({}, m_session.get());
        m_window = m_app->windows().first();
        m_other = openWindow();
        ASSERT_TRUE(testsupport::showActive(*m_window));
    }

    bool waitForEnd() {
        return pumpUntil([this] { return !m_window->state()->exportProgress(); });
    }

    struct Desktop {
        explicit Desktop(const testsupport::PrivateBus& bus)
            : screenSaver(bus.connect()), notifications(bus.connect()), launcher(bus.connect()) {}

        testsupport::FakeScreenSaver screenSaver;
        testsupport::FakeNotifications notifications;
        testsupport::FakeLauncher launcher;
    };

    ~ExportMonitorTest() override {
        stopExports();
        m_app.reset();
    }

    testsupport::PrivateBus m_bus;
    std::unique_ptr<DesktopApplication> m_session;
    std::unique_ptr<Desktop> m_desktop;
    QPointer<WindowRootView> m_window;
    QPointer<WindowRootView> m_other;
};

TEST_F(ExportMonitorTest, keepsTheComputerAwakeWhileAnExportRuns) {
    ASSERT_TRUE(startLongExport(*m_window));
    EXPECT_TRUE(pumpUntil([this] { return m_desktop->screenSaver.inhibitors == 1; }));
    m_window->state()->cancelExport();
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(pumpUntil([this] { return m_desktop->screenSaver.inhibitors == 0; }));
    EXPECT_EQ(m_desktop->screenSaver.everInhibited, 1);
    EXPECT_EQ(m_desktop->screenSaver.reason, QStringLiteral("A video is being exported."));
}

TEST_F(ExportMonitorTest, asksThePortalWhereThereIsOne) {
    testsupport::FakePortal portal(m_bus.connect());
    ASSERT_TRUE(startLongExport(*m_window));
    EXPECT_TRUE(pumpUntil([&portal] { return portal.inhibitions == 1; }));
    EXPECT_EQ(portal.flags, 4U);
    m_window->state()->cancelExport();
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(pumpUntil([&portal] { return portal.request.closings == 1; }));
    EXPECT_EQ(m_desktop->screenSaver.everInhibited, 0);
}

TEST_F(ExportMonitorTest, letsTheComputerSleepThoughTheAnswerComesTooLate) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    // Starts and ends before the bus is heard again.
    SleepInhibitor inhibitor(m_bus.connect());
    inhibitor.inhibit(QStringLiteral("Reason"));
    inhibitor.release();
    EXPECT_TRUE(pumpUntil([this] {
        return m_desktop->screenSaver.everInhibited == 1 && m_desktop->screenSaver.inhibitors == 0;
    }));
}

/// A service that refused was asked again at each report of progress: 1578 times in 81 seconds.
TEST_F(ExportMonitorTest, asksAServiceThatRefusesOncePerExport) {
    testsupport::FakeScreenSaver& screenSaver = m_desktop->screenSaver;
    screenSaver.isRefusing = true;
    for (int exports = 1; exports <= 2; ++exports) {
        ASSERT_TRUE(startLongExport(*m_window));
        int reports = 0;
        const auto counting =
            QObject::connect(m_window->state().get(), &EditState::exportProgressChanged, m_window,
                             [&reports] { ++reports; });
        // Each report finds the refusal of the one before: the answers arrive between them.
        ASSERT_TRUE(pumpUntil([&] { return screenSaver.refusals >= exports && reports >= 5; }));
        QObject::disconnect(counting);
        EXPECT_EQ(screenSaver.refusals, exports);
        m_window->state()->cancelExport();
        ASSERT_TRUE(waitForEnd());
    }
    EXPECT_EQ(screenSaver.refusals, 2);
    EXPECT_EQ(screenSaver.everInhibited, 0);
}

TEST_F(ExportMonitorTest, asksAgainWhenAServiceAppears) {
    testsupport::FakeScreenSaver& screenSaver = m_desktop->screenSaver;
    screenSaver.isRefusing = true;
    SleepInhibitor inhibitor(m_bus.connect());
    inhibitor.inhibit(QStringLiteral("Reason"));
    ASSERT_TRUE(pumpUntil([&] { return screenSaver.refusals == 1; }));
    screenSaver.isRefusing = false;
    // Until the refusal has arrived the one that appears is not yet of interest.
    ASSERT_TRUE(pumpUntil([&] {
        screenSaver.disappear();
        screenSaver.appear();
        return screenSaver.inhibitors == 1;
    }));
    EXPECT_EQ(screenSaver.reason, QStringLiteral("Reason"));
    inhibitor.release();
    EXPECT_TRUE(pumpUntil([&] { return screenSaver.inhibitors == 0; }));
}

TEST_F(ExportMonitorTest, asksNoServiceThatAppearsAfterTheExport) {
    testsupport::FakeScreenSaver& screenSaver = m_desktop->screenSaver;
    screenSaver.isRefusing = true;
    SleepInhibitor inhibitor(m_bus.connect());
    inhibitor.inhibit(QStringLiteral("Reason"));
    ASSERT_TRUE(pumpUntil([&] { return screenSaver.refusals == 1; }));
    inhibitor.release();
    screenSaver.disappear();
    screenSaver.appear();
    // What comes after it on the same bus has been heard.
    testsupport::FakePortal portal(m_bus.connect());
    SleepInhibitor other(m_bus.connect());
    other.inhibit(QStringLiteral("Other"));
    ASSERT_TRUE(pumpUntil([&] { return portal.inhibitions == 1; }));
    EXPECT_EQ(screenSaver.refusals, 1);
}

TEST_F(ExportMonitorTest, showsTheProgressInTheTaskbar) {
    ASSERT_TRUE(startLongExport(*m_window));
    EXPECT_TRUE(pumpUntil(
        [this] { return m_desktop->launcher.isVisible && m_desktop->launcher.progress > 0; }));
    EXPECT_EQ(m_desktop->launcher.entry,
              QStringLiteral("application://com.quorvan.brisklet.desktop"));
    m_window->state()->cancelExport();
    EXPECT_TRUE(pumpUntil([this] { return !m_desktop->launcher.isVisible; }));
}

TEST_F(ExportMonitorTest, showsTheMeanOfTwoExportsInTheTaskbar) {
    ASSERT_TRUE(startLongExport(*m_window, "one.mp4"));
    ASSERT_TRUE(startLongExport(*m_other, "other.mp4"));
    // The bus brings each value a moment later.
    bool isMean = false;
    EXPECT_TRUE(pumpUntil([&] {
        const auto one = m_window->state()->exportProgress();
        const auto other = m_other->state()->exportProgress();
        if (!one || !other)
            return true;
        const double mean = (*one + *other) / 2;
        isMean = mean > 0.1 && std::abs(m_desktop->launcher.progress - mean) < 0.03;
        return isMean;
    }));
    EXPECT_TRUE(isMean);
}

TEST_F(ExportMonitorTest, announcesTheEndInAWindowThatIsNotActive) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    m_window->state()->exportTo(urlOf(m_folder / "a <b>.mp4"));
    ASSERT_TRUE(testsupport::showActive(*m_other));
    ASSERT_TRUE(waitForEnd());
    ASSERT_TRUE(pumpUntil([this] { return !m_desktop->notifications.titles.isEmpty(); }));
    EXPECT_EQ(m_desktop->notifications.titles, QStringList{QStringLiteral("Export finished")});
    EXPECT_EQ(m_desktop->notifications.texts, QStringList{QStringLiteral("a &lt;b&gt;.mp4")});
    // The answer with the notification's number has to arrive before the click on it means it.
    EXPECT_TRUE(pumpUntil([this] {
        Q_EMIT m_desktop->notifications.ActionInvoked(7, QStringLiteral("default"));
        return QApplication::activeWindow() == m_window;
    }));
}

TEST_F(ExportMonitorTest, announcesNamesOfFilesToTheLetter) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    const QStringList& texts = m_desktop->notifications.texts;
    for (const std::string& name : testsupport::oddNames()) {
        SCOPED_TRACE(name);
        const auto count = texts.size();
        const QUrl file = urlOf(m_folder / name);
        m_window->state()->exportTo(file);
        ASSERT_TRUE(testsupport::showActive(*m_other));
        ASSERT_TRUE(waitForEnd());
        ASSERT_TRUE(pumpUntil([&] { return texts.size() > count; }))
            << m_window->state()->errorMessage().value_or(QString()).toStdString();
        EXPECT_EQ(texts.last(), shownName(file).toHtmlEscaped());
    }
}

TEST_F(ExportMonitorTest, announcesAFailureToo) {
    const auto copy = m_folder / "copy.mp4";
    std::filesystem::copy_file(pathOf(video(1)), copy);
    ASSERT_TRUE(loadAndWait(*m_window, urlOf(copy)));
    // Before the export: it fails at once.
    ASSERT_TRUE(testsupport::showActive(*m_other));
    m_window->state()->exportTo(urlOf(m_folder / "no such folder" / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !m_desktop->notifications.titles.isEmpty(); }));
    EXPECT_EQ(m_desktop->notifications.titles, QStringList{QStringLiteral("Export failed")});
    EXPECT_EQ(m_desktop->notifications.texts.first().toHtmlEscaped(),
              m_window->state()->errorMessage()->toHtmlEscaped().toHtmlEscaped());
}

TEST_F(ExportMonitorTest, announcesNothingInTheWindowInFrontAndNoCancellation) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    m_window->state()->exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_TRUE(startLongExport(*m_window));
    ASSERT_TRUE(testsupport::showActive(*m_other));
    m_window->state()->cancelExport();
    ASSERT_TRUE(waitForEnd());
    // The signal of the taskbar was sent last: what was to be said is said by then.
    EXPECT_TRUE(pumpUntil(
        [this] { return m_desktop->launcher.wasVisible && !m_desktop->launcher.isVisible; }));
    EXPECT_TRUE(m_desktop->notifications.titles.isEmpty());
}

} // namespace
} // namespace brisklet
