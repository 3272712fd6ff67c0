#include "Media/Process/Wire/SharedArea.h"

#include "Media/Faults.h"
#include "Media/Process/Wire/Message.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <functional>
#include <limits>
#include <new>
#include <ostream>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace media::process {
namespace {

constexpr std::size_t kKilobyte = 1024;

Descriptor memoryWith(int seals, off_t size = 4096) {
    Descriptor memory(::memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    EXPECT_EQ(::ftruncate(memory.number(), size), 0);
    EXPECT_EQ(::fcntl(memory.number(), F_ADD_SEALS, seals), 0);
    return memory;
}

Descriptor endOfPipe() {
    std::array ends{-1, -1};
    EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    ::close(ends[1]);
    return Descriptor(ends[0]);
}

TEST(SharedArea, isReadAsItWasWritten) {
    SharedArea writer;
    SharedArea reader;
    for (const std::size_t count :
         {1U, 2U, 300U * 1024U, 200U * 1024U, 5U * 1024U * 1024U, 17U, 4096U, 0U}) {
        const std::span<std::uint8_t> room = writer.ensure(count);
        ASSERT_EQ(room.size(), count);
        std::ranges::fill(room, static_cast<std::uint8_t>(count % 251));
        if (auto memory = writer.takeNew())
            reader = SharedArea(std::move(*memory));
        const std::span<const std::uint8_t> bytes = reader.read(count);
        EXPECT_TRUE(std::ranges::equal(bytes, room)) << count;
    }
}

TEST(SharedArea, holdsNothingFromTheBeginning) {
    SharedArea writer;
    EXPECT_TRUE(writer.ensure(0).empty());
    EXPECT_TRUE(SharedArea().read(0).empty());
}

TEST(SharedArea, isNotMadeAnewForEachPicture) {
    SharedArea writer;
    for (const std::size_t kilobytes : {1000U, 1000U, 999U, 500U, 1000U})
        static_cast<void>(writer.ensure(kilobytes * kKilobyte));
    EXPECT_TRUE(writer.takeNew());
    for (const std::size_t kilobytes : {1000U, 700U, 999U, 300U, 0U, 1000U})
        static_cast<void>(writer.ensure(kilobytes * kKilobyte));
    EXPECT_FALSE(writer.takeNew());
}

TEST(SharedArea, doesNotStayFarTooLarge) {
    SharedArea writer;
    static_cast<void>(writer.ensure(10'000 * kKilobyte));
    static_cast<void>(writer.takeNew());
    static_cast<void>(writer.ensure(1000 * kKilobyte));
    const auto memory = writer.takeNew();
    ASSERT_TRUE(memory);
    EXPECT_LT(::lseek(memory->number(), 0, SEEK_END), off_t{2000 * kKilobyte});
}

TEST(SharedArea, isReadOnlyAsFarAsItGoes) {
    SharedArea reader(memoryWith(F_SEAL_SHRINK, 4096));
    EXPECT_EQ(reader.read(4096).size(), 4096U);
    for (const std::size_t count : {std::size_t{4097}, std::numeric_limits<std::size_t>::max()})
        EXPECT_THROW(static_cast<void>(reader.read(count)), BadMessage) << count;
    EXPECT_THROW(static_cast<void>(SharedArea().read(1)), BadMessage);
}

TEST(SharedArea, keepsTheSizeThatItHadWhenItCame) {
    Descriptor memory = memoryWith(F_SEAL_SHRINK, 4096);
    const Descriptor other(::dup(memory.number()));
    const SharedArea reader(std::move(memory));
    ASSERT_EQ(::ftruncate(other.number(), 8192), 0);
    EXPECT_THROW(static_cast<void>(reader.read(8192)), BadMessage);
    EXPECT_NE(::ftruncate(other.number(), 100), 0) << "it cannot be taken away";
}

TEST(SharedArea, cannotBeTakenAwayByWhoeverHasIt) {
    SharedArea writer;
    static_cast<void>(writer.ensure(1));
    const auto memory = writer.takeNew();
    ASSERT_TRUE(memory);
    EXPECT_NE(::ftruncate(memory->number(), 0), 0);
    EXPECT_NE(::ftruncate(memory->number(), off_t{1} << 30), 0);
}

TEST(SharedArea, beyondAllAddressesIsRefused) {
    EXPECT_THROW(SharedArea(memoryWith(F_SEAL_SHRINK, std::numeric_limits<off_t>::max() - 4095)),
                 std::bad_alloc);
    SharedArea writer;
    EXPECT_THROW(static_cast<void>(writer.ensure(std::size_t{1} << 62)), std::bad_alloc);
    EXPECT_EQ(writer.ensure(3).size(), 3U) << "and goes on";
}

struct Impostor {
    const char* name;
    std::function<Descriptor()> make;
};

void PrintTo(const Impostor& impostor, std::ostream* out) {
    *out << impostor.name;
}

std::string nameOf(const testing::TestParamInfo<Impostor>& info) {
    return info.param.name;
}

class SharedAreaImpostor : public testing::TestWithParam<Impostor> {};

TEST_P(SharedAreaImpostor, isRefusedAndLeavesNothing) {
    const Leftovers before;
    EXPECT_THROW(SharedArea(GetParam().make()), BadMessage);
    EXPECT_EQ(before.complaint(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Descriptors, SharedAreaImpostor,
    testing::Values(
        Impostor{"memoryWithoutSeals",
                 [] {
                     Descriptor memory(::memfd_create("test", MFD_CLOEXEC));
                     EXPECT_EQ(::ftruncate(memory.number(), 4096), 0);
                     return memory;
                 }},
        Impostor{"memoryThatCanShrink", [] { return memoryWith(F_SEAL_GROW); }},
        Impostor{"emptyMemory", [] { return memoryWith(F_SEAL_SHRINK, 0); }},
        Impostor{"aPipe", &endOfPipe},
        Impostor{"aFolder", [] { return Descriptor(::open("/", O_RDONLY | O_DIRECTORY)); }},
        Impostor{"aPlaceInAFolder", [] { return Descriptor(::open("/", O_PATH)); }},
        Impostor{"aFile", [] { return Descriptor(::open("/proc/self/exe", O_RDONLY)); }},
        Impostor{"aDevice", [] { return Descriptor(::open("/dev/zero", O_RDWR)); }},
        Impostor{"nothing", [] { return Descriptor(); }}),
    nameOf);

} // namespace
} // namespace media::process
