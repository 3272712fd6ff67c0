#include "Export/AVFoundationExporter.h"
#include "Support/FileUrl.h"
#include "TestSupport/DisplayRotation.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"
#include "TestSupport/Representatives.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <limits>
#include <ostream>
#include <set>
#include <string>
#include <utility>

/// Holds turned, cropped and scaled exports against pictures that ffmpeg's own filters made of the
/// same source at high precision.
namespace brisklet {
namespace {

using testsupport::cachedMedia;
using testsupport::TemporaryFolder;

/// Of the stored picture. Not square, and no multiple of each other.
constexpr int kWidth = 480;
constexpr int kHeight = 360;

/// Smooth, structured and coloured: what is a pixel out of place or a little off in colour differs.
std::filesystem::path plainSource() {
    return cachedMedia("geometry.mov",
                       {"-f", "lavfi", "-i", "mandelbrot=s=480x360:r=10:start_scale=0.05", "-t",
                        "0.4", "-vf", "hue=h=60,format=yuv420p", "-c:v", "libx264", "-crf", "4",
                        "-preset", "fast"});
}

/// The same with a display matrix that turns it clockwise.
std::filesystem::path sourceTurnedBy(int degrees) {
    if (degrees == 0)
        return plainSource();
    return cachedMedia("geometry-turned-clockwise-" + std::to_string(degrees) + ".mov",
                       [degrees](const std::filesystem::path& path) {
                           std::filesystem::copy_file(
                               plainSource(), path,
                               std::filesystem::copy_options::overwrite_existing);
                           testsupport::setDisplayRotation(path, degrees, kWidth, kHeight);
                       });
}

constexpr auto kPrecise = ":flags=lanczos+accurate_rnd+full_chroma_int+full_chroma_inp";

/// Chroma where H.264 has it unless a file says otherwise: at the left one of two pixels, between
/// the lines.
std::string scaledFrom420(const std::string& size) {
    return "scale=" + size + kPrecise + ":in_h_chr_pos=0:in_v_chr_pos=128,format=yuv444p";
}

std::string scaledTo420(const std::string& size) {
    return "scale=" + size + kPrecise + ":out_h_chr_pos=0:out_v_chr_pos=128,format=yuv420p";
}

std::string sizeText(int width, int height) {
    return std::to_string(width) + ":" + std::to_string(height);
}

/// A crop, in pixels of the turned picture, that ffmpeg and the exporter understand alike.
struct PixelCrop {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Rows of raw 8-bit samples.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> samples;

    [[nodiscard]] int at(int x, int y) const {
        return samples[static_cast<std::size_t>(y * width + x)];
    }
};

/// The three planes of the first frame, each blown up to twice the size of the picture, so that
/// half a pixel shows.
std::array<Plane, 3> planesOf(const std::filesystem::path& path, int width, int height) {
    const int twiceWidth = 2 * width;
    const int twiceHeight = 2 * height;
    const std::string pixels =
        testsupport::runProcessOrThrow(
            {"ffmpeg", "-nostdin", "-v", "error", "-i", path, "-frames:v", "1", "-vf",
             scaledFrom420(sizeText(twiceWidth, twiceHeight)), "-f", "rawvideo", "-"})
            .output;
    std::array<Plane, 3> planes;
    const auto count = static_cast<std::size_t>(twiceWidth) * static_cast<std::size_t>(twiceHeight);
    for (std::size_t i = 0; i < planes.size(); ++i) {
        const std::string part = pixels.substr(i * count, count);
        planes[i] = {twiceWidth, twiceHeight, {part.begin(), part.end()}};
    }
    return planes;
}

/// The mean square of the differences when the second picture is moved.
double differenceAt(const Plane& first, const Plane& second, int moveX, int moveY) {
    constexpr int kMargin = 4;
    double sum = 0;
    for (int y = kMargin; y < first.height - kMargin; ++y) {
        for (int x = kMargin; x < first.width - kMargin; ++x) {
            const int difference = first.at(x, y) - second.at(x + moveX, y + moveY);
            sum += difference * difference;
        }
    }
    return sum / ((first.width - 2 * kMargin) * (first.height - 2 * kMargin));
}

/// The move, in half pixels, at which the two are most alike.
std::pair<int, int> bestAlignment(const Plane& first, const Plane& second) {
    std::pair<int, int> best;
    double least = std::numeric_limits<double>::max();
    for (int y = -2; y <= 2; ++y) {
        for (int x = -2; x <= 2; ++x) {
            const double difference = differenceAt(first, second, x, y);
            if (difference < least) {
                least = difference;
                best = {x, y};
            }
        }
    }
    return best;
}

struct Case {
    /// What the file's display matrix and the user turn, clockwise.
    int displayRotation = 0;
    int rotation = 0;
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << "matrix " << testCase.displayRotation << ", turn " << testCase.rotation;
}

std::string turnFilter(int rotation) {
    switch (rotation) {
    case 90:
        return "transpose=clock,";
    case 180:
        return "hflip,vflip,";
    case 270:
        return "transpose=cclock,";
    default:
        return "";
    }
}

class ExportGeometry : public testing::TestWithParam<Case> {
protected:
    /// Exports, and has ffmpeg make what should come out: stretched to its natural size, turned,
    /// cropped by `crop`, scaled to `width` × `height`.
    void expectSamePicture(const ExportRequest& shape, const std::filesystem::path& source,
                           const PixelCrop& crop, int width, int height,
                           const std::string& naturalSize = "iw:ih") {
        const auto output = m_folder / "out.mp4";
        ExportRequest request = shape;
        request.sourceURL = urlOf(source);
        request.outputURL = urlOf(output);
        request.endTime = 0.4;
        AVFoundationExporter::run(request, {}, {});
        const auto video = testsupport::probe(output).streamsOf("video").at(0);
        ASSERT_EQ(video.number("width"), width);
        ASSERT_EQ(video.number("height"), height);

        const auto reference = m_folder / "reference.mkv";
        // In 4:4:4, where crops and turns do not depend on where the chroma samples lie; which is
        // why ffmpeg gets the picture without the matrix that it would turn it upright by.
        const auto stored = source == this->source() ? plainSource() : source;
        testsupport::runProcessOrThrow(
            {"ffmpeg", "-nostdin", "-v", "error", "-y", "-i", stored, "-vf",
             scaledFrom420(naturalSize) + "," +
                 turnFilter((GetParam().displayRotation + GetParam().rotation) % 360) +
                 "crop=" + sizeText(crop.width, crop.height) + ":" + sizeText(crop.x, crop.y) +
                 ":exact=1," + scaledTo420(sizeText(width, height)) + ",setsar=1",
             "-c:v", "ffv1", reference});
        EXPECT_GE(testsupport::ssim(output, reference), 0.98);
        const auto planes = planesOf(output, width, height);
        const auto expected = planesOf(reference, width, height);
        for (std::size_t i = 0; i < planes.size(); ++i)
            EXPECT_EQ(bestAlignment(planes[i], expected[i]), std::pair(0, 0)) << "plane " << i;
    }

    /// What the whole turned picture measures.
    [[nodiscard]] std::pair<int, int> turnedSize() const {
        const bool isOnItsSide = (GetParam().displayRotation + GetParam().rotation) % 180 != 0;
        return isOnItsSide ? std::pair(kHeight, kWidth) : std::pair(kWidth, kHeight);
    }

    /// Fractions that give exactly these pixels.
    [[nodiscard]] media::Rect normalized(const PixelCrop& crop) const {
        const auto [width, height] = turnedSize();
        return {static_cast<double>(crop.x) / width, static_cast<double>(crop.y) / height,
                static_cast<double>(crop.width) / width, static_cast<double>(crop.height) / height};
    }

    [[nodiscard]] std::filesystem::path source() const {
        return sourceTurnedBy(GetParam().displayRotation);
    }

    TemporaryFolder m_folder;
};

TEST_P(ExportGeometry, turnsTheWholePicture) {
    // What is no quarter turn is rendered all the same, without a turn.
    const int rotation = GetParam().rotation == 0 ? 45 : GetParam().rotation;
    const auto [width, height] = turnedSize();
    expectSamePicture({.rotation = rotation}, source(), {0, 0, width, height}, width, height);
}

TEST_P(ExportGeometry, cropsOffTheCentre) {
    // An odd corner and odd sides: the picture is cut to even ones.
    const PixelCrop crop{37, 22, 201, 181};
    expectSamePicture({.cropRect = normalized(crop), .rotation = GetParam().rotation}, source(),
                      {37, 22, 200, 180}, 200, 180);
}

TEST_P(ExportGeometry, scalesDownToTheCap) {
    const auto [width, height] = turnedSize();
    const bool isWide = width > height;
    expectSamePicture({.rotation = GetParam().rotation, .maxShortEdge = 180}, source(),
                      {0, 0, width, height}, isWide ? 240 : 180, isWide ? 180 : 240);
}

TEST_P(ExportGeometry, cropsAndScales) {
    // By five eighths, which leaves whole pixels.
    const PixelCrop crop{51, 33, 240, 160};
    expectSamePicture(
        {.cropRect = normalized(crop), .rotation = GetParam().rotation, .maxShortEdge = 100},
        source(), crop, 150, 100);
}

TEST_P(ExportGeometry, cutsOffWhatDoesNotFillAPixelAfterScaling) {
    // By two thirds: 133⅓ × 100 pixels, of which 132 × 100 stay, that is 198 × 150 of the source.
    const PixelCrop crop{60, 40, 200, 150};
    expectSamePicture(
        {.cropRect = normalized(crop), .rotation = GetParam().rotation, .maxShortEdge = 100},
        source(), {60, 40, 198, 150}, 132, 100);
}

std::vector<Case> everyCase() {
    std::vector<Case> cases;
    for (const int displayRotation : {0, 90, 180, 270}) {
        for (const int rotation : {0, 90, 180, 270})
            cases.push_back({displayRotation, rotation});
    }
    return cases;
}

/// An export knows the display matrix, the turn, and the turn that the two add up to.
testsupport::Selection<Case> selection() {
    return testsupport::selectRepresentatives(everyCase(), [](const Case& testCase) {
        const int total = (testCase.displayRotation + testCase.rotation) % 360;
        return std::set<std::string>{"matrix " + std::to_string(testCase.displayRotation),
                                     "turn " + std::to_string(testCase.rotation),
                                     "total " + std::to_string(total)};
    });
}

std::string nameOf(const testing::TestParamInfo<Case>& testCase) {
    return "Matrix" + std::to_string(testCase.param.displayRotation) + "Turn" +
           std::to_string(testCase.param.rotation);
}

INSTANTIATE_TEST_SUITE_P(Turns, ExportGeometry, testing::ValuesIn(selection().representatives),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Exhaustive, ExportGeometry, testing::ValuesIn(selection().others), nameOf);

/// Pixels half as wide again as high: the natural picture is 720 × 360.
class ExportGeometryOfWidePixels : public ExportGeometry {
protected:
    static std::filesystem::path wideSource() {
        return cachedMedia("geometry-wide.mov",
                           {"-i", plainSource(), "-c", "copy", "-aspect", "2:1"});
    }
};

TEST_P(ExportGeometryOfWidePixels, makesThemSquare) {
    const int rotation = GetParam().rotation;
    const bool isOnItsSide = rotation % 180 != 0;
    const int width = isOnItsSide ? 360 : 720;
    const int height = isOnItsSide ? 720 : 360;
    const PixelCrop crop{40, 60, 240, 200};
    const media::Rect normalized{
        static_cast<double>(crop.x) / width, static_cast<double>(crop.y) / height,
        static_cast<double>(crop.width) / width, static_cast<double>(crop.height) / height};
    expectSamePicture({.cropRect = normalized, .rotation = rotation}, wideSource(), crop, 240, 200,
                      "720:360");
    expectSamePicture({.cropRect = normalized, .rotation = rotation, .maxShortEdge = 100},
                      wideSource(), crop, 120, 100, "720:360");
}

INSTANTIATE_TEST_SUITE_P(Turns, ExportGeometryOfWidePixels,
                         testing::Values(Case{0, 0}, Case{0, 90}, Case{0, 180}, Case{0, 270}),
                         [](const auto& testCase) {
                             return "Turn" + std::to_string(testCase.param.rotation);
                         });

} // namespace
} // namespace brisklet
