#include "Views/PictureLayout.h"

#include <gtest/gtest.h>

namespace {

using brisklet::PictureLayout;

QPointF mapped(const PictureLayout& layout, qreal x, qreal y) {
    return layout.transform.map(QPointF(x, y));
}

TEST(PictureLayout, showsAPortraitPictureWholeWithBarsAtBothSides) {
    const auto layout = PictureLayout::fit({1080, 1920}, 0, QRect(0, 0, 1600, 960));
    EXPECT_EQ(layout.rect, QRect(530, 0, 540, 960));
    EXPECT_TRUE(layout.isScaled);
    EXPECT_EQ(mapped(layout, 0, 0), QPointF(530, 0));
    EXPECT_EQ(mapped(layout, 1080, 1920), QPointF(1070, 960));
}

TEST(PictureLayout, showsAWidePictureWholeWithBarsAboveAndBelow) {
    const auto layout = PictureLayout::fit({1920, 800}, 0, QRect(0, 0, 960, 960));
    EXPECT_EQ(layout.rect, QRect(0, 280, 960, 400));
}

TEST(PictureLayout, enlargesAPictureThatIsSmallerThanTheView) {
    const auto layout = PictureLayout::fit({320, 240}, 0, QRect(10, 20, 640, 480));
    EXPECT_EQ(layout.rect, QRect(10, 20, 640, 480));
    EXPECT_TRUE(layout.isScaled);
}

TEST(PictureLayout, doesNotResampleAPictureThatFitsToWithinItsRounding) {
    // 333 × 187 is what fits of a 16:9 picture into 333 × 400; exactly it would be 187.3 high.
    const auto exact = PictureLayout::fit({333, 187}, 0, QRect(0, 0, 333, 400));
    EXPECT_EQ(exact.rect, QRect(0, 106, 333, 187));
    EXPECT_FALSE(exact.isScaled);
    const auto narrower = PictureLayout::fit({332, 187}, 0, QRect(0, 0, 333, 400));
    EXPECT_EQ(narrower.rect.size(), QSize(332, 187));
    EXPECT_FALSE(narrower.isScaled);
}

TEST(PictureLayout, turnsClockwiseByQuarters) {
    const QRect view(0, 0, 200, 400);
    const auto right = PictureLayout::fit({400, 200}, 90, view);
    EXPECT_EQ(right.rect, view);
    EXPECT_FALSE(right.isScaled);
    EXPECT_EQ(mapped(right, 0, 0), QPointF(200, 0));
    EXPECT_EQ(mapped(right, 400, 200), QPointF(0, 400));

    const auto left = PictureLayout::fit({400, 200}, 270, view);
    EXPECT_EQ(mapped(left, 0, 0), QPointF(0, 400));
    EXPECT_EQ(mapped(left, 400, 0), QPointF(0, 0));
    EXPECT_EQ(PictureLayout::fit({400, 200}, -90, view).transform, left.transform);

    const auto around = PictureLayout::fit({400, 200}, 180, QRect(0, 0, 400, 200));
    EXPECT_EQ(mapped(around, 0, 0), QPointF(400, 200));
}

TEST(PictureLayout, isEmptyWithoutAPictureOrASpace) {
    EXPECT_TRUE(PictureLayout::fit({0, 0}, 0, QRect(0, 0, 10, 10)).rect.isEmpty());
    EXPECT_TRUE(PictureLayout::fit({10, 10}, 0, QRect(0, 0, 0, 10)).rect.isEmpty());
}

TEST(PictureLayout, keepsAtLeastOnePixelOfAVeryNarrowPicture) {
    EXPECT_EQ(PictureLayout::fit({1, 4000}, 0, QRect(0, 0, 100, 100)).rect.size(), QSize(1, 100));
}

} // namespace
