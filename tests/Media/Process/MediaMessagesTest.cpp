#include "Media/Process/Wire/MediaMessages.h"

#include "Media/Process/RandomMedia.h"
#include "Media/Process/SameValues.h"
#include "Media/Process/WireTest.h"

#include <cmath>
#include <memory>
#include <string>

namespace media::process {
namespace {

using playback::FrameSource;
using playback::PreviewSize;

/// The deepest chain of causes, with the failure itself.
constexpr int kMostFailures = 5;

/// What the kinds of values below have in common.
template<typename T>
struct Plain {
    using Value = T;

    static void write(MessageWriter& writer, const T& value) { put(writer, value); }

    static bool isSame(const T& a, const T& b) { return process::isSame(a, b); }
};

template<typename T>
struct Comparable : Plain<T> {
    static bool isSame(const T& a, const T& b) { return a == b; }
};

struct WiredTime : Plain<Time> {
    static constexpr const char* kName = "Time";

    static Time random(RandomValues& values) { return randomTime(values); }

    static Time read(MessageReader& reader) { return getTime(reader); }

    static void expectBounds(const Time& time) {
        EXPECT_GE(time.timescale, 0);
        EXPECT_EQ(time.isNumeric(), std::isfinite(time.seconds()));
        static_cast<void>(time.ticks());
    }
};

struct WiredTicks : Comparable<Ticks> {
    static constexpr const char* kName = "Ticks";

    static Ticks random(RandomValues& values) { return randomTicks(values); }

    static Ticks read(MessageReader& reader) { return getTicks(reader); }

    static void expectBounds(const Ticks& /*ticks*/) {}
};

struct WiredTimeRange : Plain<TimeRange> {
    static constexpr const char* kName = "TimeRange";

    static TimeRange random(RandomValues& values) {
        const Time start = randomTime(values);
        return {start, randomTime(values)};
    }

    static TimeRange read(MessageReader& reader) { return getTimeRange(reader); }

    static void expectBounds(const TimeRange& range) {
        WiredTime::expectBounds(range.start);
        WiredTime::expectBounds(range.end);
    }
};

struct WiredTickRange : Comparable<TickRange> {
    static constexpr const char* kName = "TickRange";

    static TickRange random(RandomValues& values) { return randomTickRange(values); }

    static TickRange read(MessageReader& reader) { return getTickRange(reader); }

    static void expectBounds(const TickRange& /*range*/) {}
};

struct WiredTransform : Comparable<AffineTransform> {
    static constexpr const char* kName = "Transform";

    static AffineTransform random(RandomValues& values) { return randomTransform(values); }

    static AffineTransform read(MessageReader& reader) { return getTransform(reader); }

    static void expectBounds(const AffineTransform& transform) {
        const auto [a, b, c, d, tx, ty] = transform;
        for (const double value : {a, b, c, d, tx, ty})
            EXPECT_TRUE(std::isfinite(value));
    }
};

struct WiredTrack : Plain<AssetTrack> {
    static constexpr const char* kName = "Track";

    static AssetTrack random(RandomValues& values) { return randomTrack(values); }

    static AssetTrack read(MessageReader& reader) { return getTrack(reader); }

    static void expectBounds(const AssetTrack& track) {
        const double least = track.type == MediaType::video ? 1 : 0;
        EXPECT_GE(track.naturalSize.width, least);
        EXPECT_GE(track.naturalSize.height, least);
        EXPECT_TRUE(std::isfinite(track.naturalSize.width));
        EXPECT_TRUE(std::isfinite(track.naturalSize.height));
        EXPECT_GE(track.nominalFrameRate, 0);
        EXPECT_TRUE(std::isfinite(track.nominalFrameRate));
        for (const int number : {track.streamIndex, track.codedWidth, track.codedHeight,
                                 track.bitsPerComponent, track.channels, track.sampleRate})
            EXPECT_GE(number, 0);
        EXPECT_LE(track.bitsPerComponent, 64);
        EXPECT_GE(track.frameCount, 0);
        WiredTransform::expectBounds(track.preferredTransform);
        WiredTime::expectBounds(track.startTime);
        WiredTime::expectBounds(track.frameDistance);
    }
};

struct WiredFailure : Plain<Failure> {
    static constexpr const char* kName = "Failure";

    static Failure random(RandomValues& values) {
        return randomFailure(values, static_cast<int>(values.below(kMostFailures)));
    }

    static Failure read(MessageReader& reader) { return getFailure(reader); }

    static void expectBounds(const Failure& failure) {
        int count = 0;
        for (const Failure* each = &failure; each; each = each->cause.get(), ++count)
            EXPECT_LT(each->kind, ErrorKind::count);
        EXPECT_LE(count, kMostFailures);
        const Error error(failure);
        EXPECT_EQ(error.failure().kind, failure.kind);
    }
};

struct WiredGoal : Plain<FrameSource::Goal> {
    static constexpr const char* kName = "Goal";

    static FrameSource::Goal random(RandomValues& values) {
        FrameSource::Goal goal;
        goal.ticks = randomTicks(values);
        goal.completeFrom = randomTicks(values);
        goal.isUrgent = values.isHeads();
        goal.isBackward = values.isHeads();
        goal.shortestLeap = randomTicks(values);
        goal.skipRenderingUntil = randomTicks(values);
        return goal;
    }

    static FrameSource::Goal read(MessageReader& reader) { return getGoal(reader); }

    static void expectBounds(const FrameSource::Goal& /*goal*/) {}
};

struct WiredPreviewSize : Comparable<PreviewSize> {
    static constexpr const char* kName = "PreviewSize";

    static PreviewSize random(RandomValues& values) {
        const int width = values.number<int>(0);
        return {width, values.number<int>(0)};
    }

    static PreviewSize read(MessageReader& reader) { return getPreviewSize(reader); }

    static void expectBounds(const PreviewSize& size) {
        EXPECT_GE(size.width, 0);
        EXPECT_GE(size.height, 0);
    }
};

using MediaKinds =
    testing::Types<WiredTime, WiredTicks, WiredTimeRange, WiredTickRange, WiredTransform,
                   WiredTrack, WiredFailure, WiredGoal, WiredPreviewSize>;
INSTANTIATE_TYPED_TEST_SUITE_P(Media, WireTest, MediaKinds, WiredName);

TEST(MediaMessages, bringEachKindOfFailure) {
    for (int kind = 0; kind < static_cast<int>(ErrorKind::count); ++kind) {
        const Failure failure{static_cast<ErrorKind>(kind), {"one", "two"}};
        MessageWriter writer;
        put(writer, failure);
        MessageReader reader(copyOf(writer.message()));
        EXPECT_TRUE(isSame(getFailure(reader), failure)) << kind;
    }
}

TEST(MediaMessages, refuseCausesWithoutEnd) {
    RandomValues values(5);
    MessageWriter writer;
    put(writer, randomFailure(values, kMostFailures));
    MessageReader reader(copyOf(writer.message()));
    EXPECT_THROW(static_cast<void>(getFailure(reader)), BadMessage);
}

} // namespace
} // namespace media::process
