#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "Media/Process/Client/ForkServer.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "Media/Process/Client/RemoteImageGenerator.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Processes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <ctime>
#include <exception>
#include <filesystem>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <stop_token>
#include <thread>
#include <unistd.h>
#include <vector>

/// Real helpers, which end, are killed or are stopped.
namespace media::process {
namespace {

using playback::CachedFrame;
using playback::FrameSource;
using playback::SoundReader;
using testsupport::childrenOf;
using testsupport::isRunning;

constexpr double kSeconds = 10;

std::filesystem::path video() {
    return testsupport::makeFixture({.duration = kSeconds}).path;
}

std::set<pid_t> without(const std::set<pid_t>& all, const std::set<pid_t>& some) {
    std::set<pid_t> rest;
    std::ranges::set_difference(all, some, std::inserter(rest, rest.end()));
    return rest;
}

/// The processes that helpers are forked from.
std::set<pid_t> servers() {
    return childrenOf(::getpid());
}

std::set<pid_t> helpers() {
    std::set<pid_t> all;
    for (const pid_t server : servers())
        all.merge(childrenOf(server));
    return all;
}

/// An open video with all that uses it, and its process.
struct Video {
    explicit Video(ForkServer& server) {
        const std::set<pid_t> before = helpers();
        asset = RemoteAsset::open(server, video(), {});
        const std::set<pid_t> made = without(helpers(), before);
        EXPECT_EQ(made.size(), 1U);
        process = made.empty() ? 0 : *made.begin();
        asset->setLossHandler([losses = losses] { ++*losses; });
        pictures = asset->makeFrameSource([](const CachedFrame& frame) {
            EXPECT_EQ(frame.picture->byteCount(), frame.picture->bytes().size());
        });
        sound = asset->makeSoundReader();
        stills = std::make_unique<RemoteImageGenerator>(asset);
        stills->setMaximumSize(0, 60);
    }

    void kill() const { EXPECT_EQ(::kill(process, SIGKILL), 0); }

    std::shared_ptr<std::atomic<int>> losses = std::make_shared<std::atomic<int>>(0);
    pid_t process = 0;
    std::shared_ptr<const RemoteAsset> asset;
    std::unique_ptr<FrameSource> pictures;
    std::unique_ptr<SoundReader> sound;
    std::unique_ptr<ImageGenerator> stills;
};

class HelperEnds : public testing::Test {
protected:
    void TearDown() override {
        EXPECT_TRUE(waitUntil([] { return servers().empty(); }));
        EXPECT_EQ(m_leftovers.complaint(), "");
    }

    Time randomTime() {
        return Time::fromSeconds(std::uniform_real_distribution<double>(0, kSeconds)(m_random),
                                 kComparisonTimescale);
    }

    void operate(const Video& video) {
        const Time time = randomTime();
        switch (m_random() % 6) {
        case 0:
        case 1:
            return advance(*video.pictures, time.ticks());
        case 2:
            static_cast<void>(
                video.pictures->advanceNear(time.ticks(), time.ticks() + Ticks(60), {0, 60}, {}));
            return;
        case 3:
            video.sound->seek(time, {});
            static_cast<void>(video.sound->next({}));
            return;
        case 4:
            EXPECT_EQ(video.stills->image(time).image->height, 60);
            return;
        default:
            expectStills(video.stills->images({time, randomTime(), randomTime()}, [] {}));
            return;
        }
    }

    /// That the operation is done, or that the decoder has stopped; whether it is done.
    bool isDone(const Video& video) {
        try {
            operate(video);
            return true;
        } catch (const Error& error) {
            EXPECT_EQ(error.failure().kind, ErrorKind::decoderStopped) << error.what();
            return false;
        }
    }

    void advance(FrameSource& pictures, Ticks ticks) {
        const FrameSource::Goal goal{.ticks = ticks, .completeFrom = ticks, .isUrgent = true};
        for (std::size_t count = 1 + m_random() % 8; count > 0; --count) {
            if (pictures.advance(goal, {0, 60}, {}) != FrameSource::Outcome::onTheWay)
                return;
            static_cast<void>(pictures.passing({0, 60}));
        }
    }

    static void expectStills(const std::vector<Still>& stills) {
        EXPECT_EQ(stills.size(), 3U);
        for (const Still& still : stills) {
            if (still.failure)
                std::rethrow_exception(still.failure);
            EXPECT_EQ(still.picture->image->height, 60);
        }
    }

    Leftovers m_leftovers;
    std::mt19937 m_random{7};
};

TEST_F(HelperEnds, atAnyMomentAndNoOtherNotices) {
    constexpr int kOperations = 200;
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const Video neighbour(server);
    int operations = 0;
    int failures = 0;
    while (operations < kOperations) {
        const Video video(server);
        for (std::size_t count = m_random() % 6; count > 0; --count, ++operations)
            EXPECT_TRUE(isDone(video));
        // Somewhere within an operation, or between two.
        const timespec moment{0, static_cast<long>(m_random() % 10'000'000)};
        const std::jthread killer([&video, moment] {
            ::nanosleep(&moment, nullptr);
            video.kill();
        });
        while (isDone(video))
            ++operations;
        for (int i = 0; i < 4; ++i, ++operations, ++failures)
            EXPECT_FALSE(isDone(video));
        EXPECT_TRUE(waitUntil([&video] { return *video.losses > 0; }));
        EXPECT_TRUE(isDone(neighbour));
        EXPECT_EQ(*video.losses, 1);
        ASSERT_FALSE(HasFailure()) << "operation " << operations;
    }
    EXPECT_GT(failures, 40);
    EXPECT_EQ(*neighbour.losses, 0);
}

TEST_F(HelperEnds, andNothingNewCanBeMadeInIt) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const Video video(server);
    video.kill();
    EXPECT_TRUE(waitUntil([&video] { return *video.losses > 0; }));
    const auto expectStopped = [](const std::function<void()>& action) {
        try {
            action();
            ADD_FAILURE() << "Nothing was thrown.";
        } catch (const Error& error) {
            EXPECT_EQ(error.failure().kind, ErrorKind::decoderStopped);
        }
    };
    expectStopped(
        [&] { static_cast<void>(video.asset->makeFrameSource([](const CachedFrame&) {})); });
    expectStopped([&] { static_cast<void>(video.asset->makeSoundReader()); });
    expectStopped([&] { static_cast<void>(RemoteImageGenerator(video.asset)); });
    EXPECT_NEAR(video.asset->duration().seconds(), kSeconds, 0.1) << "what is known stays known";
}

TEST_F(HelperEnds, andALateListenerIsToldAtOnce) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const Video video(server);
    video.kill();
    EXPECT_TRUE(waitUntil([&video] { return *video.losses > 0; }));
    int calls = 0;
    video.asset->setLossHandler([&calls] { ++calls; });
    EXPECT_EQ(calls, 1);
    video.asset->setLossHandler({});
    EXPECT_EQ(*video.losses, 1);
}

TEST_F(HelperEnds, withItsVideoAndTellsNobody) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    std::shared_ptr<std::atomic<int>> losses;
    pid_t process = 0;
    {
        Video video(server);
        losses = video.losses;
        process = video.process;
        EXPECT_TRUE(isDone(video));
    }
    EXPECT_TRUE(waitUntil([process] { return !isRunning(process); }));
    EXPECT_EQ(*losses, 0);
}

TEST_F(HelperEnds, thoughItIsStopped) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    std::shared_ptr<std::atomic<int>> losses;
    pid_t process = 0;
    {
        const Video video(server);
        losses = video.losses;
        process = video.process;
        ASSERT_EQ(::kill(process, SIGSTOP), 0);
    }
    EXPECT_TRUE(waitUntil([process] { return !isRunning(process); }));
    EXPECT_EQ(*losses, 0);
    EXPECT_TRUE(isDone(Video(server)));
}

TEST_F(HelperEnds, forWhoeverWaitsForItInVain) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const Video video(server);
    const Video neighbour(server);
    ASSERT_EQ(::kill(video.process, SIGSTOP), 0);
    const std::jthread other([&video] { video.asset->abandon(); });
    EXPECT_FALSE(isDone(video));
    EXPECT_TRUE(waitUntil([&video] { return !isRunning(video.process); }));
    EXPECT_TRUE(isDone(neighbour));
}

TEST_F(HelperEnds, whileItsFileIsOpened) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const auto path = video();
    for (int i = 0; i < 40; ++i) {
        const timespec moment{0, static_cast<long>(m_random() % 10'000'000)};
        const std::jthread killer([moment](const std::stop_token& stop) {
            ::nanosleep(&moment, nullptr);
            while (!stop.stop_requested()) {
                for (const pid_t helper : helpers())
                    ::kill(helper, SIGKILL);
            }
        });
        try {
            EXPECT_NEAR(RemoteAsset::open(server, path, {})->duration().seconds(), kSeconds, 0.1);
        } catch (const Error& error) {
            EXPECT_EQ(error.failure().kind, ErrorKind::decoderStopped) << error.what();
        }
    }
}

TEST_F(HelperEnds, laterThanTheProcessThatItWasForkedFrom) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const Video video(server);
    const std::set<pid_t> before = servers();
    ASSERT_EQ(before.size(), 1U);
    ASSERT_EQ(::kill(*before.begin(), SIGKILL), 0);
    EXPECT_TRUE(isDone(video));
    {
        const Video another(server);
        EXPECT_TRUE(isDone(another));
        EXPECT_TRUE(isDone(video));
    }
    const std::set<pid_t> after = servers();
    EXPECT_EQ(after.size(), 1U);
    EXPECT_NE(after, before);
    EXPECT_EQ(*video.losses, 0);
    video.kill();
    EXPECT_TRUE(waitUntil([&video] { return *video.losses > 0; }));
    EXPECT_FALSE(isDone(video));
}

TEST_F(HelperEnds, notWithAProcessThatWasGoneBeforeItWasNeeded) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    for (const pid_t process : servers())
        ASSERT_EQ(::kill(process, SIGKILL), 0);
    EXPECT_TRUE(isDone(Video(server)));
}

} // namespace
} // namespace media::process
