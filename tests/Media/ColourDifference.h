#pragma once

namespace media::test {

/// A colour on its way to the eye: Y′ 0 … 1, Cb and Cr −0.5 … 0.5.
struct YCbCr {
    double y = 0;
    double cb = 0;
    double cr = 0;
};

/// The two coefficients that make a matrix of Y′CbCr.
struct LumaWeights {
    double red = 0.2126;
    double blue = 0.0722;
};

/// ΔE of CIEDE2000 between two colours of one matrix, both seen as sRGB is: 1 is about the least
/// that can be seen side by side.
double colourDifference(const YCbCr& a, const YCbCr& b, const LumaWeights& weights);

} // namespace media::test
