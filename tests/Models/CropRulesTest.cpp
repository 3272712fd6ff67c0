#include "Models/CropRules.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace brisklet;
using media::Rect;

void expectNear(const Rect& actual, const Rect& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.width, expected.width, 1e-12);
    EXPECT_NEAR(actual.height, expected.height, 1e-12);
}

TEST(CropRules, movesInsideThePicture) {
    struct Case {
        media::Point by;
        Rect result;
    };

    const Rect start{0.2, 0.3, 0.5, 0.4};
    for (const Case& each : {Case{{0.1, -0.1}, {0.3, 0.2, 0.5, 0.4}},
                             {{-5, 0.1}, {0, 0.4, 0.5, 0.4}},
                             {{5, 5}, {0.5, 0.6, 0.5, 0.4}},
                             {{0.1, -5}, {0.3, 0, 0.5, 0.4}}})
        expectNear(crop::moved(start, each.by), each.result);
    EXPECT_EQ(crop::moved({0, 0, 1, 1}, {0.3, -0.4}), (Rect{0, 0, 1, 1}));
}

TEST(CropRules, resizesTheSidesThatAHandleHolds) {
    struct Case {
        CropHandle handle;
        Rect result;
    };

    const Rect start{0.2, 0.3, 0.5, 0.4};
    for (const Case& each : {Case{CropHandle::topLeft, {0.3, 0.35, 0.4, 0.35}},
                             {CropHandle::top, {0.2, 0.35, 0.5, 0.35}},
                             {CropHandle::topRight, {0.2, 0.35, 0.6, 0.35}},
                             {CropHandle::right, {0.2, 0.3, 0.6, 0.4}},
                             {CropHandle::bottomRight, {0.2, 0.3, 0.6, 0.45}},
                             {CropHandle::bottom, {0.2, 0.3, 0.5, 0.45}},
                             {CropHandle::bottomLeft, {0.3, 0.3, 0.4, 0.45}},
                             {CropHandle::left, {0.3, 0.3, 0.4, 0.4}}})
        expectNear(crop::resized(start, each.handle, {0.1, 0.05}), each.result);
}

TEST(CropRules, stopsResizingAtTheSmallestCropAndAtThePicture) {
    struct Case {
        CropHandle handle;
        media::Point by;
        Rect result;
    };

    const Rect start{0.2, 0.3, 0.5, 0.4};
    for (const Case& each : {Case{CropHandle::topLeft, {2, 2}, {0.65, 0.65, 0.05, 0.05}},
                             {CropHandle::topRight, {-2, 2}, {0.2, 0.65, 0.05, 0.05}},
                             {CropHandle::bottomRight, {-2, -2}, {0.2, 0.3, 0.05, 0.05}},
                             {CropHandle::bottomLeft, {2, -2}, {0.65, 0.3, 0.05, 0.05}},
                             {CropHandle::topLeft, {-2, -2}, {0, 0, 0.7, 0.7}},
                             {CropHandle::bottomRight, {2, 2}, {0.2, 0.3, 0.8, 0.7}},
                             {CropHandle::left, {2, 2}, {0.65, 0.3, 0.05, 0.4}},
                             {CropHandle::bottom, {2, 2}, {0.2, 0.3, 0.5, 0.7}}})
        expectNear(crop::resized(start, each.handle, each.by), each.result);
}

TEST(CropRules, turnsACropWithThePicture) {
    expectNear(crop::turnedLeft({0.1, 0.2, 0.3, 0.4}), {0.2, 0.6, 0.4, 0.3});
    Rect turned{0.1, 0.2, 0.3, 0.4};
    for (int turns = 0; turns < 4; ++turns)
        turned = crop::turnedLeft(turned);
    expectNear(turned, {0.1, 0.2, 0.3, 0.4});
}

TEST(CropRules, letsEachHandleHoldASideOfItsOwn) {
    for (const CropHandle handle : kCropHandles) {
        const auto holdsTheSame = [handle](CropHandle other) {
            return crop::horizontalSide(other) == crop::horizontalSide(handle) &&
                   crop::verticalSide(other) == crop::verticalSide(handle);
        };
        EXPECT_EQ(std::ranges::count_if(kCropHandles, holdsTheSame), 1);
        EXPECT_FALSE(crop::horizontalSide(handle) == CropSide::neither &&
                     crop::verticalSide(handle) == CropSide::neither);
    }
}

} // namespace
