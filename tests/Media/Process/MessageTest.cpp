#include "Media/Process/Wire/Message.h"

#include "Media/Process/MessageCopies.h"
#include "Media/Process/RandomValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <utility>

namespace media::process {
namespace {

enum class Season { spring, summer, autumn, winter, count };

Descriptor openFolder(const char* path) {
    return Descriptor(::open(path, O_PATH | O_CLOEXEC));
}

std::pair<dev_t, ino_t> fileOf(const Descriptor& descriptor) {
    struct stat status = {};
    EXPECT_EQ(::fstat(descriptor.number(), &status), 0);
    return {status.st_dev, status.st_ino};
}

template<typename T>
class PlainNumberTest : public testing::Test {};

using Numbers = testing::Types<std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t,
                               std::uint32_t, std::int64_t, std::uint64_t, float, double>;
TYPED_TEST_SUITE(PlainNumberTest, Numbers);

template<typename T>
T random(RandomValues& values) {
    if constexpr (sizeof(T) == 1)
        return static_cast<T>(values.number<std::int16_t>());
    else
        return values.number<T>();
}

TYPED_TEST(PlainNumberTest, comesAsItWasSent) {
    RandomValues values(1);
    for (int i = 0; i < 200; ++i) {
        const auto number = random<TypeParam>(values);
        MessageWriter writer;
        writer.put(number);
        MessageReader reader(copyOf(writer.message()));
        EXPECT_EQ(reader.get<TypeParam>(), number);
        EXPECT_NO_THROW(reader.expectEnd());
    }
}

TYPED_TEST(PlainNumberTest, isNotReadFromFewerBytes) {
    MessageWriter writer;
    writer.put(TypeParam{1});
    for (std::size_t size = 0; size < sizeof(TypeParam); ++size) {
        MessageReader reader(cutShort(writer.message(), size));
        EXPECT_THROW(static_cast<void>(reader.get<TypeParam>()), BadMessage) << size;
    }
}

TYPED_TEST(PlainNumberTest, isRefusedBeyondItsBounds) {
    constexpr TypeParam kLeast = 10;
    constexpr TypeParam kMost = 20;
    for (const int number : {0, 9, 10, 15, 20, 21, 127}) {
        MessageWriter writer;
        writer.put(static_cast<TypeParam>(number));
        MessageReader reader(copyOf(writer.message()));
        if (number >= 10 && number <= 20)
            EXPECT_EQ(reader.getWithin(kLeast, kMost), static_cast<TypeParam>(number));
        else
            EXPECT_THROW(static_cast<void>(reader.getWithin(kLeast, kMost)), BadMessage) << number;
    }
}

TEST(Message, hasNoBoundsThatLetNanThrough) {
    constexpr double kMost = std::numeric_limits<double>::max();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double number : {std::nan(""), -std::nan(""), kInfinity, -kInfinity}) {
        MessageWriter writer;
        writer.put(number);
        MessageReader reader(copyOf(writer.message()));
        EXPECT_THROW(static_cast<void>(reader.getWithin(-kMost, kMost)), BadMessage) << number;
    }
}

TEST(Message, takesOnlyTwoBytesForTruthValues) {
    for (int byte = 0; byte < 256; ++byte) {
        MessageWriter writer;
        writer.put(static_cast<std::uint8_t>(byte));
        MessageReader reader(copyOf(writer.message()));
        if (byte < 2)
            EXPECT_EQ(reader.getBool(), byte == 1);
        else
            EXPECT_THROW(static_cast<void>(reader.getBool()), BadMessage) << byte;
    }
}

TEST(Message, takesOnlyNamedValuesOfAnEnumeration) {
    for (const int value :
         {-1, 0, 1, 2, 3, 4, 5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        MessageWriter writer;
        writer.put(std::int32_t{value});
        MessageReader reader(copyOf(writer.message()));
        if (value >= 0 && value < 4)
            EXPECT_EQ(reader.getEnum(Season::count), static_cast<Season>(value));
        else
            EXPECT_THROW(static_cast<void>(reader.getEnum(Season::count)), BadMessage) << value;
    }
}

TEST(Message, bringsTextOfAnyBytes) {
    RandomValues values(2);
    for (int i = 0; i < 200; ++i) {
        const std::string text = values.text();
        MessageWriter writer;
        writer.put(std::string_view(text));
        MessageReader reader(copyOf(writer.message()));
        EXPECT_EQ(reader.getText(), text);
        EXPECT_NO_THROW(reader.expectEnd());
    }
}

TEST(Message, hasNoTextThatIsLongerThanTheMessage) {
    for (const std::uint32_t size : {4U, 5U, 0x7fff'ffffU, 0x8000'0000U, 0xffff'ffffU}) {
        MessageWriter writer;
        writer.put(size);
        writer.put(std::uint16_t{0});
        writer.put(std::uint8_t{0});
        MessageReader reader(copyOf(writer.message()));
        EXPECT_THROW(static_cast<void>(reader.getText()), BadMessage) << size;
    }
}

TEST(Message, bringsDescriptorsInTheirOrder) {
    MessageWriter writer;
    writer.put(openFolder("/"));
    MessageWriter second;
    second.put(std::uint8_t{7});
    second.put(openFolder("/tmp"));
    writer.append(std::move(second));
    MessageReader reader(copyOf(writer.message()));
    EXPECT_EQ(fileOf(reader.getDescriptor()), fileOf(openFolder("/")));
    EXPECT_THROW(reader.expectEnd(), BadMessage);
    EXPECT_EQ(fileOf(reader.getDescriptor()), fileOf(openFolder("/tmp")));
    EXPECT_THROW(static_cast<void>(reader.getDescriptor()), BadMessage);
    EXPECT_THROW(reader.expectEnd(), BadMessage);
    EXPECT_EQ(reader.get<std::uint8_t>(), 7);
    EXPECT_NO_THROW(reader.expectEnd());
}

} // namespace
} // namespace media::process
