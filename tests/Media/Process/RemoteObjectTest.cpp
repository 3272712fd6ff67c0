#include "Media/Process/Client/RemoteObject.h"

#include "Media/Process/FakeHelper.h"
#include "Media/Process/MessageCopies.h"
#include "Media/Process/RandomMedia.h"
#include "Media/Process/SameValues.h"
#include "Media/Process/Wire/MediaMessages.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace media::process {
namespace {

enum class Operation { first, second, third };

/// The kind of the Error that `action` throws; none if it throws none. Others go through.
template<typename Action>
std::optional<ErrorKind> errorKindOf(Action action) {
    try {
        action();
        return std::nullopt;
    } catch (const Error& error) {
        return error.failure().kind;
    }
}

/// Calls an object whose helper answers the first call with this message, and then is gone.
std::optional<ErrorKind> errorOfCall(const Message& answer, RemoteObject::Preamble preamble = {}) {
    FakeHelper helper([&answer](Channel& channel) {
        static_cast<void>(receiveCall(channel));
        EXPECT_TRUE(channel.send(answer));
    });
    RemoteObject object(helper.takeSocket(), std::move(preamble));
    return errorKindOf([&] { static_cast<void>(object.call(Operation::first, {}, {})); });
}

TEST(RemoteObject, bringsArgumentsThereAndAnswersBack) {
    FakeHelper helper([](Channel& channel) {
        for (std::uint32_t number = 1; number <= 3; ++number) {
            ReceivedCall call = receiveCall(channel);
            EXPECT_EQ(call.number, number);
            EXPECT_EQ(call.operation, static_cast<int>(number) - 1);
            MessageWriter answer = answerTo(call.number, Answer::success);
            answer.put(2 * call.arguments.get<int>());
            EXPECT_NO_THROW(call.arguments.expectEnd());
            send(channel, answer);
        }
    });
    RemoteObject object(helper.takeSocket());
    int argument = 10;
    for (const Operation operation : {Operation::first, Operation::second, Operation::third}) {
        MessageWriter arguments;
        arguments.put(++argument);
        MessageReader answer = object.call(operation, std::move(arguments), {});
        EXPECT_EQ(answer.get<int>(), 2 * argument);
        EXPECT_NO_THROW(answer.expectEnd());
    }
}

TEST(RemoteObject, throwsWhatTheOperationThrew) {
    RandomValues values(1);
    std::vector<Failure> failures;
    for (int kind = 0; kind < static_cast<int>(ErrorKind::count); ++kind) {
        failures.push_back(randomFailure(values, 2));
        failures.back().kind = static_cast<ErrorKind>(kind);
    }
    FakeHelper helper([&failures](Channel& channel) {
        for (const Failure& failure : failures) {
            MessageWriter answer = answerTo(receiveCall(channel).number, Answer::failure);
            put(answer, failure);
            send(channel, answer);
        }
        send(channel, answerTo(receiveCall(channel).number, Answer::cancelled));
        send(channel, answerTo(receiveCall(channel).number, Answer::outOfMemory));
        send(channel, answerTo(receiveCall(channel).number, Answer::success));
    });
    RemoteObject object(helper.takeSocket());
    const auto call = [&object] { static_cast<void>(object.call(Operation::first, {}, {})); };
    for (const Failure& failure : failures) {
        try {
            call();
            ADD_FAILURE() << "Nothing was thrown.";
        } catch (const Error& error) {
            EXPECT_TRUE(isSame(error.failure(), failure));
        }
    }
    EXPECT_THROW(call(), Cancelled);
    EXPECT_THROW(call(), std::bad_alloc);
    EXPECT_NO_THROW(call());
}

TEST(RemoteObject, readsWhatEachAnswerBeginsWith) {
    FakeHelper helper([](Channel& channel) {
        int preamble = 0;
        for (const Answer kind :
             {Answer::success, Answer::failure, Answer::cancelled, Answer::outOfMemory}) {
            MessageWriter answer = answerTo(receiveCall(channel).number, kind);
            if (kind == Answer::failure)
                put(answer, Failure{ErrorKind::fileEmpty});
            answer.put(++preamble);
            send(channel, answer);
        }
    });
    std::vector<int> preambles;
    RemoteObject object(helper.takeSocket(), [&preambles](MessageReader& reader) {
        preambles.push_back(reader.get<int>());
    });
    const auto call = [&object] { object.call(Operation::first, {}, {}).expectEnd(); };
    EXPECT_NO_THROW(call());
    EXPECT_THROW(call(), Error);
    EXPECT_THROW(call(), Cancelled);
    EXPECT_THROW(call(), std::bad_alloc);
    EXPECT_EQ(preambles, (std::vector{1, 2, 3, 4}));
}

TEST(RemoteObject, passesProgressOnUntilTheAnswer) {
    FakeHelper helper([](Channel& channel) {
        for (int call = 0; call < 2; ++call) {
            const std::uint32_t number = receiveCall(channel).number;
            for (int step = 1; step <= 20; ++step) {
                MessageWriter progress = answerTo(number, Answer::progress);
                progress.put(step);
                send(channel, progress);
            }
            send(channel, answerTo(number, Answer::success));
        }
    });
    // Progress has no preamble.
    int preambles = 0;
    RemoteObject object(helper.takeSocket(), [&preambles](MessageReader&) { ++preambles; });
    std::vector<int> steps;
    static_cast<void>(object.call(Operation::first, {}, {}, [&steps](MessageReader& reader) {
        steps.push_back(reader.get<int>());
        reader.expectEnd();
    }));
    ASSERT_EQ(steps.size(), 20U);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(steps[static_cast<std::size_t>(i)], i + 1);
    EXPECT_NO_THROW(static_cast<void>(object.call(Operation::first, {}, {})))
        << "nobody has to listen";
    EXPECT_EQ(preambles, 2);
}

TEST(RemoteObject, takesProgressThatItCannotReadForTheEnd) {
    FakeHelper helper([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::progress));
    });
    RemoteObject object(helper.takeSocket());
    EXPECT_EQ(errorKindOf([&object] {
                  static_cast<void>(
                      object.call(Operation::first, {}, {}, [](MessageReader& reader) {
                          static_cast<void>(reader.get<double>());
                      }));
              }),
              ErrorKind::decoderStopped);
}

TEST(RemoteObject, takesNoAnswerToAnotherCall) {
    for (const std::uint32_t number :
         {0U, 2U, 3U, 0x8000'0000U, std::numeric_limits<std::uint32_t>::max()}) {
        for (const Answer answer : {Answer::success, Answer::progress, Answer::cancelled})
            EXPECT_EQ(errorOfCall(answerTo(number, answer).message()), ErrorKind::decoderStopped)
                << number;
    }
}

TEST(RemoteObject, takesNoSecondAnswerToOneCall) {
    FakeHelper helper([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::success));
        send(channel, answerTo(1, Answer::success));
        static_cast<void>(receiveCall(channel));
    });
    RemoteObject object(helper.takeSocket());
    const auto call = [&object] { static_cast<void>(object.call(Operation::first, {}, {})); };
    EXPECT_NO_THROW(call());
    EXPECT_EQ(errorKindOf(call), ErrorKind::decoderStopped);
}

TEST(RemoteObject, takesNoAnswerThatIsNone) {
    for (const int answer : {-1, static_cast<int>(Answer::count), 77,
                             std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(errorOfCall(answerTo(1, static_cast<Answer>(answer)).message()),
                  ErrorKind::decoderStopped)
            << answer;
}

TEST(RemoteObject, takesNoHalfAnswer) {
    MessageWriter failed = answerTo(1, Answer::failure);
    put(failed, becauseOf(ErrorKind::unreadableFile, Failure{ErrorKind::otherReason, {"why"}}));
    failed.put(7);
    const Message whole = copyOf(failed.message());
    const auto readNumber = [](MessageReader& reader) { static_cast<void>(reader.get<int>()); };
    EXPECT_EQ(errorOfCall(whole, readNumber), ErrorKind::unreadableFile);
    // No message is empty.
    for (std::size_t size = 1; size < whole.bytes.size(); ++size)
        EXPECT_EQ(errorOfCall(cutShort(whole, size), readNumber), ErrorKind::decoderStopped)
            << size;
}

TEST(RemoteObject, takesNoGarbage) {
    RandomValues values(9);
    for (int i = 0; i < 300; ++i) {
        // Its number is another call’s.
        MessageWriter garbage;
        garbage.put(values.number<std::uint32_t>(2));
        garbage.put(std::string_view(values.text()));
        EXPECT_EQ(errorOfCall(garbage.message()), ErrorKind::decoderStopped);
    }
}

TEST(RemoteObject, saysThatTheHelperIsGone) {
    const auto callOf = [](RemoteObject& object) {
        return [&object] { static_cast<void>(object.call(Operation::first, {}, {})); };
    };
    FakeHelper before([](Channel&) {});
    before.join();
    RemoteObject objectBefore(before.takeSocket());
    EXPECT_EQ(errorKindOf(callOf(objectBefore)), ErrorKind::decoderStopped);

    FakeHelper meanwhile([](Channel& channel) { static_cast<void>(receiveCall(channel)); });
    RemoteObject objectMeanwhile(meanwhile.takeSocket());
    EXPECT_EQ(errorKindOf(callOf(objectMeanwhile)), ErrorKind::decoderStopped);

    FakeHelper inProgress([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::progress));
    });
    RemoteObject objectInProgress(inProgress.takeSocket());
    EXPECT_EQ(errorKindOf(callOf(objectInProgress)), ErrorKind::decoderStopped);

    FakeHelper after([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::success));
    });
    RemoteObject objectAfter(after.takeSocket());
    EXPECT_EQ(errorKindOf(callOf(objectAfter)), std::nullopt);
    after.join();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(errorKindOf(callOf(objectAfter)), ErrorKind::decoderStopped);
}

TEST(RemoteObject, goesOnAfterArgumentsThatWereTooLong) {
    FakeHelper helper([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::success));
    });
    RemoteObject object(helper.takeSocket());
    MessageWriter arguments;
    arguments.put(std::string_view(std::string(Channel::kMostBytes, 'x')));
    EXPECT_EQ(errorKindOf([&] {
                  static_cast<void>(object.call(Operation::first, std::move(arguments), {}));
              }),
              ErrorKind::decoderStopped);
    EXPECT_NO_THROW(static_cast<void>(object.call(Operation::first, {}, {})));
}

TEST(RemoteObject, tellsTheHelperWhichCallIsToStop) {
    std::stop_source stop;
    FakeHelper helper([&stop](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::success));
        const std::uint32_t number = receiveCall(channel).number;
        stop.request_stop();
        const ReceivedCall request = receiveCall(channel);
        EXPECT_EQ(request.number, number);
        EXPECT_EQ(request.number, 2U);
        EXPECT_EQ(request.operation, kStopOperation);
        EXPECT_NO_THROW(request.arguments.expectEnd());
        send(channel, answerTo(number, Answer::cancelled));
    });
    RemoteObject object(helper.takeSocket());
    EXPECT_NO_THROW(static_cast<void>(object.call(Operation::first, {}, stop.get_token())));
    EXPECT_THROW(static_cast<void>(object.call(Operation::first, {}, stop.get_token())), Cancelled);
}

TEST(RemoteObject, tellsTheHelperToStopWhatIsNoMoreWantedFromTheBeginning) {
    FakeHelper helper([](Channel& channel) {
        const std::uint32_t number = receiveCall(channel).number;
        const ReceivedCall request = receiveCall(channel);
        EXPECT_EQ(request.number, number);
        EXPECT_EQ(request.operation, kStopOperation);
        send(channel, answerTo(number, Answer::success));
    });
    RemoteObject object(helper.takeSocket());
    std::stop_source stop;
    stop.request_stop();
    EXPECT_NO_THROW(static_cast<void>(object.call(Operation::first, {}, stop.get_token())))
        << "it was done before it was stopped";
}

TEST(RemoteObject, stopsNoCallThatIsOver) {
    std::stop_source stop;
    FakeHelper helper([](Channel& channel) {
        send(channel, answerTo(receiveCall(channel).number, Answer::success));
        const ReceivedCall call = receiveCall(channel);
        EXPECT_EQ(call.operation, static_cast<int>(Operation::second));
        send(channel, answerTo(call.number, Answer::success));
    });
    RemoteObject object(helper.takeSocket());
    static_cast<void>(object.call(Operation::first, {}, stop.get_token()));
    stop.request_stop();
    EXPECT_NO_THROW(static_cast<void>(object.call(Operation::second, {}, {})));
}

TEST(RemoteObject, mayBeToldToStopWhenTheHelperIsGone) {
    std::stop_source stop;
    FakeHelper helper([&stop](Channel& channel) {
        static_cast<void>(receiveCall(channel));
        channel.takeSocket().close();
        stop.request_stop();
    });
    RemoteObject object(helper.takeSocket());
    EXPECT_EQ(errorKindOf(
                  [&] { static_cast<void>(object.call(Operation::first, {}, stop.get_token())); }),
              ErrorKind::decoderStopped);
}

} // namespace
} // namespace media::process
