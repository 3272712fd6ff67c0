#include "Export/AVFoundationExporter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <ostream>

namespace {

using brisklet::AVFoundationExporter;
using brisklet::ExportRequest;
using media::AffineTransform;
using media::AssetTrack;
using media::Rect;
using media::Time;
using media::VideoComposition;

const AffineTransform kQuarterTurn{0, 1, -1, 0, 0, 0};

AssetTrack track(double width, double height, AffineTransform preferred = {},
                 float frameRate = 30) {
    AssetTrack result;
    result.naturalSize = {width, height};
    result.preferredTransform = preferred;
    result.nominalFrameRate = frameRate;
    return result;
}

VideoComposition compose(const AssetTrack& source, int rotation = 0,
                         const std::optional<Rect>& crop = std::nullopt,
                         std::optional<int> cap = std::nullopt) {
    return AVFoundationExporter::transformComposition(source, rotation, crop, cap);
}

void expectSize(const VideoComposition& composition, int width, int height) {
    EXPECT_EQ(composition.renderWidth, width);
    EXPECT_EQ(composition.renderHeight, height);
}

/// Where a point of the natural frame comes to lie on the canvas.
void expectPoint(const VideoComposition& composition, media::Point from, media::Point to) {
    const media::Point mapped = composition.transform.apply(from);
    EXPECT_NEAR(mapped.x, to.x, 1e-9);
    EXPECT_NEAR(mapped.y, to.y, 1e-9);
}

TEST(OutputGeometry, capsATurnedSourceByItsShortEdge) {
    const auto composition = compose(track(1920, 1080, kQuarterTurn), 0, std::nullopt, 720);
    expectSize(composition, 720, 1280);
    // The natural frame's top left corner is the turned picture's top right one.
    expectPoint(composition, {0, 0}, {720, 0});
    expectPoint(composition, {1920, 1080}, {0, 1280});
}

TEST(OutputGeometry, cropsInPixelsOfTheDisplayedPicture) {
    const auto composition = compose(track(3840, 2160), 0, Rect{0.25, 0.25, 0.5, 0.5});
    expectSize(composition, 1920, 1080);
    expectPoint(composition, {960, 540}, {0, 0});
    expectPoint(composition, {2880, 1620}, {1920, 1080});
}

TEST(OutputGeometry, roundsTheCropToWholePixels) {
    // 0.1 × 333 = 33.3 and 0.5 × 333 = 166.5, which goes up.
    const auto composition = compose(track(333, 333), 0, Rect{0.1, 0.5, 0.5, 0.25});
    expectPoint(composition, {33, 167}, {0, 0});
    expectSize(composition, 166, 82);
}

TEST(OutputGeometry, neverEnlarges) {
    const auto composition = compose(track(1000, 1000), 0, std::nullopt, 2160);
    expectSize(composition, 1000, 1000);
    EXPECT_EQ(composition.transform, AffineTransform{});
}

TEST(OutputGeometry, leavesAPictureOfTheCapsOwnSizeAlone) {
    const auto composition = compose(track(1280, 720), 0, std::nullopt, 720);
    expectSize(composition, 1280, 720);
    EXPECT_EQ(composition.transform, AffineTransform{});
}

TEST(OutputGeometry, rendersOddSizesEvenAndRoundedDown) {
    const auto composition = compose(track(1281, 721), 90);
    expectSize(composition, 720, 1280);
    // Only the canvas is cut; the picture keeps its scale.
    expectPoint(composition, {0, 721}, {0, 0});
    expectSize(compose(track(2562, 1442), 0, Rect{0, 0, 0.5, 0.5}), 1280, 720);
}

TEST(OutputGeometry, turnsByQuartersAndKeepsThePictureOnTheCanvas) {
    const AssetTrack source = track(400, 200);
    const auto right = compose(source, 90);
    expectSize(right, 200, 400);
    expectPoint(right, {0, 0}, {200, 0});
    expectPoint(right, {400, 200}, {0, 400});
    const auto around = compose(source, 180);
    expectSize(around, 400, 200);
    expectPoint(around, {0, 0}, {400, 200});
    const auto left = compose(source, 270);
    expectSize(left, 200, 400);
    expectPoint(left, {0, 0}, {0, 400});
    expectPoint(left, {400, 0}, {0, 0});
}

TEST(OutputGeometry, readsTheRotationModulo360) {
    const AssetTrack source = track(400, 200);
    EXPECT_EQ(compose(source, -90).transform, compose(source, 270).transform);
    EXPECT_EQ(compose(source, 450).transform, compose(source, 90).transform);
    EXPECT_EQ(compose(source, -360).transform, AffineTransform{});
    EXPECT_EQ(compose(source, std::numeric_limits<int>::min()).transform, AffineTransform{});
}

TEST(OutputGeometry, turnsByQuartersOnly) {
    for (const int degrees : {45, 1, 89, 91, -45, 359}) {
        const auto composition = compose(track(400, 200), degrees);
        EXPECT_EQ(composition.transform, AffineTransform{}) << degrees;
        expectSize(composition, 400, 200);
    }
}

TEST(OutputGeometry, putsAllStepsTogetherInOrder) {
    // 1080 × 1920 upright, turned to 1920 × 1080, cropped to the right half, capped at 480.
    const auto composition =
        compose(track(1920, 1080, kQuarterTurn), 270, Rect{0.5, 0, 0.5, 1}, 480);
    expectSize(composition, 480, 540);
    // Both quarter turns undo each other, so the crop is the natural frame's right half.
    expectPoint(composition, {960, 0}, {0, 0});
    expectPoint(composition, {1920, 1080}, {480, 540});
}

TEST(OutputGeometry, putsAMirroredSourceUpright) {
    const auto composition = compose(track(400, 200, {-1, 0, 0, 1, 0, 0}));
    expectSize(composition, 400, 200);
    expectPoint(composition, {400, 0}, {0, 0});
}

TEST(OutputGeometry, rendersAtLeastTwoPixels) {
    expectSize(compose(track(400, 200), 0, Rect{0.5, 0.5, 0, 0}), 2, 2);
    expectSize(compose(track(400, 200), 0, Rect{0.5, 0.5, 0, 0}, 480), 2, 2);
    expectSize(compose(track(1, 1)), 2, 2);
}

TEST(OutputGeometry, roundsTheFrameRate) {
    const auto duration = [](float rate) {
        return compose(track(400, 200, {}, rate)).frameDuration;
    };
    EXPECT_EQ(duration(0), (Time{1, 30}));
    EXPECT_EQ(duration(-1), (Time{1, 30}));
    EXPECT_EQ(duration(29.97F), (Time{1, 30}));
    EXPECT_EQ(duration(23.976F), (Time{1, 24}));
    EXPECT_EQ(duration(25), (Time{1, 25}));
    EXPECT_EQ(duration(59.94F), (Time{1, 60}));
    EXPECT_EQ(duration(12.5F), (Time{1, 13}));
    EXPECT_EQ(duration(0.2F), (Time{1, 1}));
    EXPECT_EQ(duration(std::nanf("")), (Time{1, 30}));
    EXPECT_EQ(duration(-std::numeric_limits<float>::infinity()), (Time{1, 30}));
}

TEST(OutputGeometryDeathTest, endsTheProgramOnAnEndlessFrameRate) {
    EXPECT_DEATH(compose(track(4, 2, {}, std::numeric_limits<float>::infinity())), "frame rate");
    EXPECT_DEATH(compose(track(4, 2, {}, 3e9F)), "frame rate");
}

TEST(OutputGeometry, isNeededForACropATurnOrACapOnly) {
    const AssetTrack source = track(400, 200);
    const auto isNeeded = [&source](const ExportRequest& request) {
        return AVFoundationExporter::videoComposition(source, request).has_value();
    };
    EXPECT_FALSE(isNeeded({}));
    EXPECT_FALSE(isNeeded({.rotation = 360}));
    EXPECT_FALSE(isNeeded({.rotation = -360}));
    EXPECT_TRUE(isNeeded({.rotation = 90}));
    EXPECT_TRUE(isNeeded({.rotation = 45}));
    EXPECT_TRUE(isNeeded({.cropRect = Rect{0, 0, 1, 1}}));
    EXPECT_TRUE(isNeeded({.maxShortEdge = 2160}));
}

} // namespace
