#pragma once

#include "TestSupport/Inspection.h"

#include <filesystem>
#include <string>
#include <vector>

namespace testsupport {

enum class VideoCodec { h264, h264TenBit, hevc, hevcTenBit, vp9, mpeg2, mpeg4, proRes, mjpeg };

enum class AudioCodec { containerDefault, aac, opus, mp3, mp2, pcm };

struct Fraction {
    int numerator = 0;
    int denominator = 1;

    double value() const { return static_cast<double>(numerator) / denominator; }
};

/// How to make one media file. Every picture shows its own number, counted from 0 in presentation
/// order, and every audio track clicks at each whole second since picture 0 (the n-th track, from
/// 0, n tenths of a second later).
struct Recipe {
    VideoCodec codec = VideoCodec::h264;
    /// The file's extension, which decides its format: mp4, mov, mkv, webm, ts, avi, ...
    std::string container = "mp4";
    Fraction frameRate{30, 1};
    double duration = 4; ///< Seconds
    int groupOfPictures = 12;
    int bFrames = 2; ///< For VP9: whether it uses hidden alternate reference frames.
    bool isOpenGroup = false;
    /// Irregular distances between frames, on average 8/5 of the frame rate's. Not for MPEG-2.
    bool hasVariableFrameRate = false;
    double startOffset = 0; ///< Seconds: where the container's clock begins.
    int width = 320;        ///< Of the stored picture, before display rotation and pixel aspect.
    int height = 240;
    Fraction pixelAspect{1, 1};
    /// Degrees (0, 90, 180, 270) a player has to turn the stored picture clockwise. MP4, MOV only.
    int displayRotation = 0;
    std::string pixelFormat; ///< As ffmpeg names it; empty: 4:2:0 at the codec's depth.

    int audioTracks = 1;
    AudioCodec audioCodec = AudioCodec::containerDefault;
    int sampleRate = 48000; ///< Hz
    int channels = 1;
    double audioStart = 0;     ///< Seconds after picture 0.
    double audioDuration = -1; ///< Seconds; negative: to the end of the video.

    /// For what has no field of its own; before the output file.
    std::vector<std::string> additionalArguments;

    /// A file name that tells all fields.
    std::string fileName() const;
};

/// A generated file, and what ffmpeg shows and plays of it. All times are seconds since the
/// earliest presentation time of any of its tracks.
struct Fixture {
    std::filesystem::path path;
    double clockStart = 0; ///< Where the container's own clock stands at time 0.
    std::vector<NumberedFrame> frames;
    std::vector<HeardTrack> audio;

    /// When the last picture ends.
    double videoEnd() const { return frames.back().seconds + frames.back().duration; }
};

/// Makes the file, or takes it from the build tree's cache. Throws std::runtime_error when it does
/// not come out as the recipe says: all numbers in order, at the frame rate, from the start offset.
Fixture makeFixture(const Recipe& recipe);

} // namespace testsupport
