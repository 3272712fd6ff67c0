#include "Media/DecodedNumber.h"

#include "TestSupport/NumberedPicture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace media {

int numberIn(const DecodedFrame& decoded) {
    const AVFrame& frame = *decoded.frame;
    const bool isDeep =
        frame.format == AV_PIX_FMT_YUV420P10LE || frame.format == AV_PIX_FMT_YUV422P10LE;
    std::vector<std::uint8_t> grey;
    for (int y = 0; y < frame.height; ++y) {
        const std::uint8_t* line = frame.data[0] + std::ptrdiff_t{y} * frame.linesize[0];
        for (int x = 0; x < frame.width; ++x) {
            const int sample = isDeep ? (line[2 * x] | line[2 * x + 1] << 8) >> 2 : line[x];
            // From the limited range of video to the full one of a picture.
            grey.push_back(
                static_cast<std::uint8_t>(std::clamp((sample - 16) * 255 / 219, 0, 255)));
        }
    }
    return testsupport::readNumber(grey, frame.width, frame.height).value_or(-1);
}

} // namespace media
