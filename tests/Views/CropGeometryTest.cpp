#include "Views/Crop/CropGeometry.h"

#include "Views/Crop/CropKeys.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace brisklet;

const CropGeometry kGeometry{.videoRect = {100, 50, 800, 400}, .handleSize = 12};

TEST(CropGeometry, liesOnThePicture) {
    EXPECT_EQ(kGeometry.toView({0, 0, 1, 1}), QRectF(100, 50, 800, 400));
    EXPECT_EQ(kGeometry.toView({0.25, 0.5, 0.5, 0.25}), QRectF(300, 250, 400, 100));
}

TEST(CropGeometry, measuresWaysInFractionsOfThePicture) {
    EXPECT_EQ(kGeometry.toPicture({80, -40}), (media::Point{0.1, -0.1}));
    EXPECT_EQ((CropGeometry{.videoRect = {0, 0, 0, 400}}.toPicture({80, 40})), std::nullopt);
    EXPECT_EQ((CropGeometry{.videoRect = {0, 0, 400, 0}}.toPicture({80, 0})), std::nullopt);
}

TEST(CropGeometry, putsTheHandlesOnCornersAndEdges) {
    struct Case {
        CropHandle handle;
        QPointF position;
    };

    const QRectF rect(10, 20, 100, 60);
    for (const Case& each : {Case{CropHandle::topLeft, {10, 20}},
                             {CropHandle::top, {60, 20}},
                             {CropHandle::topRight, {110, 20}},
                             {CropHandle::right, {110, 50}},
                             {CropHandle::bottomRight, {110, 80}},
                             {CropHandle::bottom, {60, 80}},
                             {CropHandle::bottomLeft, {10, 80}},
                             {CropHandle::left, {10, 50}}}) {
        EXPECT_EQ(CropGeometry::position(each.handle, rect), each.position);
        EXPECT_EQ(kGeometry.handleFrame(each.handle, rect).center(), each.position);
        EXPECT_EQ(kGeometry.handleFrame(each.handle, rect).size(), QSizeF(12, 12));
    }
}

TEST(CropGeometry, findsHandlesInTheirCircles) {
    const QRectF rect(100, 100, 300, 200);
    EXPECT_EQ(kGeometry.handleAt({106, 100}, rect), CropHandle::topLeft);
    EXPECT_EQ(kGeometry.handleAt({96, 96}, rect), CropHandle::topLeft);
    EXPECT_EQ(kGeometry.handleAt({95, 95}, rect), std::nullopt) << "in the corner of its frame";
    EXPECT_EQ(kGeometry.handleAt({400, 205}, rect), CropHandle::right);
    EXPECT_EQ(kGeometry.handleAt({250, 200}, rect), std::nullopt);
    // Where circles overlap the one drawn last is on top.
    EXPECT_EQ(kGeometry.handleAt({100, 100}, {100, 100, 4, 4}), CropHandle::left);
    EXPECT_EQ(kGeometry.handleAt({104, 100}, {100, 100, 4, 4}), CropHandle::left);
}

TEST(CropKey, isADragOfAFewPoints) {
    struct Case {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        std::optional<CropKey> result;
    };

    const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::ShiftModifier;
    for (const Case& each :
         {Case{Qt::Key_Left, {}, CropKey{{-1, 0}, {}}},
          Case{Qt::Key_Down, Qt::ShiftModifier, CropKey{{0, 10}, {}}},
          Case{Qt::Key_Right, Qt::ControlModifier, CropKey{{1, 0}, CropHandle::right}},
          Case{Qt::Key_Up, both, CropKey{{0, -10}, CropHandle::bottom}},
          Case{Qt::Key_Left, Qt::AltModifier, CropKey{{-1, 0}, CropHandle::left}},
          Case{Qt::Key_Up, Qt::AltModifier, CropKey{{0, -1}, CropHandle::top}},
          Case{Qt::Key_Up, Qt::AltModifier | Qt::ControlModifier, std::nullopt},
          Case{Qt::Key_Home, {}, std::nullopt}})
        EXPECT_EQ(CropKey::of(each.key, each.modifiers), each.result) << each.key;
}

} // namespace
