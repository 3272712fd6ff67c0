#include "Media/FFmpeg/HevcLevel.h"

#include "Media/FFmpeg/NalUnits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace media::ffmpeg {

namespace {

/// Pictures are coded in whole blocks of so many pixels: the smallest of x265’s ultrafast preset.
constexpr int kBlock = 16;

struct Row {
    /// The most luma samples of a picture and in a second.
    double pixels;
    double pixelRate;
    HevcLevel level;
};

/// Limits of Rec. ITU-T H.265, tables A.8 and A.9; in each row the first level that has both the
/// room for such pictures and, with room to spare, the bits that footage takes at the program's
/// quality: 20 Mbit/s in the first, 50 in the second, 160 and more in the others. The main tier of
/// the level in the second has 20, and the next level no coding tree units of 16 × 16 (A.4.1).
constexpr std::array kRows = {
    Row{983'040, 33'177'600, {41, false, true}},
    Row{2'228'224, 133'693'440, {41, true, true}},
    Row{8'912'896, 534'773'760, {51, true, false}},
    Row{8'912'896, 1'069'547'520, {52, true, false}},
    Row{35'651'584, 1'069'547'520, {60, true, false}},
    Row{35'651'584, 2'139'095'040, {61, true, false}},
    Row{35'651'584, 4'278'190'080, {62, true, false}},
};

/// Types of NAL units (7.4.2.2), and what lies before profile, tier and level in each, in bytes
/// (7.3.2.1, 7.3.2.2).
constexpr unsigned kVideoParameterSet = 32;
constexpr std::size_t kBeforeInVideo = 4;
constexpr unsigned kSequenceParameterSet = 33;
constexpr std::size_t kBeforeInSequence = 1;
/// In bytes of that part (7.3.3); of the first it is a bit.
constexpr std::size_t kTierAt = 0;
constexpr unsigned kTierBit = 0x20;
constexpr std::size_t kLevelAt = 11;

int coded(int side) {
    return (side + kBlock - 1) / kBlock * kBlock;
}

/// The byte at this place of a unit, not counting those that only prevent start codes (7.3.1.1);
/// null behind its end.
std::uint8_t* byteAt(std::span<std::uint8_t> unit, std::size_t place) {
    unsigned zeros = 0;
    for (std::uint8_t& byte : unit) {
        if (std::exchange(zeros, byte == 0 ? zeros + 1 : 0) >= 2 && byte == 3)
            continue;
        if (place-- == 0)
            return &byte;
    }
    return nullptr;
}

void stateLevelInUnit(std::span<std::uint8_t> unit, const HevcLevel& level) {
    if (unit.empty())
        return;
    const unsigned type = unit.front() >> 1U & 0x3FU;
    if (type != kVideoParameterSet && type != kSequenceParameterSet)
        return;
    const std::size_t begin =
        kHevcUnitHeader + (type == kVideoParameterSet ? kBeforeInVideo : kBeforeInSequence);
    std::uint8_t* const tier = byteAt(unit, begin + kTierAt);
    std::uint8_t* const number = byteAt(unit, begin + kLevelAt);
    if (!number)
        return;
    *tier = static_cast<std::uint8_t>(level.isHighTier ? *tier | kTierBit : *tier & ~kTierBit);
    constexpr int kUnits = 3;
    *number = static_cast<std::uint8_t>(kUnits * level.number);
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

void stateLevel(std::span<std::uint8_t> headers, const HevcLevel& level) {
    const auto next = [](std::span<std::uint8_t> bytes) {
        return static_cast<std::size_t>(startCodeIn(bytes) -
                                        std::span<const std::uint8_t>(bytes).begin());
    };
    for (std::size_t begin = next(headers); begin < headers.size();) {
        headers = headers.subspan(std::min(begin + kStartCodeLength, headers.size()));
        begin = next(headers);
        stateLevelInUnit(headers.first(begin), level);
    }
}

} // namespace media::ffmpeg
