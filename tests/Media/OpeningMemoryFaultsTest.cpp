#include "Media/ChildProcess.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "Media/ImageGenerator.h"
#include "Media/Playback/PlayerStage.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <tuple>

/// Each single allocation is refused once while a video is opened, while its stills are made, and
/// while a player begins with it. What had no memory fails with a sentence; the next time all is
/// well.
namespace media {
namespace {

using testsupport::Allocations;
using testsupport::inChildProcess;

/// While it lives, allocations are counted and one of them is refused.
class Refusal {
public:
    Refusal(Allocations which, long number) { testsupport::refuseAllocation(which, number); }

    Refusal(const Refusal&) = delete;
    Refusal& operator=(const Refusal&) = delete;

    ~Refusal() {
        s_count = testsupport::allocationsSoFar();
        testsupport::refuseAllocation(Allocations::none, -1);
    }

    /// Of the last one.
    static long count() { return s_count; }

private:
    static inline long s_count = 0;
};

testsupport::Fixture video() {
    return testsupport::makeFixture({.duration = 0.5, .width = 160, .height = 120});
}

constexpr Time kLater{1, 3};

/// Does something under a refusal; what is wrong afterwards, empty if nothing is.
using Operation = std::string (*)(Allocations which, long number);

std::string open(Allocations which, long number) {
    const auto path = video().path;
    std::shared_ptr<const Asset> asset;
    const std::string error = failureOf([&] {
        const Refusal refusal(which, number);
        asset = Asset::open(path);
    });
    if (!error.empty())
        return complaintAbout(error);
    const bool isWhole =
        asset->tracks(MediaType::video).size() == 1 && asset->tracks(MediaType::audio).size() == 1;
    return isWhole ? "" : "opened without one of its tracks; ";
}

std::string makeStills(Allocations which, long number) {
    const auto asset = Asset::open(video().path);
    const auto make = [&asset] {
        return ImageGenerator::make(asset)->images({Time{}, kLater, Time{2, 5}}, {});
    };
    std::vector<Still> stills;
    const std::string error = failureOf([&] {
        const Refusal refusal(which, number);
        stills = make();
    });
    // Whoever makes a strip shows none then, and no words.
    if (!error.empty() && error != std::bad_alloc().what())
        return complaintAbout(error);
    for (const Still& still : stills) {
        const std::string missing =
            still.picture ? "" : failureOf([&] { std::rethrow_exception(still.failure); });
        const bool hasWords = !missing.empty() && missing != std::bad_alloc().what();
        if (hasWords && !complaintAbout(missing).empty())
            return complaintAbout(missing);
    }
    const auto isThere = [](const Still& still) { return still.picture.has_value(); };
    return std::ranges::all_of(make(), isThere) ? "" : "a still is missing the next time; ";
}

/// What is refused to its owner's thread is thrown there, and that player is given up.
std::string play(Allocations which, long number) {
    const auto fixture = video();
    const auto item = PlayerStage::open(fixture.path);
    auto stage = std::make_unique<PlayerStage>();
    const std::string refused = failureOf([&] {
        const Refusal refusal(which, number);
        stage->player->replaceCurrentItem(item);
        bool isAnswered = false;
        seekExactly(*stage->player, Time{1, 6}, [&isAnswered](bool) { isAnswered = true; });
        stage->pumpUntil([&isAnswered] { return isAnswered; });
    });
    if (!refused.empty()) {
        stage = std::make_unique<PlayerStage>();
        stage->player->replaceCurrentItem(item);
    }
    if (!stage->seekAndWait(kLater))
        return "a seek is not finished; ";
    if (stage->waitForNumber(frameAt(fixture, kLater)))
        return "";
    return "“" + refused + "”, then picture " + std::to_string(stage->sink.number().value_or(-1)) +
           " in place of " + std::to_string(frameAt(fixture, kLater)) + "; ";
}

struct Named {
    const char* name;
    Operation operation;

    friend void PrintTo(const Named& named, std::ostream* out) { *out << named.name; }
};

class RefusedMemoryToOpen : public testing::TestWithParam<std::tuple<Named, Allocations>> {
protected:
    void SetUp() override {
        if (!testsupport::canRefuseAllocations())
            GTEST_SKIP() << "the sanitizers have allocations of their own";
        // Not in each child.
        video();
    }

    [[nodiscard]] static long count() {
        const auto [named, which] = GetParam();
        return std::stol(inChildProcess([&named = named, which = which] {
            const std::string complaint = named.operation(which, -1);
            return complaint + std::to_string(Refusal::count());
        }));
    }

    /// In a process of its own, which a fault may end.
    [[nodiscard]] static std::string complaintAt(long number) {
        const auto [named, which] = GetParam();
        const std::string complaint = inChildProcess([&named = named, which = which, number] {
            const Leftovers leftovers;
            const std::string wrong = named.operation(which, number);
            return wrong + leftovers.complaint();
        });
        // libav itself ends the program: where default options get no memory
        // (avcodec_alloc_context3), and where its AAC decoder uses a transform that got none
        // (FFmpeg 5.1).
        const bool isLibavs = which == Allocations::libavs;
        return isLibavs && (complaint == "signal 6" || complaint == "signal 11") ? "" : complaint;
    }
};

/// A few of them: at the beginning, in the middle, at the end.
TEST_P(RefusedMemoryToOpen, isAFailureThatPasses) {
    const long allocations = count();
    ASSERT_GT(allocations, 10);
    for (const long number :
         {0L, 1L, 10L, allocations / 4, allocations / 2, allocations * 9 / 10, allocations - 1})
        EXPECT_EQ(complaintAt(number), "") << "allocation " << number << " of " << allocations;
}

/// Each of the first 2,000.
class ExhaustiveRefusedMemoryToOpen : public RefusedMemoryToOpen {};

TEST_P(ExhaustiveRefusedMemoryToOpen, isAFailureThatPasses) {
    const long allocations = std::min(count(), 2000L);
    RecordProperty("points", static_cast<int>(allocations));
    for (long number = 0; number < allocations; ++number)
        EXPECT_EQ(complaintAt(number), "") << "allocation " << number;
}

std::string nameOf(const testing::TestParamInfo<RefusedMemoryToOpen::ParamType>& info) {
    const auto& [named, which] = info.param;
    return std::string(named.name) + (which == Allocations::ours ? "_ours" : "_libavs");
}

const auto kAll =
    testing::Combine(testing::Values(Named{"load", &open}, Named{"stills", &makeStills}),
                     testing::Values(Allocations::ours, Allocations::libavs));
INSTANTIATE_TEST_SUITE_P(, RefusedMemoryToOpen, kAll, nameOf);
INSTANTIATE_TEST_SUITE_P(, ExhaustiveRefusedMemoryToOpen, kAll, nameOf);

/// The first of them: those with which the player’s decoder begins.
class RefusedMemoryToPlay : public RefusedMemoryToOpen {};

TEST_P(RefusedMemoryToPlay, isAFailureThatPasses) {
    for (long number = 0; number <= 10; ++number)
        EXPECT_EQ(complaintAt(number), "") << "allocation " << number;
}

INSTANTIATE_TEST_SUITE_P(, RefusedMemoryToPlay,
                         testing::Values(std::tuple(Named{"player", &play}, Allocations::ours)),
                         nameOf);

} // namespace
} // namespace media
