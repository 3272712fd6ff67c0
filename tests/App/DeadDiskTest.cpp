#include "OtherStart.h"
#include "QtSupport/EventPump.h"
#include "QtSupport/PrivateBus.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/SlowDisk.h"

#include <gtest/gtest.h>

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
    ASSERT_TRUE(pumpUntil([&disk] { return disk.isAwaited(); }));
    start.terminate();
    EXPECT_TRUE(pumpUntil([&start] { return start.hasEnded(); }));
    EXPECT_FALSE(start.hasCrashed());
    EXPECT_EQ(start.exitCode(), 0);
}

} // namespace
} // namespace brisklet
