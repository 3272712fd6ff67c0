#include "TestSupport/ColourTags.h"

#include <algorithm>
#include <array>

namespace testsupport {

std::vector<std::string> colourArguments(const ColourTags& tags, const std::string& filter) {
    const std::string said = "setparams=color_primaries=" + tags.primaries +
                             ":color_trc=" + tags.transfer + ":colorspace=" + tags.matrix +
                             ":range=" + tags.range;
    return {"-vf",
            filter.empty() ? said : filter + "," + said,
            "-color_range",
            tags.range,
            "-colorspace",
            tags.matrix,
            "-color_trc",
            tags.transfer,
            "-color_primaries",
            tags.primaries};
}

std::vector<std::string> h264ChromaArguments(const std::string& location) {
    // In the order of Rec. ITU-T H.264, figure E-1.
    constexpr std::array kLocations = {"left", "center", "topleft"};
    const auto index = std::ranges::find(kLocations, location) - kLocations.begin();
    return {"-bsf:v", "h264_metadata=chroma_sample_loc_type=" + std::to_string(index),
            "-chroma_sample_location", location};
}

} // namespace testsupport
