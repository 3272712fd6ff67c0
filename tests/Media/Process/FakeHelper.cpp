#include "Media/Process/FakeHelper.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace media::process {

FakeHelper::FakeHelper(std::function<void(Channel&)> work)
    : FakeHelper(Channel::makePair(), std::move(work)) {}

FakeHelper::FakeHelper(Channel::Pair pair, std::function<void(Channel&)> work)
    : m_ours(std::move(pair.ours)),
      m_thread([channel = Channel(std::move(pair.theirs)), work = std::move(work)]() mutable {
          work(channel);
      }) {}

ReceivedCall receiveCall(Channel& channel) {
    std::optional<Message> message = channel.receive();
    if (!message) {
        ADD_FAILURE() << "There is no call.";
        message.emplace();
        message->bytes.resize(sizeof(std::uint32_t) + sizeof(std::int32_t));
    }
    MessageReader reader(std::move(*message));
    const auto number = reader.get<std::uint32_t>();
    const auto operation = reader.get<std::int32_t>();
    return {number, operation, std::move(reader)};
}

MessageWriter answerTo(std::uint32_t number, Answer answer) {
    MessageWriter writer;
    writer.put(number);
    writer.put(answer);
    return writer;
}

void send(Channel& channel, const MessageWriter& writer) {
    EXPECT_TRUE(channel.send(writer.message()));
}

} // namespace media::process
