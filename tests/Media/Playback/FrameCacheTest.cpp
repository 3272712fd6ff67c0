#include "Media/Playback/FrameCache.h"

#include "CachedFrames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

using media::Ticks;
using media::playback::FrameCache;
using media::playback::Heading;

namespace {

constexpr int kSource = 0;
constexpr int kOtherSource = 1;

void fill(FrameCache& cache, Ticks first, Ticks end) {
    fillCache(cache, &kSource, first, end);
}

std::vector<std::int64_t> heldOf(const FrameCache& cache, std::int64_t first, std::int64_t end) {
    std::vector<std::int64_t> held;
    for (std::int64_t begin = first; begin < end; begin += kFrameLength.count()) {
        if (cache.find(Ticks(begin), kFrameSize))
            held.push_back(begin);
    }
    return held;
}

TEST(FrameCache, givesTheFrameWhoseIntervalHoldsTheTick) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.insert(&kSource, cachedFrame(Ticks::beginning(), 20_ticks));
    cache.insert(&kSource, cachedFrame(20_ticks, 45_ticks));
    cache.insert(&kSource, cachedFrame(60_ticks, Ticks::forever()));
    const auto beginOf = [&](std::int64_t ticks) {
        const auto found = cache.find(Ticks(ticks), kFrameSize);
        return found ? std::optional(found->range.begin) : std::nullopt;
    };
    EXPECT_EQ(beginOf(-1'000'000), Ticks::beginning());
    EXPECT_EQ(beginOf(19), Ticks::beginning());
    EXPECT_EQ(beginOf(20), 20_ticks);
    EXPECT_EQ(beginOf(44), 20_ticks);
    EXPECT_EQ(beginOf(45), std::nullopt) << "which frame is on show there is not known";
    EXPECT_EQ(beginOf(59), std::nullopt);
    EXPECT_EQ(beginOf(60), 60_ticks);
    EXPECT_EQ(beginOf(1'000'000), 60_ticks);
}

TEST(FrameCache, givesFramesOfAnotherSizeOnlyAsTheNearest) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.insert(&kSource, cachedFrame(20_ticks, 40_ticks, kOtherFrameSize));
    EXPECT_FALSE(cache.find(30_ticks, kFrameSize));
    EXPECT_EQ(cache.nearest(30_ticks)->range.begin, 20_ticks);
    cache.insert(&kSource, cachedFrame(20_ticks, 40_ticks));
    EXPECT_TRUE(cache.find(30_ticks, kFrameSize));
    EXPECT_FALSE(cache.find(30_ticks, kOtherFrameSize)) << "one frame is kept once";
    EXPECT_EQ(cache.byteCount(), kFrameBytes);
}

TEST(FrameCache, givesTheNearestFrameOnEitherSide) {
    FrameCache cache;
    cache.begin(&kSource);
    EXPECT_FALSE(cache.nearest(0_ticks));
    cache.insert(&kSource, cachedFrame(100_ticks, 120_ticks));
    cache.insert(&kSource, cachedFrame(200_ticks, 220_ticks));
    EXPECT_EQ(cache.nearest(0_ticks)->range.begin, 100_ticks);
    EXPECT_EQ(cache.nearest(110_ticks)->range.begin, 100_ticks);
    EXPECT_EQ(cache.nearest(155_ticks)->range.begin, 100_ticks);
    EXPECT_EQ(cache.nearest(165_ticks)->range.begin, 200_ticks);
    EXPECT_EQ(cache.nearest(900_ticks)->range.begin, 200_ticks);
}

TEST(FrameCache, takesFramesOfItsSourceOnlyAndForgetsThoseOfTheLastOne) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 0_ticks, 100_ticks);
    cache.begin(&kOtherSource);
    EXPECT_EQ(cache.byteCount(), 0U);
    cache.insert(&kSource, cachedFrame(0_ticks, 20_ticks));
    EXPECT_FALSE(cache.find(0_ticks, kFrameSize)) << "of a file that was replaced meanwhile";
    cache.insert(&kOtherSource, cachedFrame(0_ticks, 20_ticks));
    EXPECT_TRUE(cache.find(0_ticks, kFrameSize));
}

TEST(FrameCache, letsGoOfWhatLiesFarthestFromThePlayhead) {
    FrameCache cache(10 * kFrameBytes);
    cache.begin(&kSource);
    cache.setFocus(200_ticks);
    fill(cache, 0_ticks, 400_ticks);
    EXPECT_EQ(cache.byteCount(), 10 * kFrameBytes);
    EXPECT_THAT(heldOf(cache, 0, 400),
                testing::AllOf(testing::SizeIs(10), testing::Each(testing::Ge(100)),
                               testing::Contains(380)))
        << "the one that came last stays";
    cache.setFocus(0_ticks);
    fill(cache, 0_ticks, 80_ticks);
    EXPECT_THAT(heldOf(cache, 0, 80), testing::ElementsAre(0, 20, 40, 60));
    EXPECT_LE(cache.byteCount(), 10 * kFrameBytes);
}

TEST(FrameCache, keepsLessOfWhatAMovementBackwardHasLeftBehind) {
    FrameCache cache(20 * kFrameBytes);
    cache.begin(&kSource);
    cache.setFocus(2000_ticks, Heading::backward);
    fillCache(cache, &kSource, 1600_ticks, 2400_ticks);
    EXPECT_LE(cache.coveredFrom(2000_ticks, kFrameSize), 1700_ticks);
    EXPECT_LE(cache.coveredUntil(2000_ticks, kFrameSize), 2100_ticks);
    cache.setFocus(2000_ticks);
    fillCache(cache, &kSource, 1600_ticks, 2400_ticks);
    EXPECT_GE(cache.coveredUntil(2000_ticks, kFrameSize), 2180_ticks);
}

TEST(FrameCache, keepsNextToNothingOfWhatAMovementStraightBackHasLeftBehind) {
    FrameCache cache(20 * kFrameBytes);
    cache.begin(&kSource);
    cache.setFocus(2000_ticks, Heading::straightBack);
    fillCache(cache, &kSource, 1600_ticks, 2400_ticks);
    EXPECT_LE(cache.coveredFrom(2000_ticks, kFrameSize), 1660_ticks);
}

TEST(FrameCache, keepsANeighbourhoodOfThePointsOfInterest) {
    FrameCache cache(16 * kFrameBytes);
    cache.begin(&kSource);
    cache.setPointsOfInterest({2000_ticks});
    cache.setFocus(2000_ticks);
    fill(cache, 1900_ticks, 2100_ticks);
    cache.setFocus(0_ticks);
    fill(cache, 0_ticks, 600_ticks);
    EXPECT_THAT(heldOf(cache, 1900, 2100), testing::IsSupersetOf({1980, 2000, 2020}));
    EXPECT_THAT(heldOf(cache, 0, 600), testing::IsSupersetOf({0, 20, 40, 60, 80, 100}));
}

TEST(FrameCache, keepsTheFramesOfTheLastPlacesOfRest) {
    FrameCache cache(40 * kFrameBytes);
    cache.begin(&kSource);
    const std::vector<std::int64_t> places{20'000, 40'000, 30'000, 60'000, 50'000};
    cache.addPlaceOfRest(10'000_ticks);
    for (const std::int64_t place : places) {
        cache.setFocus(Ticks(place));
        fill(cache, Ticks(place - 100), Ticks(place + 100));
        cache.addPlaceOfRest(Ticks(place + 3));
        // Twice in the same frame is one place.
        cache.addPlaceOfRest(Ticks(place + 4));
    }
    cache.setFocus(0_ticks);
    fill(cache, 0_ticks, 2000_ticks);
    EXPECT_LE(cache.byteCount(), 40 * kFrameBytes);
    for (const std::int64_t place : places)
        EXPECT_THAT(heldOf(cache, place - 100, place + 100), testing::ElementsAre(place));
    fill(cache, 70'000_ticks, 70'020_ticks);
    cache.addPlaceOfRest(70'000_ticks);
    fill(cache, 2000_ticks, 2100_ticks);
    EXPECT_THAT(heldOf(cache, 20'000, 20'020), testing::IsEmpty()) << "five have followed it";
    EXPECT_THAT(heldOf(cache, 40'000, 40'020), testing::SizeIs(1));
    cache.begin(&kSource);
    fill(cache, 40'000_ticks, 40'020_ticks);
    fill(cache, 0_ticks, 2000_ticks);
    EXPECT_THAT(heldOf(cache, 40'000, 40'020), testing::IsEmpty()) << "of the file before";
}

TEST(FrameCache, keepsTheFramesAtThePointsOfInterestHoweverFewItHolds) {
    FrameCache cache(8 * kFrameBytes);
    cache.begin(&kSource);
    cache.setPointsOfInterest({2019_ticks, 5000_ticks});
    fill(cache, 2000_ticks, 2020_ticks);
    fill(cache, 5000_ticks, 5020_ticks);
    cache.setFocus(100_ticks);
    // None of them as far from the playhead as counts for a point so far behind its frame’s begin.
    fill(cache, 40_ticks, 180_ticks);
    EXPECT_THAT(heldOf(cache, 2000, 6000), testing::ElementsAre(2000, 5000));
    EXPECT_EQ(cache.byteCount(), 8 * kFrameBytes);
}

TEST(FrameCache, leavesMostOfItsRoomToTheNeighbourhoodOfThePlayhead) {
    FrameCache cache(8 * kFrameBytes);
    cache.begin(&kSource);
    for (int place = 1; place <= 5; ++place) {
        const Ticks ticks(std::int64_t{place} * 10'000);
        cache.setFocus(ticks);
        fill(cache, ticks, ticks + kFrameLength);
        cache.addPlaceOfRest(ticks);
    }
    cache.setFocus(0_ticks);
    fill(cache, 0_ticks, 200_ticks);
    EXPECT_THAT(heldOf(cache, 10'000, 60'000), testing::ElementsAre(40'000, 50'000));
    EXPECT_EQ(heldOf(cache, 0, 200).size(), 6U);
}

TEST(FrameCache, keepsAFrameThatAloneIsBeyondItsBound) {
    FrameCache cache(100);
    cache.begin(&kSource);
    fill(cache, 0_ticks, 60_ticks);
    EXPECT_TRUE(cache.find(40_ticks, kFrameSize));
    EXPECT_EQ(cache.byteCount(), kFrameBytes);
}

TEST(FrameCache, sharesOneBoundWithThoseOfOtherPlayers) {
    const FrameCache cache;
    EXPECT_EQ(cache.capacityBytes(), FrameCache::kDefaultBytes);
    std::vector<std::unique_ptr<FrameCache>> others;
    others.reserve(19);
    for (int i = 0; i < 19; ++i)
        others.push_back(std::make_unique<FrameCache>());
    EXPECT_EQ(cache.capacityBytes(), FrameCache::kBytesOfAll / 20);
    others.clear();
    EXPECT_EQ(cache.capacityBytes(), FrameCache::kDefaultBytes);
}

TEST(FrameCache, tellsHowFarFramesFollowOneAnother) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 100_ticks, 200_ticks);
    fill(cache, 220_ticks, 300_ticks);
    EXPECT_EQ(cache.coveredUntil(130_ticks, kFrameSize), 200_ticks);
    EXPECT_EQ(cache.coveredUntil(200_ticks, kFrameSize), 200_ticks);
    EXPECT_EQ(cache.coveredFrom(190_ticks, kFrameSize), 100_ticks);
    EXPECT_EQ(cache.coveredFrom(210_ticks, kFrameSize), 211_ticks);
    EXPECT_EQ(cache.coveredUntil(130_ticks, kOtherFrameSize), 130_ticks);
    cache.insert(&kSource, cachedFrame(300_ticks, Ticks::forever()));
    cache.insert(&kSource, cachedFrame(Ticks::beginning(), 100_ticks));
    EXPECT_EQ(cache.coveredUntil(220_ticks, kFrameSize), Ticks::forever());
    EXPECT_EQ(cache.coveredFrom(150_ticks, kFrameSize), Ticks::beginning());
}

} // namespace
