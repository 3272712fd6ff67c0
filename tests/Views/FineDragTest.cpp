#include "Views/Timeline/FineDrag.h"

#include <gtest/gtest.h>

namespace {

using namespace brisklet;

constexpr double kLow = 12;
constexpr double kHigh = 812;

TEST(FineDrag, slowsDownWithShiftOnlyAndMoreFarAboveAndBelowTheStrip) {
    struct Case {
        double y;
        Qt::KeyboardModifiers modifiers;
        DragSpeed speed;
    };

    for (const Case& each : {Case{28, {}, DragSpeed::full},
                             {-500, {}, DragSpeed::full},
                             {500, Qt::ControlModifier, DragSpeed::full},
                             {28, Qt::ShiftModifier, DragSpeed::tenth},
                             {28, Qt::ShiftModifier | Qt::AltModifier, DragSpeed::tenth},
                             {-56, Qt::ShiftModifier, DragSpeed::tenth},
                             {112, Qt::ShiftModifier, DragSpeed::tenth},
                             {-57, Qt::ShiftModifier, DragSpeed::hundredth},
                             {113, Qt::ShiftModifier, DragSpeed::hundredth}})
        EXPECT_EQ(FineDrag::speedAt({400, each.y}, 56, each.modifiers), each.speed) << each.y;
}

TEST(FineDrag, isAtThePointerAtFullSpeed) {
    FineDrag drag(100.1);
    for (const double pointer : {100.1, 0.3, -50.7, 900.9, 333.3})
        EXPECT_EQ(drag.moveTo(pointer, DragSpeed::full, kLow, kHigh), pointer);
}

TEST(FineDrag, doesNotJumpWhenTheSpeedChanges) {
    FineDrag drag(100);
    EXPECT_DOUBLE_EQ(drag.moveTo(200, DragSpeed::full, kLow, kHigh), 200);
    EXPECT_DOUBLE_EQ(drag.moveTo(200, DragSpeed::tenth, kLow, kHigh), 200);
    EXPECT_DOUBLE_EQ(drag.moveTo(250, DragSpeed::tenth, kLow, kHigh), 205);
    EXPECT_DOUBLE_EQ(drag.moveTo(250, DragSpeed::hundredth, kLow, kHigh), 205);
    EXPECT_DOUBLE_EQ(drag.moveTo(150, DragSpeed::hundredth, kLow, kHigh), 204);
    EXPECT_DOUBLE_EQ(drag.moveTo(150, DragSpeed::full, kLow, kHigh), 204);
    EXPECT_DOUBLE_EQ(drag.moveTo(151, DragSpeed::full, kLow, kHigh), 205);
}

TEST(FineDrag, turnsRoundAtALimitAtOnce) {
    FineDrag drag(400, 20);
    EXPECT_DOUBLE_EQ(drag.moveTo(100, DragSpeed::tenth, kLow, kHigh), kLow);
    EXPECT_DOUBLE_EQ(drag.moveTo(110, DragSpeed::tenth, kLow, kHigh), kLow + 1);
    EXPECT_DOUBLE_EQ(drag.moveTo(100'000, DragSpeed::tenth, kLow, kHigh), kHigh);
    EXPECT_DOUBLE_EQ(drag.moveTo(99'990, DragSpeed::tenth, kLow, kHigh), kHigh - 1);
}

} // namespace
