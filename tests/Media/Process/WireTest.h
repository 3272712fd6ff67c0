#pragma once

#include "Media/Process/MessageCopies.h"
#include "Media/Process/RandomValues.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace media::process {

/// What holds for each kind of value that goes in messages. A type Wired describes one kind, with
/// an object for each end of a connection:
///
///   Value                                  the values
///   static Value random(RandomValues&)     one that the receiver takes
///   void write(MessageWriter&, const Value&)
///   Value read(MessageReader&)
///   static bool isSame(const Value&, const Value&)
///   static void expectBounds(const Value&)
///       Uses a value as its receiver does, and expects what that relies on.
template<typename Wired>
class WireTest : public testing::Test {
protected:
    /// Writes a value as the first one of a connection.
    static Message messageOf(const typename Wired::Value& value) {
        Wired sender;
        MessageWriter writer;
        sender.write(writer, value);
        return copyOf(writer.message());
    }

    /// Reads what may be anything.
    static void readHostile(Message message) {
        Wired receiver;
        MessageReader reader(std::move(message));
        try {
            Wired::expectBounds(receiver.read(reader));
        } catch (const BadMessage&) {
            // As it should be.
        }
    }
};

TYPED_TEST_SUITE_P(WireTest);

TYPED_TEST_P(WireTest, bringsEachValueAsItWasSent) {
    RandomValues values(1);
    TypeParam sender;
    TypeParam receiver;
    for (int i = 0; i < 300; ++i) {
        const auto value = TypeParam::random(values);
        MessageWriter writer;
        sender.write(writer, value);
        MessageReader reader(copyOf(writer.message()));
        const auto received = receiver.read(reader);
        EXPECT_TRUE(TypeParam::isSame(value, received)) << "value " << i;
        EXPECT_NO_THROW(reader.expectEnd());
        TypeParam::expectBounds(received);
    }
}

TYPED_TEST_P(WireTest, refusesAMessageThatEndsTooEarly) {
    RandomValues values(2);
    for (int i = 0; i < 20; ++i) {
        const Message message = this->messageOf(TypeParam::random(values));
        for (std::size_t size = 0; size < message.bytes.size(); ++size) {
            TypeParam receiver;
            MessageReader reader(cutShort(message, size));
            EXPECT_THROW(static_cast<void>(receiver.read(reader)), BadMessage)
                << size << " of " << message.bytes.size();
        }
    }
}

TYPED_TEST_P(WireTest, refusesChangedBytesOrReadsWhatIsWithinItsBounds) {
    RandomValues values(3);
    for (int i = 0; i < 3; ++i) {
        const Message message = this->messageOf(TypeParam::random(values));
        for (std::size_t at = 0; at < message.bytes.size(); ++at) {
            for (int change = 1; change < 256; ++change) {
                Message changed = copyOf(message);
                changed.bytes[at] = static_cast<char>(changed.bytes[at] ^ change);
                this->readHostile(std::move(changed));
                if (testing::Test::HasFailure())
                    FAIL() << "byte " << at << " changed by " << change;
            }
        }
    }
}

TYPED_TEST_P(WireTest, refusesGarbageOrReadsWhatIsWithinItsBounds) {
    RandomValues values(4);
    for (int i = 0; i < 3000; ++i) {
        Message message = this->messageOf(TypeParam::random(values));
        for (std::size_t count = 1 + values.below(8); count > 0; --count)
            message.bytes[values.below(message.bytes.size())] =
                static_cast<char>(values.number<std::int16_t>(-128, 127));
        message.bytes += values.text();
        this->readHostile(std::move(message));
    }
}

REGISTER_TYPED_TEST_SUITE_P(WireTest, bringsEachValueAsItWasSent, refusesAMessageThatEndsTooEarly,
                            refusesChangedBytesOrReadsWhatIsWithinItsBounds,
                            refusesGarbageOrReadsWhatIsWithinItsBounds);

/// The names of kinds of values in the names of tests.
struct WiredName {
    template<typename Wired>
    static std::string GetName(int /*index*/) {
        return Wired::kName;
    }
};

} // namespace media::process
