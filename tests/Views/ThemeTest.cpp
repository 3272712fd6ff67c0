#include "Views/Painting/Theme.h"

#include "Views/Controls/ControlLabels.h"
#include "Views/Painting/Symbols.h"
#include "Views/Painting/TabularText.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <vector>

namespace brisklet {
namespace {

QPalette paletteOf(const QColor& window, const QColor& text, const QColor& highlight,
                   const QColor& highlightedText) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, highlightedText);
    return palette;
}

/// Light and dark desktops, with accents that are easy and hard to read.
std::vector<QPalette> palettes() {
    std::vector<QPalette> all;
    for (const QColor& highlight : {QColor(0x30, 0x8c, 0xc6), QColor(0xff, 0xd6, 0x0a),
                                    QColor(0x10, 0x10, 0x40), QColor(0x8a, 0x8a, 0x8a)}) {
        for (const QColor& ink : {QColor(Qt::white), QColor(Qt::black)}) {
            all.push_back(paletteOf(QColor(0xef, 0xef, 0xef), Qt::black, highlight, ink));
            all.push_back(
                paletteOf(QColor(0x23, 0x23, 0x26), QColor(0xf0, 0xf0, 0xf0), highlight, ink));
        }
    }
    return all;
}

TEST(Theme, isLegibleOnLightAndDarkDesktops) {
    for (const QPalette& palette : palettes()) {
        const QColor window = palette.color(QPalette::Window);
        EXPECT_GE(theme::contrast(theme::secondary(palette), window), 4.5);
        EXPECT_GE(theme::contrast(theme::accent(palette), window), 3.0);
        EXPECT_GE(theme::contrast(theme::red(palette), window), 3.0);
        EXPECT_GE(theme::contrast(theme::onAccentFill(palette), theme::accentFill(palette)), 4.5);
    }
}

TEST(Theme, knowsTheContrastOfBlackOnWhite) {
    EXPECT_NEAR(theme::contrast(Qt::black, Qt::white), 21, 1e-6);
    EXPECT_NEAR(theme::contrast(Qt::red, Qt::red), 1, 1e-6);
}

TEST(Theme, stepsTheSystemsFont) {
    QFont font = QApplication::font();
    font.setPointSizeF(10);
    EXPECT_LT(theme::captionFont(font).pointSizeF(), 10);
    EXPECT_GT(theme::titleFont(font).pointSizeF(), 10);
    EXPECT_TRUE(theme::headlineFont(font).bold());
    EXPECT_EQ(theme::headlineFont(font).pointSizeF(), 10);
}

TEST(TabularText, givesEveryDigitTheSameWidth) {
    const QFont font = QApplication::font();
    const qreal width = tabular::width(QStringLiteral("11:11.1"), font);
    for (const QString& text : {QStringLiteral("00:00.0"), QStringLiteral("48:26.7")})
        EXPECT_DOUBLE_EQ(tabular::width(text, font), width);
}

QImage paintedIn(Qt::LayoutDirection direction, const QString& text) {
    QImage image(200, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    tabular::paint(painter, QPointF(5, 25), text, QApplication::font());
    return image;
}

// In Arabic "0:04.000 · #7" had its "#" behind the time.
TEST(TabularText, hasTheSameOrderOfNumbersInEveryLayout) {
    const QString text = QStringLiteral("0:04.000 · #7");
    EXPECT_EQ(paintedIn(Qt::RightToLeft, text), paintedIn(Qt::LeftToRight, text));
}

TEST(TabularText, putsANumberBehindAWordThatIsWrittenFromRightToLeft) {
    const QString text = QStringLiteral("النطاق 0:04");
    QImage whole(200, 40, QImage::Format_RGB32);
    whole.fill(Qt::white);
    QPainter painter(&whole);
    painter.setFont(QApplication::font());
    painter.setLayoutDirection(Qt::RightToLeft);
    painter.drawText(QPointF(5, 25), text);
    painter.end();
    EXPECT_EQ(paintedIn(Qt::RightToLeft, text), whole);
    EXPECT_EQ(tabular::width(text, QApplication::font()),
              QFontMetricsF(QApplication::font()).horizontalAdvance(text));
}

TEST(ControlLabels, nameTheCropInWholePixels) {
    EXPECT_EQ(cropLabel({1920, 1080}, std::nullopt), QString());
    EXPECT_EQ(cropLabel({1920, 1080}, media::Rect{0.1, 0.1, 0.8, 0.8}), QStringLiteral("1536×864"));
    // Halves go away from zero.
    EXPECT_EQ(cropLabel({5, 3}, media::Rect{0, 0, 0.5, 0.5}), QStringLiteral("3×2"));
}

TEST(ControlLabels, nameFormatAndCapOfTheExport) {
    EXPECT_EQ(exportLabel(ExportFormat::mp4, ExportResolution::original),
              QStringLiteral("Export MP4…"));
    EXPECT_EQ(exportLabel(ExportFormat::mov, ExportResolution::hd720),
              QStringLiteral("Export MOV · 720p…"));
    EXPECT_EQ(exportLabel(ExportFormat::mp4, ExportResolution::fhd1080),
              QStringLiteral("Export MP4 · 1080p…"));
}

TEST(Symbols, areDrawnInTheColourAskedFor) {
    for (int number = 0; number <= static_cast<int>(Symbol::exclamationTriangle); ++number) {
        const QImage image =
            symbolPixmap(static_cast<Symbol>(number), 18, QColor(10, 200, 30), 2).toImage();
        ASSERT_EQ(image.size(), QSize(36, 36));
        int opaque = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() < 255)
                    continue;
                ++opaque;
                EXPECT_EQ(pixel, QColor(10, 200, 30));
            }
        }
        EXPECT_GT(opaque, 20) << "symbol " << number;
    }
}

} // namespace
} // namespace brisklet
