#include "Views/PlayerLayerView.h"

#include "FaultySystem/FaultySystem.h"
#include "Media/Player.h"
#include "Player/PlayerController.h"
#include "QtSupport/EventPump.h"
#include "TestSupport/Fixture.h"
#include "Views/PlayerContainerView.h"

#include <QImage>
#include <QTransform>

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <memory>
#include <new>

namespace {

using brisklet::PlayerContainerView;
using brisklet::PlayerController;
using brisklet::PlayerLayerView;
using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

/// Every pixel has a colour of its own, so that a picture that is shifted, turned or resampled
/// shows.
QRgb colourAt(int x, int y) {
    return qRgb(x, y, (x * 7 + y * 13) % 256);
}

media::TimedImage pattern(int width, int height) {
    auto image = std::make_shared<media::Image>();
    image->width = width;
    image->height = height;
    image->stride = width * 4;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const QRgb colour = colourAt(x, y);
            for (const int byte : {qBlue(colour), qGreen(colour), qRed(colour), 255})
                image->pixels.push_back(static_cast<std::uint8_t>(byte));
        }
    }
    return {.image = image, .time = {}};
}

/// What the view paints, over green, on a screen with `ratio` pixels to the unit.
QImage painted(PlayerLayerView& view, qreal ratio = 1) {
    QImage image(view.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::green);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

bool showsAll(const QImage& image, QPoint corner, int width, int height) {
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (image.pixel(corner + QPoint(x, y)) != colourAt(x, y))
                return false;
        }
    }
    return true;
}

TEST(PlayerLayerView, showsEachPixelAsItCame) {
    PlayerLayerView view;
    view.resize(100, 60);
    view.present(pattern(80, 60));
    pumpPending();
    const QImage image = painted(view);
    EXPECT_TRUE(showsAll(image, {10, 0}, 80, 60));
    EXPECT_EQ(view.videoRect(), QRectF(10, 0, 80, 60));
}

/// The player gives a frame again for which there was no memory.
TEST(PlayerLayerView, showsAFrameThatWasGivenAgainAfterMemoryWasRefused) {
    if (!testsupport::canRefuseAllocations())
        GTEST_SKIP() << "the sanitizers have allocations of their own";
    PlayerLayerView view;
    view.resize(100, 60);
    pumpPending();
    const media::TimedImage frame = pattern(80, 60);
    testsupport::refuseAllocation(testsupport::Allocations::ours, 0);
    EXPECT_THROW(view.present(frame), std::bad_alloc);
    testsupport::refuseAllocation(testsupport::Allocations::none, -1);
    view.present(frame);
    pumpPending();
    EXPECT_TRUE(showsAll(painted(view), {10, 0}, 80, 60));
}

TEST(PlayerLayerView, showsEachPixelAsItCameOnADenseScreen) {
    PlayerLayerView view;
    view.resize(50, 30);
    view.present(pattern(81, 60));
    pumpPending();
    const QImage image = painted(view, 2);
    ASSERT_EQ(image.size(), QSize(100, 60));
    EXPECT_TRUE(showsAll(image, {9, 0}, 81, 60));
}

TEST(PlayerLayerView, leavesTheBarsBesideThePictureAlone) {
    PlayerLayerView view;
    view.resize(100, 60);
    view.present(pattern(80, 60));
    pumpPending();
    const QImage image = painted(view);
    EXPECT_EQ(image.pixelColor(9, 30), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(90, 30), QColor(Qt::green));
}

TEST(PlayerLayerView, turnsThePictureWithoutResamplingIt) {
    PlayerLayerView view;
    view.resize(60, 80);
    view.setRotation(270);
    view.present(pattern(80, 60));
    pumpPending();
    const QImage image = painted(view);
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 60; ++x)
            ASSERT_EQ(image.pixel(x, y), colourAt(79 - y, x)) << x << ' ' << y;
    }
}

TEST(PlayerLayerView, showsNothingWithoutAPicture) {
    PlayerLayerView view;
    view.resize(100, 60);
    EXPECT_EQ(painted(view).pixelColor(50, 30), QColor(Qt::green));
    view.present(pattern(80, 60));
    view.present({});
    pumpPending();
    EXPECT_EQ(painted(view).pixelColor(50, 30), QColor(Qt::green));
    EXPECT_TRUE(view.videoRect().isEmpty());
}

TEST(PlayerLayerView, showsTheFirstFrameOfItsPlayersItem) {
    PlayerController controller;
    PlayerContainerView container(controller.player());
    container.resize(640, 480);
    container.show();
    controller.player()->replaceCurrentItem(std::make_shared<media::PlayerItem>(
        media::Asset::open(makeFixture({.displayRotation = 90}).path)));
    ASSERT_TRUE(pumpUntil([&] { return !container.layerView().videoRect().isEmpty(); }));
    // A portrait video: the whole height, and bars at both sides.
    EXPECT_EQ(container.layerView().videoRect(), QRectF(140, 0, 360, 480));
    controller.player()->replaceCurrentItem(nullptr);
    ASSERT_TRUE(pumpUntil([&] { return container.layerView().videoRect().isEmpty(); }));
}

TEST(PlayerLayerView, showsATurnedVideoAsSharpAsAnUprightOne) {
    const auto asset = media::Asset::open(makeFixture({.width = 640, .height = 480}).path);
    std::array<PlayerController, 2> controllers;
    PlayerLayerView upright;
    PlayerLayerView turned;
    upright.resize(640, 480);
    turned.resize(480, 640);
    turned.setRotation(90);
    upright.setPlayer(controllers[0].player());
    turned.setPlayer(controllers[1].player());
    for (PlayerController& controller : controllers)
        controller.player()->replaceCurrentItem(std::make_shared<media::PlayerItem>(asset));
    ASSERT_TRUE(pumpUntil([&] { return !upright.videoRect().isEmpty(); }));
    const QImage wanted = painted(upright).transformed(QTransform().rotate(90));
    EXPECT_TRUE(pumpUntil([&] { return painted(turned) == wanted; }, std::chrono::seconds(10)));
}

TEST(PlayerLayerView, mayGoWhileItsPlayerPlays) {
    PlayerController controller;
    auto container = std::make_unique<PlayerContainerView>(controller.player());
    container->resize(320, 240);
    container->show();
    controller.player()->replaceCurrentItem(
        std::make_shared<media::PlayerItem>(media::Asset::open(makeFixture({}).path)));
    controller.player()->play();
    ASSERT_TRUE(pumpUntil([&] { return controller.player()->statistics().shown > 3; }));
    container.reset();
    pumpPending();
    EXPECT_EQ(controller.player()->rate(), 1.0F);
}

TEST(PlayerLayerView, outlivesTheControllerOfItsPlayer) {
    auto controller = std::make_unique<PlayerController>();
    PlayerContainerView container(controller->player());
    container.show();
    controller->player()->play();
    controller.reset();
    pumpPending();
    EXPECT_EQ(container.layerView().player()->rate(), 0.0F);
}

TEST(PlayerContainerView, doesNotAssignAnUnchangedPlayerAgain) {
    PlayerController controller;
    PlayerContainerView container(controller.player());
    container.resize(100, 60);
    container.show();
    const auto asset = media::Asset::open(makeFixture({.duration = 2}).path);
    controller.player()->replaceCurrentItem(std::make_shared<media::PlayerItem>(asset));
    bool hasArrived = false;
    const media::Time start{0, media::kComparisonTimescale};
    controller.player()->seek(start, start, start, [&hasArrived](bool) { hasArrived = true; });
    ASSERT_TRUE(pumpUntil([&hasArrived] { return hasArrived; }));
    pumpPending();

    // A player that is assigned anew begins with nothing to show, then with its own frame.
    container.layerView().present(pattern(30, 60));
    pumpPending();
    const QRectF shown = container.layerView().videoRect();
    ASSERT_EQ(shown.size(), QSizeF(30, 60));
    container.setPlayer(controller.player());
    pumpPending();
    EXPECT_EQ(container.layerView().videoRect(), shown);

    PlayerController other;
    container.setPlayer(other.player());
    pumpPending();
    EXPECT_TRUE(container.layerView().videoRect().isEmpty());
    EXPECT_EQ(container.layerView().player(), other.player());
}

} // namespace
