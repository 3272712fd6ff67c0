#include "AppFixture.h"
#include "OtherStart.h"
#include "QtSupport/EventPump.h"
#include "QtSupport/PrivateBus.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/SlowDisk.h"

#include <gtest/gtest.h>

#include <QPointer>

#include <filesystem>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

// The program once stayed, without a window, for as long as a disk did not answer.
TEST(DeadDisk, doesNotKeepTheProgramFromEnding) {
    const testsupport::PrivateBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "dbus-daemon is not here";
    const testsupport::SlowDisk disk(1'000'000);
    if (!disk.isThere())
        GTEST_SKIP() << "no file system of our own can be mounted here";
    const auto path = disk.holding(testsupport::makeFixture({}).path);
    disk.setStalled(true);
    testsupport::OtherStart start(testsupport::environmentOn(bus, {}),
                                  {QString::fromStdString(path.string())});
    ASSERT_TRUE(pumpUntil([&] { return disk.isAwaited() && start.hearsTermination(); }));
    start.terminate();
    EXPECT_TRUE(pumpUntil([&start] { return start.hasEnded(); }));
    EXPECT_FALSE(start.hasCrashed());
    EXPECT_EQ(start.exitCode(), 0);
}

/// The program inside the test, with a video on a disk that answers, or not.
class StalledDisk : public AppFixture {
protected:
    void SetUp() override {
        if (!m_disk.isThere())
            GTEST_SKIP() << "no file system of our own can be mounted here";
    }

    ~StalledDisk() override { m_disk.setStalled(false); }

    [[nodiscard]] QUrl videoThere() const {
        return urlOf(m_disk.holding(testsupport::makeFixture({.duration = 20}).path));
    }

    testsupport::SlowDisk m_disk{1'000'000};
    QPointer<WindowRootView> m_window = openWindow();
};

TEST_F(StalledDisk, doesNotKeepAWindowFromOpeningAnotherVideo) {
    const QUrl there = videoThere();
    m_disk.setStalled(true);
    m_window->state()->load(there);
    ASSERT_TRUE(pumpUntil([this] { return m_disk.isAwaited(); }));
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    EXPECT_EQ(m_window->state()->errorMessage(), std::nullopt);
}

TEST_F(StalledDisk, doesNotKeepAWindowFromClosing) {
    const QUrl there = videoThere();
    m_disk.setStalled(true);
    m_window->state()->load(there);
    ASSERT_TRUE(pumpUntil([this] { return m_disk.isAwaited(); }));
    m_window->close();
    ASSERT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
    ASSERT_TRUE(loadAndWait(*openWindow(), video(1)));
}

/// The export, the player and the filmstrip may all be waiting then.
TEST_F(StalledDisk, doesNotHoldUpAVideoThatIsOpen) {
    // Takes half as long to read as to play.
    const auto large = testsupport::makeFixture({.container = "mov",
                                                 .duration = 20,
                                                 .audioTracks = 2,
                                                 .additionalArguments = {"-c:a", "pcm_s32le"}});
    ASSERT_TRUE(loadAndWait(*m_window, urlOf(m_disk.holding(large.path))));
    const auto state = m_window->state();
    state->exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([&state] { return state->exportProgress().value_or(1) > 0.05; }));
    m_disk.setStalled(true);
    ASSERT_TRUE(pumpUntil([this] { return m_disk.isAwaited(); }));
    state->cancelExport();
    ASSERT_TRUE(pumpUntil([&state] { return !state->exportProgress(); }));
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
    // In the same window, then in none.
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    m_window->close();
    ASSERT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
}

} // namespace
} // namespace brisklet
