#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Process/Client/ForkServer.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "Media/Process/Client/RemoteFrameSource.h"
#include "Media/Process/Client/RemoteObject.h"
#include "Media/Process/FakeHelper.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Processes.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <stop_token>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

/// Processes that do not answer, or never come to an end.
namespace media::process {
namespace {

using playback::CachedFrame;
using std::chrono::milliseconds;
using testsupport::childrenOf;
using testsupport::isRunning;

enum class Operation { first };

constexpr milliseconds kShort{20};
constexpr std::chrono::hours kEver{24};

template<typename Action>
std::optional<ErrorKind> errorKindOf(Action action) {
    try {
        action();
        return std::nullopt;
    } catch (const Error& error) {
        return error.failure().kind;
    }
}

/// Receives what there is until the program lets go.
void ignore(Channel& channel) {
    while (channel.receive()) {
    }
}

TEST(HungHelper, isEndedWhereACallIsStoppedAndDoesNotEnd) {
    FakeHelper helper(&ignore);
    int abandoned = 0;
    std::stop_source stop;
    stop.request_stop();
    {
        RemoteObject object(helper.takeSocket(), {}, [&] { ++abandoned; }, {kShort, kEver});
        EXPECT_EQ(errorKindOf([&] {
                      static_cast<void>(object.call(Operation::first, {}, stop.get_token()));
                  }),
                  ErrorKind::decoderStopped);
    }
    EXPECT_EQ(abandoned, 1);
}

TEST(HungHelper, isEndedWhereACallThatCannotBeStoppedDoesNotEnd) {
    FakeHelper helper(&ignore);
    int abandoned = 0;
    {
        RemoteObject object(helper.takeSocket(), {}, [&] { ++abandoned; }, {kEver, kShort});
        EXPECT_EQ(errorKindOf([&] { static_cast<void>(object.callShort(Operation::first, {})); }),
                  ErrorKind::decoderStopped);
    }
    EXPECT_EQ(abandoned, 1);
}

TEST(HungHelper, mayReportForEver) {
    FakeHelper helper([](Channel& channel) {
        const MessageWriter report = answerTo(receiveCall(channel).number, Answer::progress);
        while (channel.sendWaiting(report.message())) {
        }
    });
    std::stop_source stop;
    {
        RemoteObject object(helper.takeSocket(), {}, {}, {kShort, kEver});
        EXPECT_EQ(errorKindOf([&] {
                      static_cast<void>(object.call(Operation::first, {}, stop.get_token(),
                                                    [&](MessageReader&) { stop.request_stop(); }));
                  }),
                  ErrorKind::decoderStopped);
    }
}

/// A disk may be slow; nobody has asked it to stop.
TEST(HungHelper, isNotOneThatIsAtWork) {
    FakeHelper helper([](Channel& channel) {
        const std::uint32_t number = receiveCall(channel).number;
        EXPECT_FALSE(channel.waitFor(10 * kShort)) << "nothing else comes";
        send(channel, answerTo(number, Answer::success));
    });
    int abandoned = 0;
    RemoteObject object(helper.takeSocket(), {}, [&] { ++abandoned; }, {kShort, kShort});
    const std::stop_source stop;
    EXPECT_NO_THROW(static_cast<void>(object.call(Operation::first, {}, stop.get_token())));
    EXPECT_EQ(abandoned, 0);
}

TEST(HungHelper, isEndedIfItCannotBeUnderstood) {
    FakeHelper helper([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number + 1, Answer::success));
    });
    int abandoned = 0;
    RemoteObject object(helper.takeSocket(), {}, [&] { ++abandoned; });
    EXPECT_EQ(errorKindOf([&] { static_cast<void>(object.call(Operation::first, {}, {})); }),
              ErrorKind::decoderStopped);
    EXPECT_EQ(abandoned, 1);
}

/// What an answer of a frame source begins with, and a frame that is said not to be the last.
MessageWriter answerWithAFrame(std::uint32_t number, SharedArea& area) {
    MessageWriter answer = answerTo(number, Answer::success);
    answer.put(std::uint8_t{0});
    answer.put(std::uint32_t{2});
    const auto picture = std::make_shared<PreviewPicture>(
        PreviewPicture::Format{.width = 2, .height = 2, .kind = PreviewPicture::Kind::rgb});
    put(answer, area, {.range = {Ticks(0), Ticks(1)}, .picture = picture});
    return answer;
}

TEST(HungHelper, mayHaveOneMoreFrameForEver) {
    FakeHelper helper([](Channel& channel) {
        SharedArea area;
        MessageWriter opened = answerTo(receiveCall(channel).number, Answer::success);
        opened.put(std::uint8_t{0});
        opened.put(std::uint32_t{0});
        opened.put(std::uint8_t{1});
        send(channel, opened);
        while (auto message = channel.receive()) {
            MessageReader reader(std::move(*message));
            if (!channel.send(answerWithAFrame(reader.get<std::uint32_t>(), area).message()))
                return;
        }
    });
    int kept = 0;
    int abandoned = 0;
    {
        RemoteFrameSource source(
            helper.takeSocket(), [&](const CachedFrame&) { ++kept; }, [&] { ++abandoned; });
        EXPECT_EQ(errorKindOf([&] { source.keepOnePassed({}); }), ErrorKind::decoderStopped);
    }
    EXPECT_EQ(kept, 1);
    EXPECT_EQ(abandoned, 1);
}

std::filesystem::path video() {
    return testsupport::makeFixture({.duration = 1}).path;
}

pid_t serverProcess() {
    const std::set<pid_t> servers = childrenOf(::getpid());
    EXPECT_EQ(servers.size(), 1U);
    return servers.empty() ? 0 : *servers.begin();
}

TEST(HungHelper, keepsNobodyWhoStopsOpening) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const auto path = video();
    // It may be open before its helper is found and stopped: then once more.
    bool wasCancelled = false;
    for (int i = 0; i < 100 && !wasCancelled; ++i) {
        std::stop_source stop;
        std::atomic<bool> isOver = false;
        const std::jthread stopper([&, process = serverProcess()] {
            EXPECT_TRUE(waitUntil([&] { return isOver || !childrenOf(process).empty(); }));
            for (const pid_t helper : childrenOf(process))
                ::kill(helper, SIGSTOP);
            stop.request_stop();
        });
        try {
            static_cast<void>(RemoteAsset::open(server, path, stop.get_token()));
        } catch (const Cancelled&) {
            wasCancelled = true;
        }
        isOver = true;
        EXPECT_TRUE(waitUntil([] { return childrenOf(serverProcess()).empty(); }));
    }
    EXPECT_TRUE(wasCancelled);
}

TEST(HungForkServer, isReplaced) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM, milliseconds(1000));
    const auto asset = RemoteAsset::open(server, video(), {});
    const pid_t process = serverProcess();
    ASSERT_EQ(::kill(process, SIGSTOP), 0);
    EXPECT_NO_THROW(static_cast<void>(RemoteAsset::open(server, video(), {})));
    EXPECT_FALSE(isRunning(process));
    EXPECT_NE(asset->makeSoundReader(), nullptr) << "what it has forked goes on";
}

TEST(HungForkServer, isReplacedBeforeItHasSaidAWord) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM, milliseconds(1000));
    ASSERT_EQ(::kill(serverProcess(), SIGSTOP), 0);
    EXPECT_NO_THROW(static_cast<void>(RemoteAsset::open(server, video(), {})));
}

TEST(HungForkServer, keepsNobodyWhoStops) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM, kEver);
    static_cast<void>(server.fork());
    const pid_t process = serverProcess();
    for (long i = 0; i < 10; ++i) {
        ASSERT_EQ(::kill(process, SIGSTOP), 0);
        std::stop_source stop;
        const auto expectCancelled = [&] {
            EXPECT_THROW(static_cast<void>(server.fork(stop.get_token())), Cancelled);
        };
        // One of them waits for the answer, the other for its turn.
        std::jthread first(expectCancelled);
        std::jthread second(expectCancelled);
        const timespec moment{0, 10'000'000 * i};
        ::nanosleep(&moment, nullptr);
        stop.request_stop();
        first.join();
        second.join();
        ASSERT_EQ(::kill(process, SIGCONT), 0);
        const auto helper = server.fork();
        EXPECT_EQ(serverProcess(), process) << "it is the same";
        EXPECT_TRUE(waitUntil([process] { return childrenOf(process).size() == 1; }))
            << "those that nobody waited for end";
        helper->kill();
        EXPECT_TRUE(waitUntil([process] { return childrenOf(process).empty(); }))
            << "it was the right one";
    }
}

TEST(HungForkServer, isEndedWithItsHungHelpers) {
    pid_t helper = 0;
    std::shared_ptr<HelperProcess> kept;
    {
        ForkServer server(BRISKLET_ENGINE_PROGRAM);
        kept = server.fork();
        helper = *childrenOf(serverProcess()).begin();
        ASSERT_EQ(::kill(helper, SIGSTOP), 0);
    }
    EXPECT_TRUE(waitUntil([helper] { return !isRunning(helper); }));
}

/// A program that is killed has no time to end anybody.
TEST(HungHelper, doesNotOutliveTheProgram) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const pid_t program = ::fork();
    if (program == 0) {
        ForkServer server(BRISKLET_ENGINE_PROGRAM);
        const auto kept = server.fork();
        const pid_t helper = *childrenOf(*childrenOf(::getpid()).begin()).begin();
        ::kill(helper, SIGSTOP);
        if (kept && ::write(ends[1], &helper, sizeof helper) > 0)
            ::raise(SIGKILL);
        ::_exit(1);
    }
    ::close(ends[1]);
    pid_t helper = 0;
    ASSERT_EQ(::read(ends[0], &helper, sizeof helper), ssize_t{sizeof helper});
    ::close(ends[0]);
    ::waitpid(program, nullptr, 0);
    EXPECT_TRUE(waitUntil([helper] { return !isRunning(helper); }));
}

} // namespace
} // namespace media::process
