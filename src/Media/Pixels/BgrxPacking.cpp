#include "Media/Pixels/BgrxPacking.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace media::pixels {

namespace {

// Fixed point: luma is (Y − black) × 2^7 times a factor × 2^14, chroma (C − 128) × 2^8 times a
// factor × 2^13, so that the upper 16 bits of both products have 5 fractional bits. These are the
// largest scales that fit into 16 bits.
constexpr int kLumaShift = 7;
constexpr int kChromaShift = 8;
constexpr double kLumaOne = 1 << 14;
constexpr double kChromaOne = 1 << 13;
constexpr int kFractionBits = 5;

/// Half of the last bit that is kept, plus the mean error of truncating three products.
constexpr int kRounding = (1 << (kFractionBits - 1)) + 1;

constexpr int kRun = 64;

struct Weights {
    double red;
    double blue;
};

Weights lumaWeights(AVColorSpace matrix) {
    switch (matrix) {
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        return {0.299, 0.114};
    case AVCOL_SPC_FCC:
        return {0.30, 0.11};
    case AVCOL_SPC_SMPTE240M:
        return {0.212, 0.087};
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return {0.2627, 0.0593};
    default:
        return {0.2126, 0.0722};
    }
}

std::int16_t fixedPoint(double value, double one) {
    return static_cast<std::int16_t>(std::lround(value * one));
}

/// The upper half of the product of two 16-bit numbers.
std::int16_t upperProduct(std::int16_t a, std::int16_t b) {
    return static_cast<std::int16_t>((int{a} * int{b}) >> 16);
}

std::uint16_t rounded(std::int16_t y, std::int16_t u, std::int16_t v) {
    const auto sum = static_cast<std::int16_t>(y + u + v + kRounding);
    const auto level = static_cast<std::int16_t>(sum >> kFractionBits);
    const auto positive = level < 0 ? std::int16_t{0} : level;
    return static_cast<std::uint16_t>(positive > 255 ? std::int16_t{255} : positive);
}

/// Blue and green, or red and the unused byte, in memory order.
std::uint16_t bytePair(unsigned first, unsigned second) {
    if constexpr (std::endian::native == std::endian::little)
        return static_cast<std::uint16_t>(first | second << 8);
    else
        return static_cast<std::uint16_t>(first << 8 | second);
}

} // namespace

YuvToRgb::YuvToRgb(AVColorSpace matrix, bool isFullRange) {
    const double lumaScale = isFullRange ? 1 : 255.0 / 219;
    const double chromaScale = isFullRange ? 1 : 255.0 / 224;
    m_yOffset = isFullRange ? 0 : 16;
    m_yScale = fixedPoint(lumaScale, kLumaOne);
    if (matrix == AVCOL_SPC_YCGCO) {
        // The first chroma plane is Cg, the second Co.
        const auto one = fixedPoint(chromaScale, kChromaOne);
        const auto minusOne = static_cast<std::int16_t>(-one);
        m_uScale = {minusOne, one, minusOne};
        m_vScale = {one, 0, minusOne};
        return;
    }
    const Weights weights = lumaWeights(matrix);
    const double green = 1 - weights.red - weights.blue;
    const double redOfV = 2 * (1 - weights.red) * chromaScale;
    const double blueOfU = 2 * (1 - weights.blue) * chromaScale;
    m_uScale = {0, fixedPoint(-blueOfU * weights.blue / green, kChromaOne),
                fixedPoint(blueOfU, kChromaOne)};
    m_vScale = {fixedPoint(redOfV, kChromaOne),
                fixedPoint(-redOfV * weights.red / green, kChromaOne), 0};
}

void YuvToRgb::convertLine(const std::uint8_t* y, const std::uint8_t* u, const std::uint8_t* v,
                           std::uint8_t* out, int count) const {
    // Only 16-bit arithmetic, so that the compiler fits eight values into a vector register, and in
    // short runs, so that the values between the two steps stay in the first-level cache.
    std::array<std::uint16_t, kRun> blueGreen;
    std::array<std::uint16_t, kRun> redUnused;
    const std::array<std::int16_t, 3> uScale = m_uScale;
    const std::array<std::int16_t, 3> vScale = m_vScale;
    const std::int16_t yScale = m_yScale;
    const std::int16_t yOffset = m_yOffset;
    for (int start = 0; start < count; start += kRun) {
        const auto run = static_cast<std::size_t>(std::min(kRun, count - start));
        for (std::size_t i = 0; i < run; ++i) {
            const auto luma = upperProduct(
                static_cast<std::int16_t>((y[i] - yOffset) * (1 << kLumaShift)), yScale);
            const auto cb = static_cast<std::int16_t>((u[i] - 128) * (1 << kChromaShift));
            const auto cr = static_cast<std::int16_t>((v[i] - 128) * (1 << kChromaShift));
            const auto red =
                rounded(luma, upperProduct(cb, uScale[0]), upperProduct(cr, vScale[0]));
            const auto green =
                rounded(luma, upperProduct(cb, uScale[1]), upperProduct(cr, vScale[1]));
            const auto blue =
                rounded(luma, upperProduct(cb, uScale[2]), upperProduct(cr, vScale[2]));
            blueGreen[i] = bytePair(blue, green);
            redUnused[i] = bytePair(red, 255);
        }
        for (std::size_t i = 0; i < run; ++i) {
            std::memcpy(out + 4 * i, &blueGreen[i], 2);
            std::memcpy(out + 4 * i + 2, &redUnused[i], 2);
        }
        y += run;
        u += run;
        v += run;
        out += 4 * run;
    }
}

void packLine(const std::uint8_t* red, const std::uint8_t* green, const std::uint8_t* blue,
              std::uint8_t* out, int count) {
    for (int i = 0; i < count; ++i) {
        out[4 * i] = blue[i];
        out[4 * i + 1] = green[i];
        out[4 * i + 2] = red[i];
        out[4 * i + 3] = 255;
    }
}

} // namespace media::pixels
