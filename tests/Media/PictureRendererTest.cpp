#include "Media/Pictures/PictureRenderer.h"

#include "Media/Error.h"
#include "SyntheticPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace media::test {

namespace {

struct Colour {
    int red;
    int green;
    int blue;
    friend bool operator==(const Colour&, const Colour&) = default;
};

Colour pixelOf(const Image& image, int x, int y) {
    const std::uint8_t* pixel = image.pixels.data() + std::ptrdiff_t{y} * image.stride + 4 * x;
    return {pixel[2], pixel[1], pixel[0]};
}

void expectNear(const Colour& actual, const Colour& expected, int tolerance) {
    EXPECT_NEAR(actual.red, expected.red, tolerance);
    EXPECT_NEAR(actual.green, expected.green, tolerance);
    EXPECT_NEAR(actual.blue, expected.blue, tolerance);
}

AssetTrack trackOf(double width, double height, const AffineTransform& upright = {}) {
    AssetTrack track;
    track.naturalSize = {width, height};
    track.preferredTransform = upright;
    return track;
}

/// The Y′CbCr of a colour, as values of 0 … 1 with chroma around 0.5.
ChannelFunction encoded(const Colour& colour, double redWeight, double blueWeight) {
    const double red = colour.red / 255.0;
    const double green = colour.green / 255.0;
    const double blue = colour.blue / 255.0;
    const double luma = redWeight * red + (1 - redWeight - blueWeight) * green + blueWeight * blue;
    return flat(luma, (blue - luma) / (2 - 2 * blueWeight) + 0.5,
                (red - luma) / (2 - 2 * redWeight) + 0.5);
}

struct Matrix {
    AVColorSpace tag;
    double redWeight;
    double blueWeight;
};

constexpr Matrix k601{AVCOL_SPC_SMPTE170M, 0.299, 0.114};
constexpr Matrix k709{AVCOL_SPC_BT709, 0.2126, 0.0722};
constexpr Matrix k2020{AVCOL_SPC_BT2020_NCL, 0.2627, 0.0593};

constexpr Colour kColours[] = {{0, 0, 0},     {255, 255, 255}, {128, 128, 128}, {255, 0, 0},
                               {0, 255, 0},   {0, 0, 255},     {255, 255, 0},   {0, 255, 255},
                               {255, 0, 255}, {190, 60, 20},   {20, 110, 230},  {250, 200, 180}};

TEST(PictureRenderer, showsColoursByTheTagsOfTheFrame) {
    for (const Matrix& matrix : {k601, k709, k2020}) {
        for (const AVColorRange range : {AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG}) {
            for (const AVPixelFormat format :
                 {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV420P10}) {
                PictureRenderer renderer(trackOf(32, 24));
                for (const Colour& colour : kColours) {
                    SCOPED_TRACE(testing::Message()
                                 << av_color_space_name(matrix.tag) << ", range " << range << ", "
                                 << av_get_pix_fmt_name(format) << ", colour " << colour.red << " "
                                 << colour.green << " " << colour.blue);
                    const auto frame = drawPicture(
                        format, 32, 24, encoded(colour, matrix.redWeight, matrix.blueWeight),
                        {.range = range, .matrix = matrix.tag});
                    expectNear(pixelOf(*renderer.render(*frame, 0, 0), 17, 11), colour, 2);
                }
            }
        }
    }
}

TEST(PictureRenderer, takesTheMatrixFromTheHeightWhereTheFrameDoesNotSay) {
    const Colour colour{190, 60, 20};
    PictureRenderer small(trackOf(32, 718));
    PictureRenderer large(trackOf(32, 720));
    const auto of601 =
        drawPicture(AV_PIX_FMT_YUV420P, 32, 718, encoded(colour, k601.redWeight, k601.blueWeight));
    const auto of709 =
        drawPicture(AV_PIX_FMT_YUV420P, 32, 720, encoded(colour, k709.redWeight, k709.blueWeight));
    expectNear(pixelOf(*small.render(*of601, 0, 0), 9, 9), colour, 2);
    expectNear(pixelOf(*large.render(*of709, 0, 0), 9, 9), colour, 2);
}

TEST(PictureRenderer, knowsTheDeprecatedFullRangeFormats) {
    const Colour colour{250, 200, 180};
    const auto frame =
        drawPicture(AV_PIX_FMT_YUV420P, 32, 24, encoded(colour, k601.redWeight, k601.blueWeight),
                    {.range = AVCOL_RANGE_JPEG});
    frame->format = AV_PIX_FMT_YUVJ420P;
    frame->color_range = AVCOL_RANGE_UNSPECIFIED;
    PictureRenderer renderer(trackOf(32, 24));
    expectNear(pixelOf(*renderer.render(*frame, 0, 0), 9, 9), colour, 2);
}

TEST(PictureRenderer, showsRgbAsItIs) {
    const auto colour = flat(190 / 255.0, 60 / 255.0, 20 / 255.0);
    for (const AVPixelFormat format :
         {AV_PIX_FMT_RGB24, AV_PIX_FMT_BGRA, AV_PIX_FMT_GBRP, AV_PIX_FMT_RGB48LE, AV_PIX_FMT_GBRP12,
          AV_PIX_FMT_0BGR, AV_PIX_FMT_RGBA64LE}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        PictureRenderer renderer(trackOf(32, 24));
        const auto image = renderer.render(*drawPicture(format, 32, 24, colour), 0, 0);
        const int tolerance = av_pix_fmt_desc_get(format)->comp[0].depth > 8 ? 1 : 0;
        expectNear(pixelOf(*image, 31, 23), {190, 60, 20}, tolerance);
    }
}

TEST(PictureRenderer, stretchesTheFewLevelsOfSmallFormats) {
    for (const AVPixelFormat format :
         {AV_PIX_FMT_RGB565LE, AV_PIX_FMT_RGB555BE, AV_PIX_FMT_BGR444LE, AV_PIX_FMT_RGB8,
          AV_PIX_FMT_RGB4_BYTE, AV_PIX_FMT_BGR4}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        PictureRenderer renderer(trackOf(32, 24));
        const auto image = renderer.render(*drawPicture(format, 32, 24, flat(1, 0, 1)), 0, 0);
        EXPECT_EQ(pixelOf(*image, 30, 20), (Colour{255, 0, 255}));
    }
}

TEST(PictureRenderer, showsGreyAndBlackAndWhite) {
    struct Kind {
        AVPixelFormat format;
        AVColorRange range;
    };

    for (const auto& [format, range] :
         {Kind{AV_PIX_FMT_GRAY8, AVCOL_RANGE_JPEG}, Kind{AV_PIX_FMT_GRAY8, AVCOL_RANGE_MPEG},
          Kind{AV_PIX_FMT_GRAY10LE, AVCOL_RANGE_MPEG}, Kind{AV_PIX_FMT_GRAY16BE, AVCOL_RANGE_JPEG},
          Kind{AV_PIX_FMT_YA8, AVCOL_RANGE_JPEG}}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        PictureRenderer renderer(trackOf(32, 24));
        const auto frame = drawPicture(format, 32, 24, flat(0.6), {.range = range});
        expectNear(pixelOf(*renderer.render(*frame, 0, 0), 30, 20), {153, 153, 153}, 2);
    }
    for (const AVPixelFormat format : {AV_PIX_FMT_MONOWHITE, AV_PIX_FMT_MONOBLACK}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        PictureRenderer renderer(trackOf(32, 24));
        const auto frame =
            drawPicture(format, 32, 24, [](int, double x, double) { return x < 16 ? 0.0 : 1.0; });
        const auto image = renderer.render(*frame, 0, 0);
        const int first = format == AV_PIX_FMT_MONOWHITE ? 255 : 0;
        EXPECT_EQ(pixelOf(*image, 5, 5), (Colour{first, first, first}));
        EXPECT_EQ(pixelOf(*image, 25, 5), (Colour{255 - first, 255 - first, 255 - first}));
    }
}

TEST(PictureRenderer, showsTransparencyOverBlackAndIsOpaque) {
    struct Kind {
        AVPixelFormat format;
        ChannelFunction picture;
    };

    const Kind kinds[] = {{AV_PIX_FMT_BGRA, flat(0.8, 0.4, 0.2, 0.5)},
                          {AV_PIX_FMT_GBRAP10LE, flat(0.8, 0.4, 0.2, 0.5)},
                          {AV_PIX_FMT_RGBA64BE, flat(0.8, 0.4, 0.2, 0.5)}};
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(av_get_pix_fmt_name(kind.format));
        PictureRenderer renderer(trackOf(32, 24));
        const auto image = renderer.render(*drawPicture(kind.format, 32, 24, kind.picture), 0, 0);
        expectNear(pixelOf(*image, 9, 9), {102, 51, 26}, 1);
        for (std::size_t byte = 3; byte < image->pixels.size(); byte += 4)
            ASSERT_EQ(image->pixels[byte], 255);
    }
    const auto white = drawPicture(AV_PIX_FMT_YUVA420P, 32, 24, flat(1, 0.5, 0.5, 0.5));
    PictureRenderer renderer(trackOf(32, 24));
    expectNear(pixelOf(*renderer.render(*white, 0, 0), 9, 9), {128, 128, 128}, 2);
}

/// Four quarters in four colours.
ffmpeg::FramePtr drawQuarters(int width, int height) {
    return drawPicture(AV_PIX_FMT_GBRP, width, height, [=](int channel, double x, double y) {
        const int quarter = (x < width / 2.0 ? 0 : 1) + (y < height / 2.0 ? 0 : 2);
        constexpr double kChannels[4][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 1}};
        return channel > 2 ? 1 : kChannels[quarter][channel];
    });
}

TEST(PictureRenderer, turnsAndMirrorsThePictureUpright) {
    const Size size{48, 32};
    const Colour quarters[] = {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 255}};
    for (int index = 0; index < 8; ++index) {
        SCOPED_TRACE(testing::Message() << "orientation " << index);
        // Display matrices need not keep the picture at the origin.
        const AffineTransform upright =
            orientation(index, size).concatenated(AffineTransform::translation(-300, 200));
        PictureRenderer renderer(trackOf(48, 32, upright));
        const auto image = renderer.render(*drawQuarters(48, 32), 0, 0);
        const bool isTurned = index / 2 % 2 != 0;
        ASSERT_EQ(image->width, isTurned ? 32 : 48);
        ASSERT_EQ(image->height, isTurned ? 48 : 32);
        for (int quarter = 0; quarter < 4; ++quarter) {
            const Point source{quarter % 2 ? 47.5 : 0.5, quarter / 2 ? 31.5 : 0.5};
            const Point place = orientation(index, size).apply(source);
            EXPECT_EQ(pixelOf(*image, static_cast<int>(place.x), static_cast<int>(place.y)),
                      quarters[quarter]);
        }
    }
}

TEST(PictureRenderer, appliesThePixelAspectRatio) {
    // Coded 40 × 24 with pixels twice as wide as high.
    PictureRenderer renderer(trackOf(80, 24));
    const auto frame = drawQuarters(40, 24);
    const auto image = renderer.render(*frame, 0, 0);
    EXPECT_EQ(image->width, 80);
    EXPECT_EQ(image->height, 24);
    EXPECT_EQ(pixelOf(*image, 30, 5), (Colour{255, 0, 0}));
    EXPECT_EQ(pixelOf(*image, 50, 5), (Colour{0, 255, 0}));
}

TEST(PictureRenderer, fitsThePictureIntoThePixelsGivenAndNeverEnlargesIt) {
    struct Fit {
        Size natural;
        int maxWidth;
        int maxHeight;
        int width;
        int height;
    };

    const Fit fits[] = {
        {{64, 48}, 0, 0, 64, 48},
        {{64, 48}, 640, 480, 64, 48},
        {{64, 48}, 32, 32, 32, 24},
        {{64, 48}, 0, 24, 32, 24},
        {{64, 48}, 16, 0, 16, 12},
        {{64, 48}, 1, 1, 1, 1},
        {{64, 4}, 8, 8, 8, 1},
        {{4, 64}, 8, 8, 1, 8},
        {{1, 1}, 100, 100, 1, 1},
        {{65, 49}, 33, 100, 33, 25},
        {{300, 2}, 10, 0, 10, 1},
        {{64.4, 47.6}, 0, 0, 64, 48},
        {{1920, 1080}, 0, 120, 213, 120},
    };
    for (const Fit& fit : fits) {
        PictureRenderer renderer(trackOf(fit.natural.width, fit.natural.height));
        const int width = std::max(1, static_cast<int>(fit.natural.width));
        const int height = std::max(1, static_cast<int>(fit.natural.height));
        const auto frame = drawPicture(AV_PIX_FMT_YUV420P, width, height, flat(1));
        const auto image = renderer.render(*frame, fit.maxWidth, fit.maxHeight);
        EXPECT_EQ(image->width, fit.width) << fit.natural.width << " x " << fit.natural.height;
        EXPECT_EQ(image->height, fit.height) << fit.natural.width << " x " << fit.natural.height;
        ASSERT_EQ(image->byteCount(),
                  static_cast<std::size_t>(image->stride) * static_cast<std::size_t>(fit.height));
        ASSERT_GE(image->stride, 4 * image->width);
        for (int y = 0; y < fit.height; ++y)
            for (int x = 0; x < fit.width; ++x)
                expectNear(pixelOf(*image, x, y), {255, 255, 255}, 1);
    }
}

/// The colour of the waves at a place, by BT.709 and full range.
std::array<double, 3> waveColour(double x, double y) {
    const double luma = waves(0, x, y);
    const double cb = (waves(1, x, y) - 0.5) * 0.4;
    const double cr = (waves(2, x, y) - 0.5) * 0.4;
    const double red = luma + 1.5748 * cr;
    const double blue = luma + 1.8556 * cb;
    const double green = (luma - 0.2126 * red - 0.0722 * blue) / 0.7152;
    const auto level = [](double value) { return std::clamp(value, 0.0, 1.0) * 255; };
    return {level(red), level(green), level(blue)};
}

TEST(PictureRenderer, shiftsNeitherLumaNorChroma) {
    const auto paleWaves = [](int channel, double x, double y) {
        const double value = waves(channel, x, y);
        return channel == 0 ? value : 0.5 + (value - 0.5) * 0.4;
    };
    const Size size{160, 120};
    for (const AVChromaLocation location :
         {AVCHROMA_LOC_LEFT, AVCHROMA_LOC_CENTER, AVCHROMA_LOC_TOPLEFT}) {
        for (int index = 0; index < 8; ++index) {
            for (const int divisor : {1, 2, 3}) {
                SCOPED_TRACE(testing::Message() << "location " << location << ", orientation "
                                                << index << ", divisor " << divisor);
                const AffineTransform upright = orientation(index, size);
                const Size oriented = upright.apply(Rect{0, 0, size.width, size.height}).size();
                PictureRenderer renderer(trackOf(size.width, size.height, upright));
                const auto frame = drawPicture(
                    AV_PIX_FMT_YUV420P, 160, 120, paleWaves,
                    {.range = AVCOL_RANGE_JPEG, .matrix = AVCOL_SPC_BT709, .location = location});
                const auto image =
                    renderer.render(*frame, static_cast<int>(oriented.width) / divisor, 0);
                const AffineTransform toSource = upright.inverted();
                double worst = 0;
                for (int y = 6; y < image->height - 6; ++y) {
                    for (int x = 6; x < image->width - 6; ++x) {
                        const Point place =
                            toSource.apply(Point{(x + 0.5) * oriented.width / image->width,
                                                 (y + 0.5) * oriented.height / image->height});
                        const auto expected = waveColour(place.x, place.y);
                        const Colour actual = pixelOf(*image, x, y);
                        worst = std::max({worst, std::abs(actual.red - expected[0]),
                                          std::abs(actual.green - expected[1]),
                                          std::abs(actual.blue - expected[2])});
                    }
                }
                EXPECT_LT(worst, 3);
            }
        }
    }
}

TEST(PictureRenderer, takesFramesThatChangeSizeAndFormat) {
    PictureRenderer renderer(trackOf(64, 48));
    for (int round = 0; round < 3; ++round) {
        for (const int size : {64, 32, 16, 48, 20, 64}) {
            const auto yuv = drawPicture(AV_PIX_FMT_YUV422P, size, size, flat(0.6));
            const auto rgb = drawPicture(AV_PIX_FMT_RGB24, size, size, flat(0.6, 0.6, 0.6));
            for (const auto* frame : {yuv.get(), rgb.get()}) {
                const auto image = renderer.render(*frame, 32, 32);
                ASSERT_EQ(image->width, 32);
                ASSERT_EQ(image->height, 24);
                expectNear(pixelOf(*image, 31, 23), {153, 153, 153}, 1);
            }
        }
    }
}

TEST(PictureRenderer, readsFloatingPointSamples) {
    for (const AVPixelFormat format : {AV_PIX_FMT_GBRPF32LE, AV_PIX_FMT_GRAYF32LE}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        auto frame = ffmpeg::makeFrame();
        frame->format = format;
        frame->width = 32;
        frame->height = 24;
        ASSERT_EQ(av_frame_get_buffer(frame.get(), 0), 0);
        for (int plane = 0; plane < av_pix_fmt_count_planes(format); ++plane) {
            for (int y = 0; y < 24; ++y) {
                auto* line = reinterpret_cast<float*>(frame->data[plane] +
                                                      std::ptrdiff_t{y} * frame->linesize[plane]);
                std::fill_n(line, 32, 0.6F);
            }
        }
        PictureRenderer renderer(trackOf(32, 24));
        expectNear(pixelOf(*renderer.render(*frame, 0, 0), 9, 9), {153, 153, 153}, 2);
    }
}

TEST(PictureRenderer, refusesWhatHasNoSamplesToRead) {
    auto frame = ffmpeg::makeFrame();
    frame->format = AV_PIX_FMT_VAAPI;
    frame->width = 32;
    frame->height = 24;
    PictureRenderer renderer(trackOf(32, 24));
    EXPECT_THROW(static_cast<void>(renderer.render(*frame, 0, 0)), Error);
}

} // namespace

} // namespace media::test
