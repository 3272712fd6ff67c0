#include "Views/Timeline/TimelineGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace brisklet;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

/// Ten seconds on an axis of 200 points.
TimelineGeometry tenSeconds() {
    return {.duration = 10,
            .trimStart = 2,
            .trimEnd = 7,
            .currentTime = 5,
            .width = 224,
            .stripHeight = 56,
            .handleWidth = 12};
}

TEST(TimelineGeometry, putsTheAxisBetweenTheHandles) {
    const TimelineGeometry geometry = tenSeconds();
    EXPECT_EQ(geometry.x(0), 12);
    EXPECT_EQ(geometry.x(2.5), 62);
    EXPECT_EQ(geometry.x(10), 212);
    EXPECT_EQ(geometry.x(10, 124), 112);
    EXPECT_EQ(geometry.x(12), 252) << "times beyond the file are not limited";
    EXPECT_EQ(geometry.x(-1), -8);
}

TEST(TimelineGeometry, putsEverythingAtTheStartOfTheAxisWithoutADuration) {
    for (const double duration : {0.0, -5.0, kNotANumber}) {
        TimelineGeometry geometry = tenSeconds();
        geometry.duration = duration;
        EXPECT_EQ(geometry.x(3), 12) << duration;
        EXPECT_EQ(geometry.rangeFrame(), QRectF(12, 0, 0, 56));
        EXPECT_EQ(geometry.marker(EditMarker::trimStart), QRectF(0, 0, 12, 56));
        EXPECT_EQ(geometry.marker(EditMarker::trimEnd), QRectF(12, 0, 12, 56));
        EXPECT_EQ(geometry.marker(EditMarker::playhead), QRectF(11, 0, 2, 56));
        EXPECT_EQ(geometry.time(100), 0);
    }
}

TEST(TimelineGeometry, givesFiniteResultsForAnyTimes) {
    for (const double duration : {10.0, 1e-310, kInfinity, kNotANumber}) {
        for (const double time : {kInfinity, -kInfinity, kNotANumber}) {
            const TimelineGeometry geometry{.duration = duration,
                                            .trimStart = time,
                                            .trimEnd = time,
                                            .currentTime = time,
                                            .width = 224,
                                            .stripHeight = 56,
                                            .handleWidth = 12};
            for (const QRectF& rect :
                 {geometry.leftShade(), geometry.rightShade(), geometry.rangeFrame(),
                  geometry.marker(EditMarker::playhead), geometry.marker(EditMarker::trimStart)})
                EXPECT_TRUE(std::isfinite(rect.x()) && std::isfinite(rect.width()));
            EXPECT_TRUE(std::isfinite(geometry.time(100)));
        }
    }
}

TEST(TimelineGeometry, turnsPositionsIntoTimesInsideTheFile) {
    struct Case {
        double position;
        double time;
    };

    const TimelineGeometry geometry = tenSeconds();
    for (const Case& each :
         {Case{-1000, 0}, {0, 0}, {12, 0}, {13, 0.05}, {112, 5}, {212, 10}, {224, 10}, {1e9, 10}})
        EXPECT_DOUBLE_EQ(geometry.time(each.position), each.time) << each.position;
}

TEST(TimelineGeometry, yieldsTimeZeroOnAStripWithoutRoom) {
    for (const double width : {24.0, 10.0, 0.0}) {
        TimelineGeometry geometry = tenSeconds();
        geometry.width = width;
        EXPECT_EQ(geometry.filmstrip().width(), 0) << width;
        for (const double position : {-5.0, 5.0, 12.0, 23.0, 500.0})
            EXPECT_EQ(geometry.time(position), 0);
    }
}

TEST(TimelineGeometry, laysOutTheLayers) {
    const TimelineGeometry geometry = tenSeconds();
    EXPECT_EQ(geometry.filmstrip(), QRectF(12, 0, 200, 56));
    EXPECT_EQ(geometry.leftShade(), QRectF(12, 0, 40, 56));
    EXPECT_EQ(geometry.rightShade(), QRectF(152, 0, 60, 56));
    EXPECT_EQ(geometry.rangeFrame(), QRectF(52, 0, 100, 56));
    EXPECT_EQ(geometry.marker(EditMarker::playhead), QRectF(111, 0, 2, 56));
    EXPECT_EQ(geometry.marker(EditMarker::trimStart), QRectF(40, 0, 12, 56));
    EXPECT_EQ(geometry.marker(EditMarker::trimEnd), QRectF(152, 0, 12, 56));
}

TEST(TimelineGeometry, makesNoShadeWiderThanWhatIsCutAway) {
    TimelineGeometry geometry = tenSeconds();
    geometry.trimStart = 0;
    geometry.trimEnd = 10;
    EXPECT_EQ(geometry.leftShade().width(), 0);
    EXPECT_EQ(geometry.rightShade().width(), 0);
    geometry.trimStart = -3;
    geometry.trimEnd = 12;
    EXPECT_EQ(geometry.leftShade().width(), 0);
    EXPECT_EQ(geometry.rightShade().width(), 0);
    geometry.trimEnd = -4;
    EXPECT_EQ(geometry.rangeFrame().width(), 0);
}

TEST(TimelineGeometry, spansTheFilmstripWithTilesWhateverTheirNumber) {
    const TimelineGeometry geometry = tenSeconds();
    for (const int count : {1, 2, 7, 12}) {
        EXPECT_EQ(geometry.tile(0, count).left(), 12);
        EXPECT_EQ(geometry.tile(count - 1, count).right(), 212);
        for (int index = 1; index < count; ++index)
            EXPECT_DOUBLE_EQ(geometry.tile(index, count).left(),
                             geometry.tile(index - 1, count).right());
    }
}

TEST(TimelineGeometry, findsWhatAPressDrags) {
    struct Case {
        QPointF point;
        EditMarker marker;
    };

    const TimelineGeometry geometry = tenSeconds();
    for (const Case& each : {Case{{39, 20}, EditMarker::playhead},
                             {{41, 1}, EditMarker::trimStart},
                             {{51, 55}, EditMarker::trimStart},
                             {{53, 20}, EditMarker::playhead},
                             {{112, 20}, EditMarker::playhead},
                             {{151, 20}, EditMarker::playhead},
                             {{153, 20}, EditMarker::trimEnd},
                             {{163, 20}, EditMarker::trimEnd},
                             {{165, 20}, EditMarker::playhead},
                             {{45, 57}, EditMarker::playhead}})
        EXPECT_EQ(geometry.draggedAt(each.point), each.marker) << each.point.x();
}

TEST(TimelineGeometry, dragsTheTrailingHandleWhereItCoversTheLeadingOne) {
    TimelineGeometry geometry = tenSeconds();
    geometry.trimEnd = geometry.trimStart - 0.5;
    ASSERT_TRUE(geometry.marker(EditMarker::trimStart).contains(QPointF(47, 20)));
    ASSERT_TRUE(geometry.marker(EditMarker::trimEnd).contains(QPointF(47, 20)));
    EXPECT_EQ(geometry.draggedAt({47, 20}), EditMarker::trimEnd);
}

} // namespace
