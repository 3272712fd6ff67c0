#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Looks at media files from outside, with the ffmpeg and ffprobe programs. All functions block,
/// may be called from any thread, and throw std::runtime_error with the program's own words when a
/// file cannot be read at all.
namespace testsupport {

/// One decoded picture of a file.
struct NumberedFrame {
    int number = -1;     ///< What drawNumber drew; -1 when the picture shows no readable number.
    double seconds = 0;  ///< Its presentation time on the container's own clock.
    double duration = 0; ///< Seconds, as the container says; 0 where it does not.
};

/// All pictures that a player of the file would show (edit lists and display matrix applied), in
/// presentation order. `filter` (of ffmpeg, such as "crop=192:144:8:8") makes upright and whole
/// pictures of what the file shows where it does not.
std::vector<NumberedFrame> readNumberedFrames(const std::filesystem::path& path,
                                              int videoTrackIndex = 0,
                                              const std::string& filter = "null");

/// The number in a still picture; none when it shows none.
std::optional<int> readStillNumber(const std::filesystem::path& path);

/// What is heard of one audio track, on the container's own clock (edit lists, priming and start
/// times applied).
struct HeardTrack {
    double start = 0;           ///< Seconds: when the first sample is heard.
    double end = 0;             ///< Seconds: when the last sample has been heard.
    std::vector<double> clicks; ///< Seconds: when each click begins.
};

/// Decodes the `audioTrackIndex`-th audio track and finds its clicks.
HeardTrack readHeardTrack(const std::filesystem::path& path, int audioTrackIndex = 0);

/// Only the clicks of readHeardTrack.
std::vector<double> readClicks(const std::filesystem::path& path, int audioTrackIndex = 0);

/// Named values as ffprobe prints them; nested names are joined by dots, as in "tags.language",
/// "disposition.default", "side_data_list.side_data.0.rotation".
struct ProbedFields {
    std::map<std::string, std::string, std::less<>> values;

    /// The value, or an empty string.
    std::string text(std::string_view name) const;

    /// The value as a number; none where it is missing or not one. Fractions such as 30000/1001
    /// are divided.
    std::optional<double> number(std::string_view name) const;
};

struct ProbedFile {
    ProbedFields format;               ///< format_name, duration, start_time, tags.title, ...
    std::vector<ProbedFields> streams; ///< codec_type, codec_name, width, r_frame_rate, ...
    std::vector<ProbedFields> chapters;

    /// The streams of "video", "audio", "subtitle" or "data", in file order.
    std::vector<ProbedFields> streamsOf(std::string_view codecType) const;
};

ProbedFile probe(const std::filesystem::path& path);

/// One packet as the container stores it, in file order.
struct ProbedPacket {
    double pts = 0; ///< Seconds on the container's clock.
    double dts = 0;
    double duration = 0;
    bool isKey = false;
};

/// The packets of a stream such as "v:0" or "a:1".
std::vector<ProbedPacket> readPackets(const std::filesystem::path& path,
                                      const std::string& stream = "v:0");

/// What `ffmpeg -v warning` says while it plays the whole file; empty when all is well. A failure
/// to play is said too, never thrown.
std::string warningsWhilePlaying(const std::filesystem::path& path);

/// The structural similarity (0 to 1) of two videos or stills of the same size, compared frame by
/// frame in order, over as many frames as the shorter one has.
double ssim(const std::filesystem::path& first, const std::filesystem::path& second);

} // namespace testsupport
