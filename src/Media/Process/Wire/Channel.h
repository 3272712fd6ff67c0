#pragma once

#include "Media/Process/Wire/Message.h"

#include <chrono>
#include <cstddef>
#include <optional>

namespace media::process {

/// One end of a connection between two processes that keeps the bounds of messages and carries
/// descriptors. Any thread may send while another receives.
class Channel {
public:
    /// The longest message, in bytes: much less than a socket’s buffer holds by default.
    static constexpr std::size_t kMostBytes = std::size_t{64} * 1024;
    /// The most descriptors with one message.
    static constexpr std::size_t kMostDescriptors = 4;

    struct Pair;
    /// Both ends of a new one. Throws Error if there are too many descriptors.
    static Pair makePair();

    explicit Channel(Descriptor socket) : m_socket(std::move(socket)) {}

    /// Never waits: false if the other end is gone or has left unread what fills the connection.
    /// Throws BadMessage if the message is too long.
    [[nodiscard]] bool send(const Message& message);
    /// The same, but waits while the connection is full: false only if the other end is gone.
    [[nodiscard]] bool sendWaiting(const Message& message);
    /// Waits for the next message; none once the other end is gone, or has sent something else than
    /// a message. Throws std::bad_alloc.
    [[nodiscard]] std::optional<Message> receive();

    /// Waits until receive() would not, or as long as that; false if there is nothing by then.
    [[nodiscard]] bool waitFor(std::chrono::milliseconds time) const;

    [[nodiscard]] int number() const { return m_socket.number(); }

    [[nodiscard]] Descriptor takeSocket() { return std::move(m_socket); }

private:
    bool sendWith(const Message& message, int flags);

    Descriptor m_socket;
};

struct Channel::Pair {
    Channel ours;
    Descriptor theirs;
};

} // namespace media::process
