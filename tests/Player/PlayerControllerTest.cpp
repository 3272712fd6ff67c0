#include "Player/PlayerController.h"

#include "QtSupport/EventPump.h"
#include "Support/MainThread.h"
#include "TestSupport/Fixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace {

using brisklet::PlayerController;
using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

std::shared_ptr<const media::PlayerItem> itemOf(const testsupport::Recipe& recipe) {
    return std::make_shared<media::PlayerItem>(media::Asset::open(makeFixture(recipe).path));
}

std::shared_ptr<const media::PlayerItem> shortItem() {
    return itemOf({.duration = 1});
}

/// What a controller has reported so far.
struct Reports {
    std::vector<double> ticks;
    std::vector<bool> playing;
    int ends = 0;
    bool wereOnMainThread = true;

    explicit Reports(PlayerController& controller) {
        controller.onTick = [this](double time) {
            ticks.push_back(time);
            noteThread();
        };
        controller.onPlayingChange = [this](bool isPlaying) {
            playing.push_back(isPlaying);
            noteThread();
        };
        controller.onPlayedToEnd = [this] {
            ++ends;
            noteThread();
        };
    }

    void noteThread() { wereOnMainThread = wereOnMainThread && brisklet::isMainThread(); }

    [[nodiscard]] bool isEmpty() const { return ticks.empty() && playing.empty() && ends == 0; }
};

TEST(PlayerController, beginsWithAPlayerWithoutAnItemAndSaysNothing) {
    PlayerController controller;
    const Reports reports(controller);
    ASSERT_NE(controller.player(), nullptr);
    EXPECT_EQ(controller.player()->currentItem(), nullptr);
    pumpPending();
    EXPECT_TRUE(reports.isEmpty());
}

TEST(PlayerController, pausesAndReportsTheTimeAtOnceWhenItSteps) {
    PlayerController controller;
    const Reports reports(controller);
    controller.player()->replaceCurrentItem(shortItem());
    controller.player()->play();
    ASSERT_TRUE(pumpUntil([&] { return !reports.playing.empty(); }));
    const std::size_t before = reports.ticks.size();
    controller.step(1);
    EXPECT_EQ(reports.ticks.size(), before + 1);
    EXPECT_EQ(controller.player()->rate(), 0.0F);
    EXPECT_TRUE(pumpUntil([&] { return reports.playing.size() == 2; }));
    EXPECT_TRUE(pumpUntil([&] { return reports.ticks.size() > before + 1; }))
        << "the player's own report of the frame";
}

TEST(PlayerController, reportsTicksThePlayStateAndTheEndOnTheMainThread) {
    PlayerController controller;
    const Reports reports(controller);
    controller.player()->replaceCurrentItem(shortItem());
    controller.player()->play();
    ASSERT_TRUE(pumpUntil([&] { return reports.ends > 0 && reports.playing.size() == 2; }));
    EXPECT_EQ(reports.ends, 1);
    EXPECT_TRUE(reports.playing.front());
    EXPECT_FALSE(reports.playing.back());
    EXPECT_TRUE(reports.wereOnMainThread);
    // A second has thirty ticks; some may be left out on a machine that is busy.
    EXPECT_GE(reports.ticks.size(), 3U);
    EXPECT_LE(reports.ticks.size(), 45U);
    EXPECT_NEAR(reports.ticks.back(), 1, 0.1);
}

TEST(PlayerController, reportsAPauseAfterIt) {
    PlayerController controller;
    const Reports reports(controller);
    controller.player()->replaceCurrentItem(itemOf({.duration = 10}));
    controller.player()->play();
    ASSERT_TRUE(pumpUntil([&] { return !reports.playing.empty() && !reports.ticks.empty(); }));
    EXPECT_TRUE(reports.playing.back());
    controller.player()->pause();
    EXPECT_EQ(reports.playing.size(), 1U);
    ASSERT_TRUE(pumpUntil([&] { return reports.playing.size() == 2; }));
    EXPECT_FALSE(reports.playing.back());
}

TEST(PlayerController, ticksWhenTheTimeJumps) {
    PlayerController controller;
    const Reports reports(controller);
    controller.player()->replaceCurrentItem(itemOf({.duration = 10}));
    const media::Time exactly{0, 600};
    controller.player()->seek(media::Time::fromSeconds(7.5, 600), exactly, exactly);
    ASSERT_TRUE(pumpUntil([&] { return !reports.ticks.empty() && reports.ticks.back() == 7.5; }));
    EXPECT_TRUE(reports.playing.empty());
}

TEST(PlayerController, doesNotHearTheEndOfAnotherPlayersItem) {
    PlayerController one;
    PlayerController other;
    const Reports reportsOfOne(one);
    const Reports reportsOfOther(other);
    one.player()->replaceCurrentItem(itemOf({.duration = 10}));
    other.player()->replaceCurrentItem(shortItem());
    other.player()->play();
    ASSERT_TRUE(pumpUntil([&] { return reportsOfOther.ends == 1; }));
    pumpPending();
    EXPECT_EQ(reportsOfOne.ends, 0);
}

TEST(PlayerController, saysNothingAfterItIsGoneEvenIfThePlayerIsKept) {
    std::optional<PlayerController> controller(std::in_place);
    const Reports reports(*controller);
    const auto player = controller->player();
    player->replaceCurrentItem(shortItem());
    player->play();
    ASSERT_TRUE(pumpUntil([&] { return reports.ticks.size() > 2; }));
    controller.reset();
    const auto ticks = reports.ticks.size();
    const auto changes = reports.playing.size();
    const auto ends = reports.ends;
    EXPECT_EQ(player->rate(), 0.0F);
    // From here on it ticks, changes its rate and comes to its end with nobody to hear of it.
    const media::Time exactly{0, 600};
    bool hasSought = false;
    player->seek(media::Time::fromSeconds(0.5, 600), exactly, exactly,
                 [&hasSought](bool) { hasSought = true; });
    ASSERT_TRUE(pumpUntil([&] { return hasSought; }));
    player->play();
    ASSERT_TRUE(pumpUntil([&] { return player->rate() == 0.0F; }));
    EXPECT_EQ(player->currentTime(), player->currentItem()->asset()->duration());
    pumpPending();
    EXPECT_EQ(reports.ticks.size(), ticks);
    EXPECT_EQ(reports.playing.size(), changes);
    EXPECT_EQ(reports.ends, ends);
}

TEST(PlayerController, dropsEventsThatAreOnTheirWayWhenItIsReleased) {
    auto controller = std::make_unique<PlayerController>();
    const Reports reports(*controller);
    controller->player()->replaceCurrentItem(shortItem());
    controller->player()->play();
    controller.reset();
    pumpPending();
    EXPECT_TRUE(reports.isEmpty());
}

TEST(PlayerController, mayBeReleasedInItsOwnCallback) {
    auto controller = std::make_unique<PlayerController>();
    int ticks = 0;
    controller->onTick = [&](double) {
        ++ticks;
        controller.reset();
    };
    controller->player()->replaceCurrentItem(itemOf({.duration = 10}));
    controller->player()->play();
    ASSERT_TRUE(pumpUntil([&] { return controller == nullptr; }));
    pumpPending();
    EXPECT_EQ(ticks, 1);
}

} // namespace
