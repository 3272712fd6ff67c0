#include "Media/Error.h"
#include "Media/ExportForecast.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "Media/ImageGenerator.h"
#include "Media/Playback/PlayerStage.h"
#include "Media/Player.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <memory>
#include <system_error>

/// The system starts no more threads: each single one is refused once, and all from the first.
namespace media {
namespace {

using testsupport::Fixture;
using testsupport::SystemCall;

std::shared_ptr<const Asset> openedFixture() {
    return Asset::open(testsupport::makeFixture({.duration = 2}).path);
}

/// Runs `action` with each of the threads refused that it starts, directly or not.
void refuseEachThread(const std::function<void()>& action) {
    const FaultPlan none{.kind = SystemCall::Kind::startThread};
    const auto count = std::ssize(runWithFault(none, action));
    ASSERT_GT(count, 0);
    testing::Test::RecordProperty("points", static_cast<int>(count));
    for (long number = 0; number < count; ++number) {
        SCOPED_TRACE(number);
        const Leftovers leftovers;
        runWithFault(
            {.kind = SystemCall::Kind::startThread, .number = number, .answer = {.error = EAGAIN}},
            action);
        EXPECT_EQ(leftovers.complaint(), "");
    }
}

std::vector<Still> stillsOf(const std::shared_ptr<const Asset>& asset) {
    std::vector<Time> times;
    for (const double seconds : {0.2, 0.6, 1.0, 1.4, 1.8})
        times.push_back(Time::fromSeconds(seconds, kComparisonTimescale));
    return ImageGenerator::make(asset)->images(times, {});
}

TEST(ThreadFaults, leaveStillsToFewerThreads) {
    const auto asset = openedFixture();
    const auto whole = stillsOf(asset);
    refuseEachThread([&] {
        const auto stills = stillsOf(asset);
        ASSERT_EQ(stills.size(), whole.size());
        for (std::size_t i = 0; i < stills.size(); ++i) {
            ASSERT_TRUE(stills[i].picture) << i;
            EXPECT_EQ(stills[i].picture->time, whole[i].picture->time);
        }
    });
}

TEST(ThreadFaults, areASentenceWhereAPlayerIsMade) {
    HandExecutor executor;
    const auto make = [&] {
        try {
            Player::make(executor.executor());
        } catch (const Error& error) {
            EXPECT_EQ(complaintAbout(error.what()), "");
            EXPECT_EQ(error.failure().kind, ErrorKind::noMoreThreads);
        }
    };
    refuseEachThread(make);
}

TEST(ThreadFaults, doNotKeepAPlayerFromShowingItsVideo) {
    const Fixture fixture = testsupport::makeFixture({.duration = 2});
    const Time time = Time::fromSeconds(1.5, kComparisonTimescale);
    refuseEachThread([&] {
        std::unique_ptr<PlayerStage> stage;
        try {
            stage = std::make_unique<PlayerStage>();
        } catch (const std::system_error&) {
            // Those of the player itself.
            return;
        }
        stage->load(fixture.path);
        EXPECT_TRUE(stage->seekAndWait(time));
        EXPECT_TRUE(stage->waitForNumber(frameAt(fixture, time)));
    });
}

TEST(ThreadFaults, endAForecastWithASentenceAtMost) {
    const Composition composition = compositionOf(openedFixture(), 0, 1);
    refuseEachThread([&] {
        try {
            static_cast<void>(forecastExport(composition, std::nullopt, {}, {}));
        } catch (const Error& error) {
            EXPECT_EQ(complaintAbout(error.what()), "");
        }
    });
}

} // namespace
} // namespace media
