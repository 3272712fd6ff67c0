#include "Media/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace media {

namespace {

void expectNear(const Point& actual, const Point& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
}

void expectNear(const Rect& actual, const Rect& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
    EXPECT_NEAR(actual.width, expected.width, 1e-9);
    EXPECT_NEAR(actual.height, expected.height, 1e-9);
}

constexpr AffineTransform kQuarterTurn{0, 1, -1, 0, 0, 0};
constexpr AffineTransform kMirroring{-1, 0, 0, 1, 0, 0};

TEST(AffineTransform, isTheIdentityUnlessToldOtherwise) {
    EXPECT_EQ(AffineTransform{}.apply(Point{3, -7}), (Point{3, -7}));
    EXPECT_EQ(AffineTransform{}.determinant(), 1);
}

TEST(AffineTransform, turnsClockwiseOnAScreenWhoseYGrowsDownward) {
    // The right becomes the bottom, the bottom the left.
    EXPECT_EQ(kQuarterTurn.apply(Point{1, 0}), (Point{0, 1}));
    EXPECT_EQ(kQuarterTurn.apply(Point{0, 1}), (Point{-1, 0}));
}

TEST(AffineTransform, appliesTheLeftOperandOfAConcatenationFirst) {
    const auto moveThenScale =
        AffineTransform::translation(10, 20).concatenated(AffineTransform::scale(2, 3));
    EXPECT_EQ(moveThenScale.apply(Point{1, 1}), (Point{22, 63}));
    const auto scaleThenMove =
        AffineTransform::scale(2, 3).concatenated(AffineTransform::translation(10, 20));
    EXPECT_EQ(scaleThenMove.apply(Point{1, 1}), (Point{12, 23}));
    const auto turnThenMirror = kQuarterTurn.concatenated(kMirroring);
    EXPECT_EQ(turnThenMirror.apply(Point{2, 5}), (Point{5, 2}));
}

TEST(AffineTransform, concatenatesLikeApplyingOneAfterTheOther) {
    const AffineTransform first{0.3, -1.2, 0.8, 2.5, 11, -4};
    const AffineTransform second{-1.1, 0.4, 0.9, 0.7, -3, 8};
    for (const Point point : {Point{0, 0}, Point{5, -2}, Point{-100, 37.5}})
        expectNear(first.concatenated(second).apply(point), second.apply(first.apply(point)));
    EXPECT_NEAR(first.concatenated(second).determinant(),
                first.determinant() * second.determinant(), 1e-9);
}

TEST(AffineTransform, isUndoneByItsInverse) {
    const AffineTransform transforms[] = {
        {},
        kQuarterTurn,
        kMirroring,
        AffineTransform::translation(-9, 0.25),
        AffineTransform::scale(2.0 / 3, 1.5),
        {0.3, -1.2, 0.8, 2.5, 11, -4},
    };
    for (const AffineTransform& transform : transforms) {
        const Point point{12.5, -8};
        expectNear(transform.inverted().apply(transform.apply(point)), point);
        expectNear(transform.apply(transform.inverted().apply(point)), point);
    }
}

TEST(AffineTransform, givesTheBoundingBoxOfARectangle) {
    const Rect frame{0, 0, 1920, 1080};
    EXPECT_EQ(AffineTransform{}.apply(frame), frame);
    EXPECT_EQ(kQuarterTurn.apply(frame), (Rect{-1080, 0, 1080, 1920}));
    EXPECT_EQ(kMirroring.apply(frame), (Rect{-1920, 0, 1920, 1080}));
    EXPECT_EQ(AffineTransform::scale(-0.5, -2).apply(Rect{2, 3, 4, 5}), (Rect{-3, -16, 2, 10}));
    const double half = std::numbers::sqrt2 / 2;
    const double diagonal = 10 * std::numbers::sqrt2;
    expectNear(AffineTransform{half, half, -half, half, 0, 0}.apply(Rect{0, 0, 10, 10}),
               {-diagonal / 2, 0, diagonal, diagonal});
}

TEST(AffineTransform, isItselfAgainAfterFourQuarterTurns) {
    AffineTransform transform;
    for (int i = 0; i < 4; ++i)
        transform = transform.concatenated(kQuarterTurn);
    EXPECT_EQ(transform, AffineTransform{});
}

TEST(Rect, namesItsSides) {
    const Rect rect{3, 5, 10, 20};
    EXPECT_EQ(rect.minX(), 3);
    EXPECT_EQ(rect.minY(), 5);
    EXPECT_EQ(rect.maxX(), 13);
    EXPECT_EQ(rect.maxY(), 25);
    EXPECT_EQ(rect.size(), (Size{10, 20}));
}

TEST(Rect, movesItsSidesInwardAndOutward) {
    EXPECT_EQ((Rect{0, 0, 10, 20}.insetBy(1, 2)), (Rect{1, 2, 8, 16}));
    EXPECT_EQ((Rect{0, 0, 1, 1}.insetBy(-0.5, -0.25)), (Rect{-0.5, -0.25, 2, 1.5}));
}

TEST(Rect, containsWhatLiesInsideWithCommonEdges) {
    struct Case {
        Rect other;
        bool isInside;
    };

    const Rect rect{0, 0, 10, 10};
    for (const auto& [other, isInside] : {
             Case{{0, 0, 10, 10}, true},
             Case{{2, 3, 4, 5}, true},
             Case{{10, 10, 0, 0}, true},
             Case{{-0.001, 0, 5, 5}, false},
             Case{{0, -0.001, 5, 5}, false},
             Case{{6, 0, 4.001, 5}, false},
             Case{{0, 6, 5, 4.001}, false},
             Case{{20, 20, 1, 1}, false},
         })
        EXPECT_EQ(rect.contains(other), isInside) << other.x << ", " << other.y;
}

TEST(Rect, intersectsInTheCommonPart) {
    struct Case {
        Rect other;
        Rect common;
    };

    const Rect rect{0, 0, 10, 10};
    for (const auto& [other, common] : {
             Case{{2, 3, 4, 5}, {2, 3, 4, 5}},
             Case{{-5, -5, 100, 100}, {0, 0, 10, 10}},
             Case{{5, 6, 10, 10}, {5, 6, 5, 4}},
             Case{{10, 0, 5, 5}, {}},
             Case{{0, -5, 5, 5}, {}},
             Case{{30, 30, 5, 5}, {}},
         })
        EXPECT_EQ(rect.intersected(other), common) << other.x << ", " << other.y;
}

TEST(FitAspect, fillsTheTighterSideAndCentres) {
    struct Case {
        Size size;
        Rect bounds;
        Rect fitted;
    };

    for (const auto& [size, bounds, fitted] : {
             Case{{1920, 1080}, {0, 0, 1920, 1080}, {0, 0, 1920, 1080}},
             Case{{200, 100}, {0, 0, 100, 100}, {0, 25, 100, 50}},
             Case{{100, 200}, {0, 0, 100, 100}, {25, 0, 50, 100}},
             Case{{2, 1}, {10, 20, 400, 400}, {10, 120, 400, 200}},
             Case{{1, 1}, {-10, -10, 20, 40}, {-10, 0, 20, 20}},
         })
        expectNear(fitAspect(size, bounds), fitted);
}

TEST(FitAspect, isEmptyAtTheCentreForASizeWithoutArea) {
    for (const Size size : {Size{0, 0}, Size{0, 10}, Size{10, 0}})
        EXPECT_EQ(fitAspect(size, {10, 20, 30, 40}), (Rect{25, 40, 0, 0}));
}

} // namespace

} // namespace media
