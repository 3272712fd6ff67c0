#include "Media/Playback/FrameCache.h"

#include "Media/Playback/Foresight.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using media::ImageSize;
using media::PreviewPicture;
using media::Time;
using media::playback::CachedFrame;
using media::playback::FillRange;
using media::playback::FrameCache;
using media::playback::nextFill;
using media::playback::Outlook;

namespace {

constexpr int kSource = 0;
constexpr int kOtherSource = 1;
constexpr ImageSize kSize{64, 32};
constexpr ImageSize kOtherSize{128, 64};
/// Of a frame of kSize: luma, and chroma on every second pixel and line.
constexpr std::size_t kFrameBytes = 64 * 32 + 2 * 32 * 16;

CachedFrame frame(std::int64_t begin, std::int64_t end, ImageSize size = kSize) {
    PreviewPicture::Format format;
    format.width = size.width;
    format.height = size.height;
    format.chromaShift = 1;
    return {begin, end, Time{begin, 600}, std::make_shared<PreviewPicture>(format)};
}

/// Frames of 20 ticks each, from the one at `first` up to the one before `end`.
void fill(FrameCache& cache, std::int64_t first, std::int64_t end, ImageSize size = kSize) {
    for (std::int64_t begin = first; begin < end; begin += 20)
        cache.insert(&kSource, frame(begin, begin + 20, size));
}

std::vector<std::int64_t> heldOf(const FrameCache& cache, std::int64_t first, std::int64_t end) {
    std::vector<std::int64_t> held;
    for (std::int64_t begin = first; begin < end; begin += 20) {
        if (cache.find(begin, kSize))
            held.push_back(begin);
    }
    return held;
}

TEST(FrameCache, givesTheFrameWhoseIntervalHoldsTheTick) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.insert(&kSource, frame(CachedFrame::kBeginning, 20));
    cache.insert(&kSource, frame(20, 45));
    cache.insert(&kSource, frame(60, CachedFrame::kForever));
    const auto beginOf = [&](std::int64_t ticks) {
        const auto found = cache.find(ticks, kSize);
        return found ? std::optional(found->begin) : std::nullopt;
    };
    EXPECT_EQ(beginOf(-1'000'000), CachedFrame::kBeginning);
    EXPECT_EQ(beginOf(19), CachedFrame::kBeginning);
    EXPECT_EQ(beginOf(20), 20);
    EXPECT_EQ(beginOf(44), 20);
    EXPECT_EQ(beginOf(45), std::nullopt) << "which frame is on show there is not known";
    EXPECT_EQ(beginOf(59), std::nullopt);
    EXPECT_EQ(beginOf(60), 60);
    EXPECT_EQ(beginOf(1'000'000), 60);
}

TEST(FrameCache, givesFramesOfAnotherSizeOnlyAsTheNearest) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.insert(&kSource, frame(20, 40, kOtherSize));
    EXPECT_FALSE(cache.find(30, kSize));
    EXPECT_EQ(cache.nearest(30)->begin, 20);
    cache.insert(&kSource, frame(20, 40));
    EXPECT_TRUE(cache.find(30, kSize));
    EXPECT_FALSE(cache.find(30, kOtherSize)) << "one frame is kept once";
    EXPECT_EQ(cache.byteCount(), kFrameBytes);
}

TEST(FrameCache, givesTheNearestFrameOnEitherSide) {
    FrameCache cache;
    cache.begin(&kSource);
    EXPECT_FALSE(cache.nearest(0));
    cache.insert(&kSource, frame(100, 120));
    cache.insert(&kSource, frame(200, 220));
    EXPECT_EQ(cache.nearest(0)->begin, 100);
    EXPECT_EQ(cache.nearest(110)->begin, 100);
    EXPECT_EQ(cache.nearest(155)->begin, 100);
    EXPECT_EQ(cache.nearest(165)->begin, 200);
    EXPECT_EQ(cache.nearest(900)->begin, 200);
}

TEST(FrameCache, takesFramesOfItsSourceOnlyAndForgetsThoseOfTheLastOne) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 0, 100);
    cache.begin(&kOtherSource);
    EXPECT_EQ(cache.byteCount(), 0U);
    cache.insert(&kSource, frame(0, 20));
    EXPECT_FALSE(cache.find(0, kSize)) << "of a file that was replaced meanwhile";
    cache.insert(&kOtherSource, frame(0, 20));
    EXPECT_TRUE(cache.find(0, kSize));
}

TEST(FrameCache, letsGoOfWhatLiesFarthestFromThePlayhead) {
    FrameCache cache(10 * kFrameBytes);
    cache.begin(&kSource);
    cache.setFocus(200);
    fill(cache, 0, 400);
    EXPECT_EQ(cache.byteCount(), 10 * kFrameBytes);
    EXPECT_THAT(heldOf(cache, 0, 400),
                testing::AllOf(testing::SizeIs(10), testing::Each(testing::Ge(100)),
                               testing::Contains(380)))
        << "the one that came last stays";
    cache.setFocus(0);
    fill(cache, 0, 80);
    EXPECT_THAT(heldOf(cache, 0, 80), testing::ElementsAre(0, 20, 40, 60));
    EXPECT_LE(cache.byteCount(), 10 * kFrameBytes);
}

TEST(FrameCache, keepsANeighbourhoodOfThePointsOfInterest) {
    FrameCache cache(16 * kFrameBytes);
    cache.begin(&kSource);
    cache.setPointsOfInterest({2000});
    cache.setFocus(2000);
    fill(cache, 1900, 2100);
    cache.setFocus(0);
    fill(cache, 0, 600);
    EXPECT_THAT(heldOf(cache, 1900, 2100), testing::IsSupersetOf({1980, 2000, 2020}));
    EXPECT_THAT(heldOf(cache, 0, 600), testing::IsSupersetOf({0, 20, 40, 60, 80, 100}));
}

TEST(FrameCache, keepsAFrameThatAloneIsBeyondItsBound) {
    FrameCache cache(100);
    cache.begin(&kSource);
    fill(cache, 0, 60);
    EXPECT_TRUE(cache.find(40, kSize));
    EXPECT_EQ(cache.byteCount(), kFrameBytes);
}

TEST(FrameCache, sharesOneBoundWithThoseOfOtherPlayers) {
    const FrameCache cache;
    EXPECT_EQ(cache.capacityBytes(), FrameCache::kDefaultBytes);
    std::vector<std::unique_ptr<FrameCache>> others;
    for (int i = 0; i < 19; ++i)
        others.push_back(std::make_unique<FrameCache>());
    EXPECT_EQ(cache.capacityBytes(), FrameCache::kBytesOfAll / 20);
    others.clear();
    EXPECT_EQ(cache.capacityBytes(), FrameCache::kDefaultBytes);
}

TEST(FrameCache, tellsHowFarFramesFollowOneAnother) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 100, 200);
    fill(cache, 220, 300);
    EXPECT_EQ(cache.coveredUntil(130, kSize), 200);
    EXPECT_EQ(cache.coveredUntil(200, kSize), 200);
    EXPECT_EQ(cache.coveredFrom(190, kSize), 100);
    EXPECT_EQ(cache.coveredFrom(210, kSize), 211);
    EXPECT_EQ(cache.coveredUntil(130, kOtherSize), 130);
    cache.insert(&kSource, frame(300, CachedFrame::kForever));
    cache.insert(&kSource, frame(CachedFrame::kBeginning, 100));
    EXPECT_EQ(cache.coveredUntil(220, kSize), CachedFrame::kForever);
    EXPECT_EQ(cache.coveredFrom(150, kSize), CachedFrame::kBeginning);
}

TEST(Foresight, readsAheadInTheDirectionOfTheMovementFirst) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 3000, 3100);
    Outlook outlook{.focus = 3040, .direction = 1, .lastTicks = 9000, .size = kSize};
    EXPECT_EQ(nextFill(cache, outlook), (FillRange{3100, 4240}));
    outlook.direction = -1;
    EXPECT_EQ(nextFill(cache, outlook), (FillRange{640, 2999}));
    fill(cache, 640, 3000);
    EXPECT_EQ(nextFill(cache, outlook), (FillRange{3100, 4240}));
}

TEST(Foresight, looksAfterThePointsOfInterestLastAndEndsWhenAllIsThere) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.setPointsOfInterest({0, 9000});
    fill(cache, 2400, 6000);
    const Outlook outlook{.focus = 5000, .lastTicks = 9000, .size = kSize};
    fill(cache, 6000, 6400);
    EXPECT_EQ(nextFill(cache, outlook), (FillRange{0, 600}));
    fill(cache, 0, 620);
    EXPECT_EQ(nextFill(cache, outlook), (FillRange{8700, 9000}));
    fill(cache, 8700, 9020);
    EXPECT_EQ(nextFill(cache, outlook), std::nullopt);
}

TEST(Foresight, asksForNoMoreThanTheCacheHolds) {
    FrameCache cache(30 * kFrameBytes);
    cache.begin(&kSource);
    const Outlook outlook{.focus = 5000, .lastTicks = 9000, .size = kSize};
    cache.setFocus(5000);
    for (int rounds = 0; rounds < 30; ++rounds) {
        const auto range = nextFill(cache, outlook);
        if (!range)
            return;
        fill(cache, range->from / 20 * 20, range->until + 1);
    }
    FAIL() << "it never has enough";
}

TEST(Foresight, leavesACacheAloneThatHoldsAFewFramesOnly) {
    FrameCache cache(5 * kFrameBytes);
    cache.begin(&kSource);
    EXPECT_EQ(nextFill(cache, {.focus = 50, .lastTicks = 9000, .size = kSize}), std::nullopt);
}

} // namespace
