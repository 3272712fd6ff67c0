#pragma once

#include "Media/FFmpeg/Descriptor.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace media::process {

/// A message that is not what its receiver expects: the sender is damaged, or hostile.
class BadMessage final : public std::runtime_error {
public:
    BadMessage() : std::runtime_error("A message from another process is not understood.") {}
};

/// What goes over a channel at a time.
struct Message {
    std::string bytes;
    std::vector<Descriptor> descriptors;
};

template<typename T>
concept PlainNumber = std::integral<T> || std::floating_point<T>;

/// Writes a message. Both ends are built together and run on one machine, so numbers are written as
/// they lie in memory.
class MessageWriter {
public:
    template<PlainNumber T>
    void put(T value) {
        m_message.bytes.append(static_cast<const char*>(static_cast<const void*>(&value)),
                               sizeof value);
    }

    template<typename E>
    requires std::is_enum_v<E>

    void put(E value) { put(static_cast<std::int32_t>(value)); }

    void put(std::string_view text);
    /// Its copy goes with the message.
    void put(Descriptor descriptor);

    /// Adds what another has written.
    void append(MessageWriter other);

    [[nodiscard]] const Message& message() const { return m_message; }

private:
    Message m_message;
};

/// Reads a message in the order in which it was written. Every function throws BadMessage if
/// that is not there: what it says need not be true, since a damaged helper may have written it.
class MessageReader {
public:
    explicit MessageReader(Message message) : m_message(std::move(message)) {}

    template<PlainNumber T>

    requires(!std::same_as<T, bool>) [[nodiscard]] T get() {
        T value{};
        std::memcpy(&value, take(sizeof value), sizeof value);
        return value;
    }

    [[nodiscard]] bool getBool();

    /// A value below `count`.
    template<typename E>
    requires std::is_enum_v<E>

    [[nodiscard]] E getEnum(E count) {
        return static_cast<E>(getWithin<std::int32_t>(0, static_cast<std::int32_t>(count) - 1));
    }

    /// A number from `least` to `most`; never NaN.
    template<PlainNumber T>
    [[nodiscard]] T getWithin(T least, T most) {
        const T value = get<T>();
        if (!(value >= least && value <= most))
            throw BadMessage();
        return value;
    }

    [[nodiscard]] std::string getText();
    /// The next descriptor that came with the message.
    [[nodiscard]] Descriptor getDescriptor();
    /// Throws if something is left.
    void expectEnd() const;

private:
    const char* take(std::size_t count);

    Message m_message;
    std::size_t m_position = 0;
    std::size_t m_descriptor = 0;
};

} // namespace media::process
