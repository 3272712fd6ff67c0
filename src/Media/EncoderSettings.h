#pragma once

#include <array>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace media {

/// How much work an encoder puts into each picture. libx264 and libx265 share the names.
enum class EncoderPreset {
    ultrafast,
    superfast,
    veryfast,
    faster,
    fast,
    medium,
    slow,
    slower,
    veryslow,
    placebo,
};

/// From the fastest to the slowest, each with the name that the encoders know it by.
inline constexpr std::array<std::pair<EncoderPreset, const char*>, 10> kEncoderPresets = {
    {{EncoderPreset::ultrafast, "ultrafast"},
     {EncoderPreset::superfast, "superfast"},
     {EncoderPreset::veryfast, "veryfast"},
     {EncoderPreset::faster, "faster"},
     {EncoderPreset::fast, "fast"},
     {EncoderPreset::medium, "medium"},
     {EncoderPreset::slow, "slow"},
     {EncoderPreset::slower, "slower"},
     {EncoderPreset::veryslow, "veryslow"},
     {EncoderPreset::placebo, "placebo"}}};

/// A parameter of libx264 or libx265, by the library's own name for it.
struct EncoderParameter {
    /// A number, two of them, or one of the encoder's own words.
    using Value = std::variant<int, double, std::pair<int, int>, std::string>;

    std::string name;
    Value value;
};

using EncoderParameters = std::vector<EncoderParameter>;

/// The settings of the video encoders. An export fails if its encoder refuses one of them. The
/// defaults are the program's "highest quality"; docs/architecture.md has the measurements behind
/// them.
struct EncoderSettings {
    /// H.264 for 8-bit standard-range sources (libx264).
    EncoderPreset h264Preset = EncoderPreset::superfast;
    /// What differs from the preset:
    ///  - subme: a finer motion search saves a tenth or more of the size, for a quarter to a third
    ///    more time.
    ///  - qcomp: more bits for complex pictures, where this preset falls behind slower ones.
    ///  - b-adapt: always three B-frames; choosing their number costs more than it saves.
    ///  - aq-mode, aq-strength: adaptive quantisation by the variance of the whole picture.
    ///  - partitions: no blocks of 4 × 4, which cost time and save size in screen recordings only.
    ///  - deblock: slightly stronger, which is nearer to the source.
    EncoderParameters h264Parameters = {{"subme", 2},
                                        {"qcomp", 0.85},
                                        {"b-adapt", 0},
                                        {"aq-mode", 2},
                                        {"aq-strength", 0.9},
                                        {"partitions", "i8x8"},
                                        {"deblock", std::pair(1, 1)}};
    /// Constant rate factor, 0 to 51; lower means better quality and larger files.
    double h264Crf = 17.1;
    /// For pictures that are scaled down: scaling averages their grain away, and without grain this
    /// preset falls further behind slower ones.
    double h264ReducedCrf = 16.1;
    /// HEVC Main 10 for deeper or HDR sources (libx265).
    EncoderPreset hevcPreset = EncoderPreset::ultrafast;
    /// What differs from the preset:
    ///  - psy-rd: off, since it trades likeness to the source for an impression of detail.
    ///  - deblock: stronger, which is nearer to the source.
    EncoderParameters hevcParameters = {{"psy-rd", 0}, {"deblock", std::pair(2, 2)}};
    double hevcCrf = 11;
};

} // namespace media
