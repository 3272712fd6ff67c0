#include "Views/Painting/Theme.h"

#include <algorithm>
#include <cmath>

namespace brisklet::theme {

namespace {

/// The least contrast of text, from the Web Content Accessibility Guidelines.
constexpr double kTextContrast = 4.5;
/// The same for symbols, from the same source.
constexpr double kSymbolContrast = 3.0;

constexpr double kSecondaryShare = 0.62;
constexpr double kQuaternaryShare = 0.16;

/// Sizes relative to the system font.
constexpr double kCaptionStep = 0.85;
constexpr double kTitleStep = 1.3;

double luminance(const QColor& color) {
    const auto linear = [](float component) {
        const auto share = static_cast<double>(component);
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// `front` blended over `back` with the opacity `share`.
QColor mixed(const QColor& front, const QColor& back, double share) {
    const auto part = [share = static_cast<float>(share)](float a, float b) {
        return a * share + b * (1 - share);
    };
    return QColor::fromRgbF(part(front.redF(), back.redF()), part(front.greenF(), back.greenF()),
                            part(front.blueF(), back.blueF()));
}

/// `color`, moved towards `text` until its contrast with `back` suffices.
QColor legible(const QColor& color, const QColor& text, const QColor& back, double least) {
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
        const QColor candidate = mixed(text, color, static_cast<double>(step) / kSteps);
        if (contrast(candidate, back) >= least)
            return candidate;
    }
    return text;
}

QFont scaled(const QFont& font, double step) {
    QFont result = font;
    if (font.pointSizeF() > 0)
        result.setPointSizeF(font.pointSizeF() * step);
    else
        result.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * step)));
    return result;
}

} // namespace

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QPalette& palette) {
    return luminance(palette.color(QPalette::Window)) <
           luminance(palette.color(QPalette::WindowText));
}

QColor primary(const QPalette& palette) {
    return palette.color(QPalette::WindowText);
}

QColor secondary(const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    const QColor back = palette.color(QPalette::Window);
    return legible(mixed(text, back, kSecondaryShare), text, back, kTextContrast);
}

QColor quaternary(const QPalette& palette) {
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window),
                 kQuaternaryShare);
}

QColor accent(const QPalette& palette) {
    return legible(palette.color(QPalette::Active, QPalette::Highlight),
                   palette.color(QPalette::WindowText), palette.color(QPalette::Window),
                   kSymbolContrast);
}

QColor accentFill(const QPalette& palette) {
    const QColor ink = onAccentFill(palette);
    const QColor away = luminance(ink) > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
    return legible(palette.color(QPalette::Active, QPalette::Highlight), away, ink, kTextContrast);
}

QColor onAccentFill(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::HighlightedText);
}

QColor red(const QPalette& palette) {
    const QColor plain = isDark(palette) ? QColor(0xff, 0x5b, 0x52) : QColor(0xd0, 0x1c, 0x1f);
    return legible(plain, palette.color(QPalette::WindowText), palette.color(QPalette::Window),
                   kSymbolContrast);
}

QFont captionFont(const QFont& font) {
    return scaled(font, kCaptionStep);
}

QFont headlineFont(const QFont& font) {
    QFont result = font;
    result.setBold(true);
    return result;
}

QFont titleFont(const QFont& font) {
    return scaled(font, kTitleStep);
}

} // namespace brisklet::theme
