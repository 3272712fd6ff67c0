#include "Media/FFmpeg/HevcLevel.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace media::ffmpeg {

namespace {

/// Pictures are coded in whole blocks of so many pixels.
constexpr int kBlock = 8;

struct Row {
    /// The most luma samples of a picture and in a second.
    double pixels;
    double pixelRate;
    HevcLevel level;
};

/// Limits of Rec. ITU-T H.265, tables A.8 and A.9; in each row the first level that has both the
/// room for such pictures and the bits that they may take at the program's quality. Phones raise
/// the level rather than the tier, as long as the main tier has the bits: so do the first two rows.
/// From there on it is the high tier.
constexpr std::array kRows = {
    Row{983'040, 33'177'600, {41, 20'000, true}},
    Row{2'228'224, 133'693'440, {51, 40'000, false}},
    Row{8'912'896, 534'773'760, {51, 160'000, false}},
    Row{8'912'896, 1'069'547'520, {52, 240'000, false}},
    Row{35'651'584, 1'069'547'520, {60, 240'000, false}},
    Row{35'651'584, 2'139'095'040, {61, 480'000, false}},
    Row{35'651'584, 4'278'190'080, {62, 800'000, false}},
};

int coded(int side) {
    return (side + kBlock - 1) / kBlock * kBlock;
}

} // namespace

std::optional<HevcLevel> hevcLevel(int width, int height, double framesPerSecond) {
    const double pixels = static_cast<double>(coded(width)) * coded(height);
    // A.4.1: no side is longer than the root of eight times the number of pixels.
    const double longest = std::max(coded(width), coded(height));
    const auto* const row = std::ranges::find_if(kRows, [&](const Row& each) {
        return pixels <= each.pixels && longest <= std::sqrt(8 * each.pixels) &&
               pixels * framesPerSecond <= each.pixelRate;
    });
    return row == kRows.end() ? std::nullopt : std::optional(row->level);
}

} // namespace media::ffmpeg
