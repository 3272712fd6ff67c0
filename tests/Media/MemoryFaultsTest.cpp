#include "Media/ChildProcess.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

/// Each single allocation is refused once.
namespace media {
namespace {

using testsupport::Allocations;
using testsupport::inChildProcess;
using testsupport::TemporaryFolder;

class RefusedMemory : public testing::TestWithParam<Allocations> {
protected:
    void SetUp() override {
        if (!testsupport::canRefuseAllocations())
            GTEST_SKIP() << "the sanitizers have allocations of their own";
    }

    /// What an export gets from its caller.
    struct Order {
        Composition composition = compositionOf(Asset::open(source()));
        std::filesystem::path output;
        EncoderSettings settings;
    };

    static void carryOut(Order order) {
        ExportSession::make(std::move(order.composition), std::move(order.output), FileType::mpeg4,
                            std::move(order.settings))
            ->run();
    }

    /// How many allocations an export makes.
    [[nodiscard]] static long count() {
        const TemporaryFolder folder;
        return std::stol(inChildProcess([&] {
            Order order{.output = folder / "out.mp4"};
            testsupport::refuseAllocation(GetParam(), -1);
            carryOut(std::move(order));
            return std::to_string(testsupport::allocationsSoFar());
        }));
    }

    /// What is wrong after the allocation with that number has been refused to an export; empty if
    /// nothing is. In a process of its own, which a fault may end.
    [[nodiscard]] static std::string complaintAt(long number) {
        const TemporaryFolder folder;
        writeFile(folder / "out.mp4", "old");
        std::string complaint = inChildProcess([&]() -> std::string {
            const Order order{.output = folder / "out.mp4"};
            Order first = order;
            const Leftovers leftovers;
            testsupport::tellCrashesInLibav();
            testsupport::refuseAllocation(GetParam(), number);
            const std::string error = failureOf([&] { carryOut(std::move(first)); });
            testsupport::refuseAllocation(Allocations::none, -1);
            std::string result = leftovers.complaint();
            if (!error.empty())
                result += complaintAbout(error);
            if (error.empty() == (contentsOf(order.output) == "old"))
                result += "“" + error + "”, and the older file is not what it should be; ";
            carryOut(order);
            return result;
        });
        // libav itself ends the program where an encoder’s default options get no memory
        // (avcodec_alloc_context3), and crashes at some places that don't look whether they got
        // theirs. Then nothing is lost either.
        const std::string crash = "status " + std::to_string(testsupport::kCrashInLibav);
        const bool isLibavsEnd =
            GetParam() == Allocations::libavs && (complaint == "signal 6" || complaint == crash);
        if (isLibavsEnd)
            complaint = contentsOf(folder / "out.mp4") == "old" ? "" : "the older file is lost; ";
        if (namesIn(folder.path()) != std::vector<std::string>{"out.mp4"})
            complaint += "something stays";
        return complaint;
    }

    static std::filesystem::path source() {
        return testsupport::makeFixture({.duration = 0.5, .width = 160, .height = 120}).path;
    }
};

/// A few of them: at the beginning, in the middle, at the end.
TEST_P(RefusedMemory, endsAnExportWithASentence) {
    const long allocations = count();
    ASSERT_GT(allocations, 100);
    for (const long number :
         {0L, 1L, 10L, 100L, allocations / 4, allocations / 2, allocations * 9 / 10})
        EXPECT_EQ(complaintAt(number), "") << "allocation " << number << " of " << allocations;
}

/// Each of the first 2,000.
class ExhaustiveRefusedMemory : public RefusedMemory {};

TEST_P(ExhaustiveRefusedMemory, endsAnExportWithASentence) {
    const long allocations = std::min(count(), 2000L);
    RecordProperty("points", static_cast<int>(allocations));
    for (long number = 0; number < allocations; ++number)
        EXPECT_EQ(complaintAt(number), "") << "allocation " << number;
}

std::string nameOf(const testing::TestParamInfo<Allocations>& info) {
    return info.param == Allocations::ours ? "ours" : "libavs";
}

constexpr auto kKinds = {Allocations::ours, Allocations::libavs};
INSTANTIATE_TEST_SUITE_P(, RefusedMemory, testing::ValuesIn(kKinds), nameOf);
INSTANTIATE_TEST_SUITE_P(, ExhaustiveRefusedMemory, testing::ValuesIn(kKinds), nameOf);

} // namespace
} // namespace media
