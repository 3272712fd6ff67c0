#include "Media/FFmpeg/Timestamp.h"

#include "Media/Ticks.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace media::ffmpeg {
namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

TEST(Timestamp, doesNotMixWithTicksOrCounts) {
    EXPECT_FALSE((std::is_convertible_v<std::int64_t, Timestamp>));
    EXPECT_FALSE((std::is_convertible_v<Timestamp, std::int64_t>));
    EXPECT_FALSE((std::is_constructible_v<Timestamp, Ticks>));
    EXPECT_FALSE((std::is_constructible_v<Ticks, Timestamp>));
}

TEST(Timestamp, isNoneWherePacketsAndFramesStateNone) {
    const PacketPtr packet = makePacket();
    packet->pts = 7;
    packet->dts = AV_NOPTS_VALUE;
    EXPECT_EQ(ptsOf(*packet), Timestamp(7));
    EXPECT_EQ(dtsOf(*packet), std::nullopt);
    const FramePtr frame = makeFrame();
    EXPECT_EQ(ptsOf(*frame), std::nullopt);
    frame->best_effort_timestamp = 9;
    EXPECT_EQ(ptsOf(*frame), Timestamp(9));
    frame->pts = 8;
    EXPECT_EQ(ptsOf(*frame), Timestamp(8));
    EXPECT_EQ(valueOf(std::nullopt), AV_NOPTS_VALUE);
}

TEST(Timestamp, staysInItsRange) {
    EXPECT_EQ(Timestamp(kLargest - 1).advancedBy(5), Timestamp(kLargest));
    EXPECT_EQ(Timestamp(3).advancedBy(-5), Timestamp(-2));
    EXPECT_TRUE(timeOf(Timestamp(kLargest), {1001, 30000}).isNumeric());
}

TEST(Timestamp, isATimeInItsTimeBase) {
    EXPECT_EQ(timeOf(Timestamp(3), {1001, 30000}), (Time{3003, 30000}));
    EXPECT_EQ(nearestTimestamp({3003, 30000}, {1001, 30000}), Timestamp(3));
    EXPECT_EQ(nearestTimestamp({1, 180000}, {1, 90000}), Timestamp(1));
    EXPECT_EQ(nearestTimestamp({-1, 180000}, {1, 90000}), Timestamp(-1));
}

} // namespace
} // namespace media::ffmpeg
