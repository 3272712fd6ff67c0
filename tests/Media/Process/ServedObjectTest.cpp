#include "Media/Process/Server/ServedObject.h"

#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Process/FakeHelper.h"
#include "Media/Process/SameValues.h"
#include "Media/Process/Wire/MediaMessages.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <functional>
#include <latch>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace media::process {
namespace {

/// What a test has a service do.
struct Plan {
    std::function<void(MessageReader& arguments, MessageWriter& answer,
                       const Service::Report& report, const std::stop_token& stop)>
        perform;
    /// What each answer begins with.
    std::function<void(MessageWriter&)> preamble = [](MessageWriter&) {};
};

class PlannedService final : public Service {
public:
    PlannedService(Plan plan, std::atomic<bool>& isGone)
        : m_plan(std::move(plan)), m_isGone(isGone) {}

    ~PlannedService() override { m_isGone = true; }

    PlannedService(const PlannedService&) = delete;
    PlannedService& operator=(const PlannedService&) = delete;

    void perform(std::int32_t /*operation*/, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override {
        m_plan.perform(arguments, answer, report, stop);
    }

    void writePreamble(MessageWriter& answer) override { m_plan.preamble(answer); }

private:
    Plan m_plan;
    std::atomic<bool>& m_isGone;
};

/// The program of a served object. Which ends when the program does.
class FakeProgram {
public:
    explicit FakeProgram(Plan plan) : FakeProgram(Channel::makePair(), std::move(plan)) {}

    ~FakeProgram() { end(); }

    FakeProgram(const FakeProgram&) = delete;
    FakeProgram& operator=(const FakeProgram&) = delete;

    std::uint32_t call(int argument = 0) {
        MessageWriter writer = head(++m_number, 0);
        writer.put(argument);
        send(m_channel, writer);
        return m_number;
    }

    void stop(std::uint32_t number) { send(m_channel, head(number, kStopOperation)); }

    /// The next answer without its number, which is to be this.
    MessageReader receive(std::uint32_t number) {
        std::optional<Message> message;
        if (m_channel.waitFor(std::chrono::minutes(1)))
            message = m_channel.receive();
        if (!message)
            throw std::runtime_error("There is no answer.");
        MessageReader reader(std::move(*message));
        EXPECT_EQ(reader.get<std::uint32_t>(), number);
        return reader;
    }

    /// The rest of the next answer, which is to be of this kind.
    MessageReader receive(std::uint32_t number, Answer answer) {
        MessageReader reader = receive(number);
        EXPECT_EQ(reader.getEnum(Answer::count), answer);
        return reader;
    }

    /// Lets the object go, and waits until nothing of it runs.
    void end() {
        m_channel.takeSocket().close();
        if (m_thread.joinable())
            m_thread.join();
    }

    [[nodiscard]] bool isServiceGone() const { return m_isServiceGone; }

private:
    FakeProgram(Channel::Pair pair, Plan plan)
        : m_channel(std::move(pair.ours)),
          m_thread([socket = std::move(pair.theirs), plan = std::move(plan), this]() mutable {
              serve(std::move(socket),
                    std::make_unique<PlannedService>(std::move(plan), m_isServiceGone));
          }) {}

    static MessageWriter head(std::uint32_t number, std::int32_t operation) {
        MessageWriter writer;
        writer.put(number);
        writer.put(operation);
        return writer;
    }

    Channel m_channel;
    std::uint32_t m_number = 0;
    std::atomic<bool> m_isServiceGone = false;
    std::jthread m_thread;
};

void waitForStop(const std::stop_token& stop) {
    EXPECT_TRUE(waitUntil([&stop] { return stop.stop_requested(); }));
}

TEST(ServedObject, answersEachCallInItsTurn) {
    FakeProgram program({.perform = [](auto& arguments, auto& answer, auto&,
                                       auto&) { answer.put(2 * arguments.template get<int>()); },
                         .preamble = [](MessageWriter& answer) { answer.put(true); }});
    for (int i = 0; i < 100; ++i) {
        MessageReader answer = program.receive(program.call(i), Answer::success);
        EXPECT_TRUE(answer.getBool());
        EXPECT_EQ(answer.get<int>(), 2 * i);
        EXPECT_NO_THROW(answer.expectEnd());
    }
    EXPECT_FALSE(program.isServiceGone());
    program.end();
    EXPECT_TRUE(program.isServiceGone());
}

TEST(ServedObject, answersWithWhatWasThrown) {
    FakeProgram program({.perform =
                             [](auto& arguments, auto& answer, auto&, auto&) {
                                 answer.put(std::string_view("Not a word of this."));
                                 switch (arguments.template get<int>()) {
                                 case 0:
                                     throw Error(ErrorKind::fileChanged, {"name"});
                                 case 1:
                                     throw Cancelled();
                                 case 2:
                                     throw std::bad_alloc();
                                 default:
                                     throw std::system_error(std::make_error_code(
                                         std::errc::resource_unavailable_try_again));
                                 }
                             },
                         .preamble = [](MessageWriter& answer) { answer.put(7); }});
    const auto expectRest = [](MessageReader& answer) {
        EXPECT_EQ(answer.get<int>(), 7);
        EXPECT_NO_THROW(answer.expectEnd());
    };
    MessageReader failed = program.receive(program.call(0), Answer::failure);
    EXPECT_TRUE(isSame(getFailure(failed), Failure{ErrorKind::fileChanged, {"name"}}));
    expectRest(failed);
    MessageReader cancelled = program.receive(program.call(1), Answer::cancelled);
    expectRest(cancelled);
    MessageReader outOfMemory = program.receive(program.call(2), Answer::outOfMemory);
    expectRest(outOfMemory);
    MessageReader noThread = program.receive(program.call(3), Answer::failure);
    EXPECT_TRUE(isSame(getFailure(noThread), Failure{ErrorKind::noMoreThreads}));
    expectRest(noThread);
}

TEST(ServedObject, reportsWhileItWorks) {
    FakeProgram program({.perform = [](auto&, auto& answer, const auto& report, auto&) {
        for (int step = 0; step < 5; ++step) {
            MessageWriter progress;
            progress.put(step);
            report(std::move(progress));
        }
        answer.put(5);
    }});
    const std::uint32_t number = program.call();
    for (int step = 0; step < 5; ++step)
        EXPECT_EQ(program.receive(number, Answer::progress).get<int>(), step);
    EXPECT_EQ(program.receive(number, Answer::success).get<int>(), 5);
}

/// A program may be stopped from a terminal for as long as its user likes.
TEST(ServedObject, answersThoughItsReportsWereNotReadForLong) {
    constexpr int kReports = 5000;
    for (int i = 0; i < 5; ++i) {
        std::latch isDone(1);
        FakeProgram program({.perform =
                                 [](auto&, auto&, const auto& report, auto&) {
                                     for (int step = 0; step < kReports; ++step)
                                         report({});
                                 },
                             .preamble = [&isDone](MessageWriter&) { isDone.count_down(); }});
        const std::uint32_t number = program.call();
        isDone.wait();
        while (program.receive(number).getEnum(Answer::count) == Answer::progress)
            continue;
    }
}

TEST(ServedObject, stopsTheCallThatIsNamedAndNoOther) {
    std::atomic<bool> isStopped = true;
    FakeProgram program(
        {.perform = [&isStopped](auto& arguments, auto&, const auto& report, const auto& stop) {
            report({});
            if (arguments.template get<int>() == 1) {
                waitForStop(stop);
                throw Cancelled();
            }
            isStopped = stop.stop_requested();
        }});
    const std::uint32_t first = program.call(1);
    static_cast<void>(program.receive(first, Answer::progress));
    program.stop(first);
    static_cast<void>(program.receive(first, Answer::cancelled));
    // It is over; and this is none yet.
    program.stop(first);
    program.stop(first + 1);
    const std::uint32_t second = program.call(2);
    static_cast<void>(program.receive(second, Answer::progress));
    static_cast<void>(program.receive(second, Answer::success));
    EXPECT_FALSE(isStopped);
}

TEST(ServedObject, stopsNothingForTheSakeOfAnotherCall) {
    std::latch mayEnd(1);
    std::atomic<bool> isStopped = true;
    FakeProgram program({.perform = [&](auto&, auto&, const auto& report, const auto& stop) {
        report({});
        mayEnd.wait();
        isStopped = stop.stop_requested();
    }});
    const std::uint32_t number = program.call();
    static_cast<void>(program.receive(number, Answer::progress));
    for (const std::uint32_t other : {0U, number + 1, ~number})
        program.stop(other);
    mayEnd.count_down();
    static_cast<void>(program.receive(number, Answer::success));
    EXPECT_FALSE(isStopped);
}

TEST(ServedObject, stopsACallWhoseProgramIsGone) {
    std::atomic<bool> wasStopped = false;
    FakeProgram program({.perform = [&](auto&, auto&, const auto& report, const auto& stop) {
        report({});
        waitForStop(stop);
        wasStopped = true;
        throw Cancelled();
    }});
    static_cast<void>(program.receive(program.call(), Answer::progress));
    program.end();
    EXPECT_TRUE(wasStopped);
    EXPECT_TRUE(program.isServiceGone());
}

TEST(ServedObject, isGivenUpByAProgramThatReadsNothing) {
    FakeProgram program({.perform = [](auto&, auto&, const auto& report, const auto& stop) {
        while (!stop.stop_requested())
            report({});
    }});
    program.call();
    program.end();
    EXPECT_TRUE(program.isServiceGone());
}

TEST(ServedObject, worksOnOneThreadFromTheBeginningToTheEnd) {
    std::thread::id worker;
    FakeProgram program({.perform = [&worker](auto&, auto& answer, auto&, auto&) {
        if (worker == std::thread::id())
            worker = std::this_thread::get_id();
        answer.put(worker == std::this_thread::get_id());
    }});
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(program.receive(program.call(), Answer::success).getBool());
}

/// Serves one message of a program, which then is gone.
void serveOne(const std::string& bytes, Plan plan) {
    auto [ours, theirs] = Channel::makePair();
    std::atomic<bool> isGone = false;
    EXPECT_TRUE(ours.send({bytes, {}}));
    serve(std::move(theirs), std::make_unique<PlannedService>(std::move(plan), isGone));
}

TEST(ServedObjectDeathTest, endsItsProcessWhenItCannotUnderstandTheProgram) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(serveOne("short", {}), testing::KilledBySignal(SIGABRT), "");
    const std::string whole(8, '\0');
    EXPECT_EXIT(
        serveOne(whole, {.perform = [](auto&, auto&, auto&, auto&) { throw BadMessage(); }}),
        testing::KilledBySignal(SIGABRT), "");
}

} // namespace
} // namespace media::process
