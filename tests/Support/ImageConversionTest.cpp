#include "Support/ImageConversion.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

std::shared_ptr<media::Image> twoByTwo() {
    auto image = std::make_shared<media::Image>();
    image->width = 2;
    image->height = 2;
    image->stride = 12;
    image->pixels.assign(24, 0);
    const auto set = [&image](int x, int y, std::uint8_t red, std::uint8_t green,
                              std::uint8_t blue) {
        const auto at = static_cast<std::size_t>(y * image->stride + x * 4);
        image->pixels[at] = blue;
        image->pixels[at + 1] = green;
        image->pixels[at + 2] = red;
        image->pixels[at + 3] = 255;
    };
    set(0, 0, 255, 0, 0);
    set(1, 0, 0, 255, 0);
    set(0, 1, 0, 0, 255);
    set(1, 1, 1, 2, 3);
    return image;
}

TEST(ImageConversion, showsTheSamePixels) {
    const QImage image = brisklet::toQImage(twoByTwo());
    ASSERT_EQ(image.size(), QSize(2, 2));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(1, 0), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(0, 1), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(1, 2, 3));
}

TEST(ImageConversion, sharesThePixelsAndKeepsThemAliveAsLongAsNeeded) {
    auto source = twoByTwo();
    const std::weak_ptr<media::Image> weak = source;
    const std::uint8_t* const pixels = source->pixels.data();
    QImage image = brisklet::toQImage(std::move(source));
    EXPECT_EQ(image.constBits(), pixels);
    EXPECT_FALSE(weak.expired());
    QImage changed = image;
    changed.fill(Qt::white);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(255, 0, 0));
    image = QImage();
    EXPECT_TRUE(weak.expired());
}

TEST(ImageConversion, makesNothingOfNothing) {
    EXPECT_TRUE(brisklet::toQImage(nullptr).isNull());
}

} // namespace
