#include "Media/Playback/ReadAhead.h"

#include "CachedFrames.h"

#include <gtest/gtest.h>

using media::TickRange;
using media::Ticks;
using media::playback::FrameCache;
using media::playback::framesToReadAhead;
using media::playback::Heading;
using media::playback::ReadAhead;
using media::playback::Surroundings;

namespace {

constexpr int kSource = 0;

void fill(FrameCache& cache, Ticks first, Ticks end) {
    fillCache(cache, &kSource, first, end);
}

TEST(ReadAhead, readsAheadInTheDirectionOfTheMovementFirst) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 3000_ticks, 3100_ticks);
    Surroundings surroundings{
        .focus = 3040_ticks, .direction = 1, .last = 9000_ticks, .size = kFrameSize};
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{3100_ticks, 4241_ticks}));
    fill(cache, 3100_ticks, 4260_ticks);
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{0_ticks, 3000_ticks}));
}

TEST(ReadAhead, readsFartherBackWhereThePlayheadMovesBackward) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 6000_ticks, 6100_ticks);
    const Surroundings surroundings{
        .focus = 6040_ticks, .direction = -1, .last = 9000_ticks, .size = kFrameSize};
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{1840_ticks, 6000_ticks}));
    fill(cache, 3640_ticks, 6000_ticks);
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{6100_ticks, 6641_ticks}))
        << "with two reaches left it is not time yet";
}

// A held key went on to where nothing had been read, since frames were read again that it had just
// left behind.
TEST(ReadAhead, readsNothingButFarBehindWhileThePlayheadMovesThere) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.setPointsOfInterest({0_ticks, 9000_ticks});
    fill(cache, 8000_ticks, 8060_ticks);
    const Surroundings surroundings{.focus = 8040_ticks,
                                    .direction = -1,
                                    .isMoving = true,
                                    .last = 9000_ticks,
                                    .size = kFrameSize};
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{2000_ticks, 8000_ticks}));
    fill(cache, 2040_ticks, 8000_ticks);
    EXPECT_EQ(framesToReadAhead(cache, surroundings), std::nullopt)
        << "with five reaches left it is not time yet";
}

TEST(ReadAhead, leadsToTheFramesOfItsRangeUntilThatIsChosenAnew) {
    FrameCache cache;
    cache.begin(&kSource);
    fill(cache, 8000_ticks, 8060_ticks);
    ReadAhead readAhead(cache);
    readAhead.update(1, {.focus = 8040_ticks,
                         .direction = -1,
                         .isMoving = true,
                         .last = 9000_ticks,
                         .size = kFrameSize});
    EXPECT_FALSE(readAhead.leadsTo(7999_ticks, 4000_ticks));
    ASSERT_EQ(readAhead.next(), 2000_ticks);
    EXPECT_TRUE(readAhead.leadsTo(7999_ticks, 4000_ticks));
    EXPECT_FALSE(readAhead.leadsTo(8000_ticks, 4000_ticks));
    EXPECT_FALSE(readAhead.leadsTo(3980_ticks, 4000_ticks)) << "it is past that";
    EXPECT_FALSE(readAhead.leadsTo(7999_ticks, 800_ticks)) << "all that it keeps is still to come";
    readAhead.chooseAnew();
    EXPECT_FALSE(readAhead.leadsTo(7999_ticks, 4000_ticks));
}

// The frames that were decoded first, at the beginning of a group, gave way to those that came
// last, and had to be decoded again.
TEST(ReadAhead, waitsForRoomBehindAPlayheadThatMovesThere) {
    FrameCache cache(60 * kFrameBytes);
    cache.begin(&kSource);
    Surroundings surroundings{.focus = 8000_ticks,
                              .direction = -1,
                              .isMoving = true,
                              .last = 9000_ticks,
                              .size = kFrameSize};
    cache.setFocus(surroundings.focus, Heading::straightBack);
    fill(cache, 7200_ticks, 8020_ticks);
    ReadAhead readAhead(cache);
    readAhead.update(1, surroundings);
    ASSERT_EQ(readAhead.next(), 6200_ticks);
    EXPECT_TRUE(readAhead.hasRoom(6200_ticks));
    fill(cache, 6200_ticks, 6580_ticks);
    EXPECT_FALSE(readAhead.hasRoom(6580_ticks));
    EXPECT_FALSE(readAhead.isDone());
    surroundings.focus = 7840_ticks;
    cache.setFocus(surroundings.focus, Heading::straightBack);
    readAhead.update(1, surroundings);
    EXPECT_TRUE(readAhead.hasRoom(6580_ticks)) << "frames left behind give way";
    surroundings.focus = 8000_ticks;
    surroundings.isMoving = false;
    cache.setFocus(surroundings.focus, Heading::backward);
    readAhead.update(1, surroundings);
    EXPECT_TRUE(readAhead.hasRoom(6580_ticks));
    EXPECT_NE(readAhead.next(), 6200_ticks) << "a playhead that rests does not come nearer";
}

TEST(ReadAhead, asksForNoMoreThanTheCacheHoldsOfAPlayheadThatMovesBackward) {
    FrameCache cache(60 * kFrameBytes);
    cache.begin(&kSource);
    cache.setPointsOfInterest({0_ticks, 9000_ticks});
    for (Ticks focus(8000); focus > 1000_ticks; focus = focus - 20_ticks) {
        cache.setFocus(focus, Heading::backward);
        const Surroundings surroundings{
            .focus = focus, .direction = -1, .last = 9000_ticks, .size = kFrameSize};
        int rounds = 0;
        while (const auto range = framesToReadAhead(cache, surroundings)) {
            fill(cache, Ticks(range->begin.count() / 20 * 20), range->end);
            ASSERT_LE(++rounds, 5) << "it never has enough at " << focus.count();
        }
    }
}

TEST(ReadAhead, looksAfterThePointsOfInterestLastAndEndsWhenAllIsThere) {
    FrameCache cache;
    cache.begin(&kSource);
    cache.setPointsOfInterest({0_ticks, 9000_ticks});
    fill(cache, 2400_ticks, 6000_ticks);
    const Surroundings surroundings{.focus = 5000_ticks, .last = 9000_ticks, .size = kFrameSize};
    fill(cache, 6000_ticks, 6400_ticks);
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{0_ticks, 601_ticks}));
    fill(cache, 0_ticks, 620_ticks);
    EXPECT_EQ(framesToReadAhead(cache, surroundings), (TickRange{8700_ticks, 9001_ticks}));
    fill(cache, 8700_ticks, 9020_ticks);
    EXPECT_EQ(framesToReadAhead(cache, surroundings), std::nullopt);
}

TEST(ReadAhead, asksForNoMoreThanTheCacheHolds) {
    FrameCache cache(30 * kFrameBytes);
    cache.begin(&kSource);
    const Surroundings surroundings{.focus = 5000_ticks, .last = 9000_ticks, .size = kFrameSize};
    cache.setFocus(5000_ticks);
    for (int rounds = 0; rounds < 30; ++rounds) {
        const auto range = framesToReadAhead(cache, surroundings);
        if (!range)
            return;
        fill(cache, Ticks(range->begin.count() / 20 * 20), range->end);
    }
    FAIL() << "it never has enough";
}

TEST(ReadAhead, leavesACacheAloneThatHoldsAFewFramesOnly) {
    FrameCache cache(5 * kFrameBytes);
    cache.begin(&kSource);
    EXPECT_EQ(framesToReadAhead(cache, {.focus = 50_ticks, .last = 9000_ticks, .size = kFrameSize}),
              std::nullopt);
}

// Frame by frame.

class ReadAheadFrames : public testing::Test {
protected:
    ReadAheadFrames() { cache.begin(&kSource); }

    FrameCache cache;
    ReadAhead readAhead{cache};
    Surroundings surroundings{.focus = 3000_ticks, .last = 90'000_ticks, .size = kFrameSize};
};

TEST_F(ReadAheadFrames, passOverThoseThatAreThere) {
    readAhead.update(1, surroundings);
    EXPECT_EQ(readAhead.next(), 3000_ticks);
    fill(cache, 3000_ticks, 3400_ticks);
    readAhead.arrive(3020_ticks);
    EXPECT_EQ(readAhead.next(), 3400_ticks);
}

TEST_F(ReadAheadFrames, comeToAnEndEvenWhereNothingStaysInTheCache) {
    readAhead.update(1, surroundings);
    int count = 0;
    while (const auto ticks = readAhead.next()) {
        readAhead.arrive(*ticks + 20_ticks);
        ASSERT_LE(++count, 1000);
    }
    EXPECT_EQ(count, 1000) << "however much the cache can hold";
    EXPECT_TRUE(readAhead.isDone());
    readAhead.update(1, surroundings);
    EXPECT_TRUE(readAhead.isDone()) << "nothing has changed";
}

TEST_F(ReadAheadFrames, beginAnewInAnotherSize) {
    readAhead.update(1, surroundings);
    readAhead.giveUp();
    ASSERT_TRUE(readAhead.isDone());
    surroundings.size = kOtherFrameSize;
    readAhead.update(1, surroundings);
    EXPECT_EQ(readAhead.next(), 3000_ticks);
}

TEST_F(ReadAheadFrames, goOnWithWhatTheyWereAtUnlessThePlayheadIsFarAway) {
    readAhead.update(1, surroundings);
    ASSERT_EQ(readAhead.next(), 3000_ticks);
    surroundings.focus = 3200_ticks;
    readAhead.update(1, surroundings);
    EXPECT_EQ(readAhead.next(), 3000_ticks);
    surroundings.focus = 30'000_ticks;
    readAhead.update(1, surroundings);
    EXPECT_EQ(readAhead.next(), 30'000_ticks);
}

} // namespace
