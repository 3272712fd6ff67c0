#pragma once

#include <string>
#include <vector>

namespace testsupport {

/// What a file that ffmpeg makes says about its colours, by ffmpeg's names.
struct ColourTags {
    std::string primaries, transfer, matrix, range;
};

/// ffmpeg's arguments for an output that says so, in all its releases: newer ones believe the
/// pictures, older ones the encoder's options. `filter` is what they pass first, or empty.
std::vector<std::string> colourArguments(const ColourTags& tags, const std::string& filter = {});

/// The same for where the chroma of an H.264 stream lies; `location`: "left", "center" or
/// "topleft".
std::vector<std::string> h264ChromaArguments(const std::string& location);

} // namespace testsupport
