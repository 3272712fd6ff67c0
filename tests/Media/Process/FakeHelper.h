#pragma once

#include "Media/Error.h"
#include "Media/Process/Wire/Channel.h"
#include "Media/Process/Wire/Protocol.h"

#include <cstdint>
#include <functional>
#include <thread>

namespace media::process {

/// What a program asks of a helper.
struct ReceivedCall {
    std::uint32_t number = 0;
    std::int32_t operation = 0;
    MessageReader arguments;
};

/// The other end of an object that a program calls, on a thread of its own; what it says is the
/// test’s choice. The channel ends with the work.
class FakeHelper {
public:
    explicit FakeHelper(std::function<void(Channel&)> work);

    /// The program’s end; once.
    [[nodiscard]] Descriptor takeSocket() { return m_ours.takeSocket(); }

    /// Waits for the end of the work.
    void join() { m_thread.join(); }

private:
    FakeHelper(Channel::Pair pair, std::function<void(Channel&)> work);

    Channel m_ours;
    std::jthread m_thread;
};

/// Waits for the next call. Fails the test if there is none.
ReceivedCall receiveCall(Channel& channel);

/// What an answer begins with.
MessageWriter answerTo(std::uint32_t number, Answer answer);

/// Fails the test if nothing receives it.
void send(Channel& channel, const MessageWriter& writer);

} // namespace media::process
