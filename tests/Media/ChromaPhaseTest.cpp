#include "Media/ChartFile.h"
#include "Media/ExportFixture.h"

#include <cmath>
#include <complex>
#include <numbers>

/// Where the colour lies in exports: a crop that begins between two chroma samples, and turns that
/// move chroma samples from one side of their pixels to another, must not shift it.
namespace media {
namespace {

constexpr Size kSource{128, 112};
/// Whole numbers of waves, so that what is measured is nothing but the phase.
constexpr Size kCrop{96, 72};
constexpr double kWave = 24;

double angleAt(double place) {
    return 2 * std::numbers::pi * place / kWave;
}

/// Cb waves from left to right, Cr from top to bottom.
double waves(int channel, double x, double y) {
    if (channel == 0)
        return 0.5;
    return 0.5 + 0.2 * std::sin(angleAt(channel == 1 ? x : y));
}

/// How far the waves of a chroma plane lie from where the source has them, in pixels of the source.
double displacement(const AVFrame& frame, int plane, const AffineTransform& toCanvas) {
    const auto& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const AffineTransform toSource = toCanvas.inverted();
    std::complex<double> sum;
    for (int row = 0; row < test::planeHeight(frame, plane); ++row) {
        for (int column = 0; column < test::planeWidth(frame, plane); ++column) {
            const Point place =
                toSource.apply(test::samplePlace(format, AVCHROMA_LOC_LEFT, plane, column, row));
            const double angle = angleAt(plane == 1 ? place.x : place.y);
            // The waves turned back by where they ought to be leave their error alone.
            sum += std::polar<double>(test::sampleOf(frame, plane, column, row), -angle);
        }
    }
    const std::complex<double> unit(0, -1);
    return std::arg(sum / unit) / (2 * std::numbers::pi) * kWave;
}

struct Turn {
    int quarters = 0;
    AVPixelFormat format = AV_PIX_FMT_YUV420P;
};

class ChromaPhase : public ExportTest, public testing::WithParamInterface<Turn> {};

TEST_P(ChromaPhase, isThatOfTheSourceAtEveryOffset) {
    const auto [quarters, format] = GetParam();
    const auto chart =
        test::drawPicture(format, static_cast<int>(kSource.width), static_cast<int>(kSource.height),
                          waves, {.range = AVCOL_RANGE_MPEG, .location = AVCHROMA_LOC_LEFT});
    const auto source =
        test::chartFile(std::string("chroma-waves-") + av_get_pix_fmt_name(format) + ".mkv", *chart,
                        2, {"-color_range", "tv", "-chroma_sample_location", "left"});
    const auto asset = Asset::open(source);
    const bool isUpright = quarters % 2 == 0;
    for (int x = 0; x < 4; ++x) {
        for (int y = 0; y < 4; ++y) {
            SCOPED_TRACE(std::to_string(x) + ", " + std::to_string(y));
            const AffineTransform toCanvas = AffineTransform::translation(-x, -y).concatenated(
                test::orientation(2 * quarters, kCrop));
            const VideoComposition composition{
                toCanvas, static_cast<int>(isUpright ? kCrop.width : kCrop.height),
                static_cast<int>(isUpright ? kCrop.height : kCrop.width), Time{1, 10}};
            const auto frames =
                test::decodedFrames(exportedAs(compositionOf(asset), composition), 1);
            ASSERT_EQ(frames.size(), 1U);
            EXPECT_NEAR(displacement(*frames[0], 1, toCanvas), 0, 0.1);
            EXPECT_NEAR(displacement(*frames[0], 2, toCanvas), 0, 0.1);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Turns, ChromaPhase,
                         testing::Values(Turn{0}, Turn{1}, Turn{2}, Turn{3},
                                         Turn{0, AV_PIX_FMT_YUV444P}, Turn{1, AV_PIX_FMT_YUV444P}),
                         [](const auto& row) {
                             return std::string(av_get_pix_fmt_name(row.param.format)) + "_" +
                                    std::to_string(row.param.quarters * 90);
                         });

/// The measure notices a shift: the same pictures held against a place half a pixel off.
TEST(ChromaPhaseMeasure, seesHalfAPixel) {
    const auto chart =
        test::drawPicture(AV_PIX_FMT_YUV420P, static_cast<int>(kCrop.width),
                          static_cast<int>(kCrop.height), waves, {.location = AVCHROMA_LOC_LEFT});
    EXPECT_NEAR(displacement(*chart, 1, {}), 0, 0.02);
    EXPECT_NEAR(std::abs(displacement(*chart, 1, AffineTransform::translation(0.5, 0))), 0.5, 0.02);
    EXPECT_NEAR(std::abs(displacement(*chart, 2, AffineTransform::translation(0, 0.5))), 0.5, 0.02);
}

} // namespace
} // namespace media
