#include "Media/ColourDifference.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace media::test {

namespace {

struct Lab {
    double l = 0;
    double a = 0;
    double b = 0;
};

double linear(double value) {
    const double v = std::clamp(value, 0.0, 1.0);
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double cubeRoot(double t) {
    constexpr double kKnee = 216.0 / 24389;
    return t > kKnee ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
}

Lab labOf(const YCbCr& colour, const LumaWeights& weights) {
    const double red = linear(colour.y + 2 * (1 - weights.red) * colour.cr);
    const double blue = linear(colour.y + 2 * (1 - weights.blue) * colour.cb);
    const double green =
        linear((colour.y - weights.red * (colour.y + 2 * (1 - weights.red) * colour.cr) -
                weights.blue * (colour.y + 2 * (1 - weights.blue) * colour.cb)) /
               (1 - weights.red - weights.blue));
    const double x = (0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047;
    const double y = 0.2126729 * red + 0.7151522 * green + 0.0721750 * blue;
    const double z = (0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883;
    return {116 * cubeRoot(y) - 16, 500 * (cubeRoot(x) - cubeRoot(y)),
            200 * (cubeRoot(y) - cubeRoot(z))};
}

constexpr double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

double hue(double b, double a) {
    if (a == 0 && b == 0)
        return 0;
    const double angle = std::atan2(b, a) / std::numbers::pi * 180;
    return angle < 0 ? angle + 360 : angle;
}

/// How much more greyish colours differ than their distance says.
double chromaStretch(double chroma) {
    const double seventh = std::pow(chroma, 7);
    return std::sqrt(seventh / (seventh + std::pow(25.0, 7)));
}

double difference(const Lab& first, const Lab& second) {
    const double meanChroma = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2;
    const double stretch = 1 + 0.5 * (1 - chromaStretch(meanChroma));
    const double a1 = first.a * stretch;
    const double a2 = second.a * stretch;
    const double c1 = std::hypot(a1, first.b);
    const double c2 = std::hypot(a2, second.b);
    const double h1 = hue(first.b, a1);
    const double h2 = hue(second.b, a2);
    double turn = c1 * c2 == 0 ? 0 : h2 - h1;
    if (turn > 180)
        turn -= 360;
    if (turn < -180)
        turn += 360;
    const double deltaL = second.l - first.l;
    const double deltaC = c2 - c1;
    const double deltaH = 2 * std::sqrt(c1 * c2) * std::sin(radians(turn / 2));
    const double meanL = (first.l + second.l) / 2;
    const double meanC = (c1 + c2) / 2;
    double meanH = h1 + h2;
    if (c1 * c2 != 0) {
        if (std::abs(h1 - h2) > 180)
            meanH += meanH < 360 ? 360 : -360;
        meanH /= 2;
    }
    const double t = 1 - 0.17 * std::cos(radians(meanH - 30)) +
                     0.24 * std::cos(radians(2 * meanH)) + 0.32 * std::cos(radians(3 * meanH + 6)) -
                     0.20 * std::cos(radians(4 * meanH - 63));
    const double middle = (meanL - 50) * (meanL - 50);
    const double scaleL = 1 + 0.015 * middle / std::sqrt(20 + middle);
    const double scaleC = 1 + 0.045 * meanC;
    const double scaleH = 1 + 0.015 * meanC * t;
    const double rotation = -2 * chromaStretch(meanC) *
                            std::sin(radians(60 * std::exp(-std::pow((meanH - 275) / 25, 2))));
    const double l = deltaL / scaleL;
    const double c = deltaC / scaleC;
    const double h = deltaH / scaleH;
    return std::sqrt(l * l + c * c + h * h + rotation * c * h);
}

} // namespace

double colourDifference(const YCbCr& a, const YCbCr& b, const LumaWeights& weights) {
    return difference(labOf(a, weights), labOf(b, weights));
}

} // namespace media::test
