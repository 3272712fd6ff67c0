#include "TestSupport/DisplayRotation.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace testsupport {
namespace {

std::string bigEndian(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    std::string bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes += static_cast<char>((bits >> shift) & 0xFFU);
    return bytes;
}

/// The track header's matrix that turns the picture clockwise and moves it back into the positive
/// quadrant, as cameras write it: 16.16 fixed point, the third column 2.30.
std::string matrixFor(int degrees, int width, int height) {
    constexpr std::int32_t kOne = 1 << 16;
    const auto [cosine, sine] =
        std::map<int, std::pair<int, int>>{{90, {0, 1}}, {180, {-1, 0}}, {270, {0, -1}}}.at(
            degrees);
    const int moveX = degrees == 90 ? height : degrees == 180 ? width : 0;
    const int moveY = degrees == 270 ? width : degrees == 180 ? height : 0;
    std::string bytes;
    for (const std::int32_t value : {cosine * kOne, sine * kOne, 0, -sine * kOne, cosine * kOne, 0,
                                     moveX * kOne, moveY * kOne, 1 << 30})
        bytes += bigEndian(value);
    return bytes;
}

} // namespace

void setDisplayRotation(const std::filesystem::path& path, int degrees, int width, int height) {
    std::ifstream input(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(input), {}};
    const std::size_t header = bytes.find("tkhd", bytes.rfind("moov"));
    if (header == std::string::npos)
        throw std::runtime_error("Only MP4 and MOV can have a display rotation.");
    // Version 0 of the header: the matrix stands 40 bytes into its payload. The video comes first.
    const std::string matrix = matrixFor(degrees, width, height);
    bytes.replace(header + 44, matrix.size(), matrix);
    std::ofstream output(path, std::ios::binary);
    output << bytes;
    if (!output.flush())
        throw std::runtime_error("Cannot write " + path.string());
}

} // namespace testsupport
