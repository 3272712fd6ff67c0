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

/// A further parameter of an encoder, under the encoder's own name for it.
struct EncoderParameter {
    /// A number, two of them, or one of the encoder's own words.
    using Value = std::variant<int, double, std::pair<int, int>, std::string>;

    std::string name;
    Value value;
};

using EncoderParameters = std::vector<EncoderParameter>;

/// What the encoders are asked for. An export fails if its encoder does not take all of it. The
/// defaults are the program's "highest quality"; the table of measurements behind them stands in
/// docs/architecture.md.
struct EncoderSettings {
    /// H.264 for 8-bit standard-range sources (libx264).
    EncoderPreset h264Preset = EncoderPreset::superfast;
    /// Predicting motion a little better saves what it costs; more for complex pictures is where
    /// this preset falls behind slower ones; weighing how many B pictures to use is not worth its
    /// price; bits go to flat areas by how uneven the picture is as a whole; blocks of 4 × 4 cost
    /// more than they save; edges of blocks are smoothed a little more.
    EncoderParameters h264Parameters = {{"subme", 2},
                                        {"qcomp", 0.85},
                                        {"b-adapt", 0},
                                        {"aq-mode", 2},
                                        {"aq-strength", 0.9},
                                        {"partitions", "i8x8"},
                                        {"deblock", std::pair(1, 1)}};
    /// Constant rate factor, 0 to 51; less is better and larger.
    double h264Crf = 17.1;
    /// For pictures that are scaled down: what grain they had is averaged away, and without it
    /// this preset falls further behind.
    double h264ReducedCrf = 16.1;
    /// HEVC Main 10 for deeper or HDR sources (libx265).
    EncoderPreset hevcPreset = EncoderPreset::ultrafast;
    /// What is judged is likeness to the source, not its look of detail; edges of blocks are
    /// smoothed more, which is nearer to the source.
    EncoderParameters hevcParameters = {{"psy-rd", 0}, {"deblock", std::pair(2, 2)}};
    double hevcCrf = 11;
};

} // namespace media
