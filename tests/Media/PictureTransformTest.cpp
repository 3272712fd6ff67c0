#include "Media/PictureTransform.h"

#include "Media/Error.h"
#include "SyntheticPicture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

namespace media::test {

namespace {

constexpr int kWidth = 160;
constexpr int kHeight = 120;

AVPixFmtDescriptor descriptorOf(AVPixelFormat format) {
    return *av_pix_fmt_desc_get(format);
}

struct Canvas {
    AffineTransform toCanvas;
    int width;
    int height;
};

/// The picture in one of its eight orientations, then a region of it, then a scale.
Canvas canvasOf(int turn, Size natural, Rect region, double scale) {
    const AffineTransform transform =
        orientation(turn, natural)
            .concatenated(AffineTransform::translation(-region.x, -region.y))
            .concatenated(AffineTransform::scale(scale, scale));
    return {transform, static_cast<int>(region.width * scale) / 2 * 2,
            static_cast<int>(region.height * scale) / 2 * 2};
}

struct Deviation {
    /// Largest difference from the value that the picture has at the sample's place; in levels of
    /// 8 bits.
    double luma = 0;
    double chroma = 0;
};

/// Compares with the function that the source was drawn with, at each sample's place. Samples whose
/// place is nearer than `margin` pixels to the source's border are left out: there the filter also
/// sees what is not part of the function.
Deviation deviationFrom(const ChannelFunction& value, const AVFrame& frame, const Canvas& canvas,
                        Size source, double margin) {
    const AVPixFmtDescriptor format = descriptorOf(static_cast<AVPixelFormat>(frame.format));
    const int depth = format.comp[0].depth;
    const AffineTransform toSource = canvas.toCanvas.inverted();
    const Rect inner = Rect{0, 0, source.width, source.height}.insetBy(margin, margin);
    Deviation deviation;
    for (int plane = 0; plane < 3; ++plane) {
        double& worst = plane > 0 ? deviation.chroma : deviation.luma;
        for (int row = 0; row < planeHeight(frame, plane); ++row) {
            for (int column = 0; column < planeWidth(frame, plane); ++column) {
                const Point place =
                    toSource.apply(samplePlace(format, frame.chroma_location, plane, column, row));
                if (!inner.contains(Rect{place.x, place.y, 0, 0}))
                    continue;
                const double expected = levelOf(value(plane, place.x, place.y), depth, plane > 0,
                                                frame.color_range == AVCOL_RANGE_JPEG);
                const double difference = std::abs(sampleOf(frame, plane, column, row) - expected);
                worst = std::max(worst, difference / std::exp2(depth - 8));
            }
        }
    }
    return deviation;
}

struct RegionCase {
    const char* name;
    AVPixelFormat source;
    AVPixelFormat output;
    AVChromaLocation location;
    AVColorRange range;
    bool isOddSize;
};

void PrintTo(const RegionCase& testCase, std::ostream* out) {
    *out << testCase.name;
}

class PictureTransformRegion : public testing::TestWithParam<RegionCase> {};

constexpr RegionCase kRegionCases[] = {
    {"leftSited420", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_LEFT,
     AVCOL_RANGE_UNSPECIFIED, false},
    {"untagged420", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_UNSPECIFIED,
     AVCOL_RANGE_MPEG, false},
    {"centred420FullRange", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_CENTER,
     AVCOL_RANGE_JPEG, false},
    {"topLeft420", AV_PIX_FMT_YUV420P10, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_TOPLEFT,
     AVCOL_RANGE_MPEG, false},
    {"top420", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_TOP, AVCOL_RANGE_MPEG, false},
    {"bottomLeft420", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_BOTTOMLEFT,
     AVCOL_RANGE_MPEG, false},
    {"oddSize420", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_LEFT, AVCOL_RANGE_MPEG,
     true},
    {"bits8To10", AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, AVCOL_RANGE_MPEG,
     false},
    {"bits10To8", AV_PIX_FMT_YUV420P10, AV_PIX_FMT_YUV420P, AVCHROMA_LOC_LEFT, AVCOL_RANGE_MPEG,
     false},
    {"leftSited422", AV_PIX_FMT_YUV422P10, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT,
     AVCOL_RANGE_MPEG, false},
    {"full444", AV_PIX_FMT_YUV444P12, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_UNSPECIFIED,
     AVCOL_RANGE_MPEG, true},
};

TEST_P(PictureTransformRegion, showsExactlyThePlacesAskedForInEveryOrientation) {
    const RegionCase& test = GetParam();
    const int odd = test.isOddSize ? 1 : 0;
    const Size size{kWidth + double(odd), kHeight + double(odd)};
    const auto source = drawPicture(test.source, kWidth + odd, kHeight + odd, waves,
                                    {.range = test.range, .location = test.location});
    // Both sides of a turned region are at least 6 pixels inside of the shorter side.
    const Rect regions[] = {{16, 24, 90, 72}, {17, 25, 91, 71}};
    for (int turn = 0; turn < 8; ++turn) {
        for (const Rect& region : regions) {
            for (const double scale : {1.0, 2.0 / 3, 0.45}) {
                SCOPED_TRACE(testing::Message() << "orientation " << turn << ", region at "
                                                << region.x << ", scale " << scale);
                const Canvas canvas = canvasOf(turn, size, region, scale);
                PictureTransform transform(
                    canvas.toCanvas, size,
                    {.width = canvas.width, .height = canvas.height, .format = test.output});
                const auto result = transform.apply(*source);
                ASSERT_EQ(result->width, canvas.width);
                ASSERT_EQ(result->height, canvas.height);
                ASSERT_EQ(result->format, test.output);
                // No margin: the region's own border must be computed from what lies beyond it.
                const Deviation deviation = deviationFrom(waves, *result, canvas, size, 0);
                EXPECT_LT(deviation.luma, 1.5);
                EXPECT_LT(deviation.chroma, 1.5);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, PictureTransformRegion, testing::ValuesIn(kRegionCases),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(PictureTransform, readsEveryKindOfPixelFormat) {
    const AVPixelFormat formats[] = {
        AV_PIX_FMT_YUV410P,     AV_PIX_FMT_YUV411P,     AV_PIX_FMT_YUV440P,   AV_PIX_FMT_YUV422P,
        AV_PIX_FMT_YUV444P,     AV_PIX_FMT_YUV420P9,    AV_PIX_FMT_YUV420P12, AV_PIX_FMT_YUV420P16,
        AV_PIX_FMT_YUV420P10BE, AV_PIX_FMT_YUV444P16LE, AV_PIX_FMT_NV12,      AV_PIX_FMT_NV21,
        AV_PIX_FMT_NV16,        AV_PIX_FMT_P010LE,      AV_PIX_FMT_P010BE,    AV_PIX_FMT_P016LE,
        AV_PIX_FMT_YUYV422,     AV_PIX_FMT_UYVY422,     AV_PIX_FMT_YVYU422,   AV_PIX_FMT_Y210LE,
        AV_PIX_FMT_YUVA420P,    AV_PIX_FMT_YUVA444P12,
    };
    for (const AVPixelFormat format : formats) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        const Size size{kWidth, kHeight};
        const auto source =
            drawPicture(format, kWidth, kHeight, waves, {.location = AVCHROMA_LOC_LEFT});
        const Canvas canvas = canvasOf(2, size, {21, 32, 72, 80}, 0.75);
        PictureTransform transform(
            canvas.toCanvas, size,
            {.width = canvas.width, .height = canvas.height, .format = AV_PIX_FMT_YUV420P10});
        const auto result = transform.apply(*source);
        const Deviation deviation = deviationFrom(waves, *result, canvas, size, 8);
        EXPECT_LT(deviation.luma, 1.0);
        EXPECT_LT(deviation.chroma, 1.0);
    }
}

/// What RGB with the waves as red, green and blue is in Y′CbCr.
ChannelFunction wavesConverted(double redWeight, double blueWeight) {
    return [=](int channel, double x, double y) {
        const double red = waves(0, x, y);
        const double green = waves(1, x, y);
        const double blue = waves(2, x, y);
        const double luma =
            redWeight * red + (1 - redWeight - blueWeight) * green + blueWeight * blue;
        if (channel == 0)
            return luma;
        return channel == 1 ? (blue - luma) / (2 - 2 * blueWeight) + 0.5
                            : (red - luma) / (2 - 2 * redWeight) + 0.5;
    };
}

TEST(PictureTransform, convertsRgbWithTheMatrixGiven) {
    struct Matrix {
        AVColorSpace tag;
        ChannelFunction expected;
    };

    const Matrix matrices[] = {{AVCOL_SPC_BT709, wavesConverted(0.2126, 0.0722)},
                               {AVCOL_SPC_SMPTE170M, wavesConverted(0.299, 0.114)},
                               {AVCOL_SPC_BT2020_NCL, wavesConverted(0.2627, 0.0593)}};
    const AVPixelFormat formats[] = {AV_PIX_FMT_RGB24,   AV_PIX_FMT_BGR24,   AV_PIX_FMT_ARGB,
                                     AV_PIX_FMT_RGBA,    AV_PIX_FMT_ABGR,    AV_PIX_FMT_BGRA,
                                     AV_PIX_FMT_0RGB,    AV_PIX_FMT_BGR0,    AV_PIX_FMT_GBRP,
                                     AV_PIX_FMT_GBRP10,  AV_PIX_FMT_GBRP12,  AV_PIX_FMT_GBRP16,
                                     AV_PIX_FMT_GBRAP,   AV_PIX_FMT_GBRAP12, AV_PIX_FMT_RGB48LE,
                                     AV_PIX_FMT_BGR48BE, AV_PIX_FMT_RGBA64,  AV_PIX_FMT_X2RGB10LE};
    const Size size{kWidth, kHeight};
    const Canvas canvas = canvasOf(0, size, {21, 32, 72, 80}, 0.75);
    for (const Matrix& matrix : matrices) {
        for (const AVPixelFormat format : formats) {
            SCOPED_TRACE(av_get_pix_fmt_name(format));
            PictureTransform transform(canvas.toCanvas, size,
                                       {.width = canvas.width,
                                        .height = canvas.height,
                                        .format = AV_PIX_FMT_YUV420P,
                                        .matrixForRgb = matrix.tag});
            const auto result = transform.apply(*drawPicture(format, kWidth, kHeight, waves));
            EXPECT_EQ(result->colorspace, matrix.tag);
            EXPECT_EQ(result->color_range, AVCOL_RANGE_MPEG);
            const Deviation deviation = deviationFrom(matrix.expected, *result, canvas, size, 8);
            EXPECT_LT(deviation.luma, 1.2);
            EXPECT_LT(deviation.chroma, 1.2);
        }
    }
}

TEST(PictureTransform, turnsAndMirrorsLumaBitForBit) {
    for (const AVPixelFormat format : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P10}) {
        const auto source = drawNoise(format, 147, 131);
        const Size size{147, 131};
        for (int turn = 0; turn < 8; ++turn) {
            SCOPED_TRACE(testing::Message() << "orientation " << turn);
            const Canvas canvas = canvasOf(turn, size, {3, 5, 110, 100}, 1);
            PictureTransform transform(
                canvas.toCanvas, size,
                {.width = canvas.width, .height = canvas.height, .format = format});
            const auto result = transform.apply(*source);
            const AffineTransform toSource = canvas.toCanvas.inverted();
            int wrong = 0;
            for (int y = 0; y < canvas.height; ++y) {
                for (int x = 0; x < canvas.width; ++x) {
                    const Point place = toSource.apply(Point{x + 0.5, y + 0.5});
                    wrong +=
                        sampleOf(*result, 0, x, y) !=
                        sampleOf(*source, 0, static_cast<int>(place.x), static_cast<int>(place.y));
                }
            }
            EXPECT_EQ(wrong, 0);
        }
    }
}

TEST(PictureTransform, doesNotCopyAWholePicture) {
    const auto source = drawNoise(AV_PIX_FMT_YUV420P, 64, 48);
    source->pict_type = AV_PICTURE_TYPE_I;
    source->pts = 77;
    PictureTransform transform({}, {64, 48}, {.width = 64, .height = 48});
    const auto result = transform.apply(*source);
    for (int plane = 0; plane < 3; ++plane)
        EXPECT_EQ(result->data[plane], source->data[plane]);
    EXPECT_EQ(result->buf[0]->data, source->buf[0]->data);
    EXPECT_EQ(result->pts, 77);
    EXPECT_EQ(result->pict_type, AV_PICTURE_TYPE_NONE);
}

TEST(PictureTransform, doesNotCopyAnEvenPartOfAPicture) {
    const auto source = drawNoise(AV_PIX_FMT_YUV420P10, 65, 49);
    PictureTransform transform(AffineTransform::translation(-6, -4), {65, 49},
                               {.width = 40, .height = 30, .format = AV_PIX_FMT_YUV420P10});
    const auto result = transform.apply(*source);
    EXPECT_EQ(result->data[0], source->data[0] + 4 * source->linesize[0] + 12);
    EXPECT_EQ(result->data[1], source->data[1] + 2 * source->linesize[1] + 6);
    EXPECT_EQ(result->data[2], source->data[2] + 2 * source->linesize[2] + 6);
    EXPECT_EQ(result->width, 40);
    EXPECT_EQ(result->height, 30);
}

TEST(PictureTransform, cutsOddSizesToEvenWithoutCopying) {
    const auto source = drawNoise(AV_PIX_FMT_YUV420P, 65, 49);
    PictureTransform transform({}, {65, 49}, {.width = 64, .height = 48});
    const auto result = transform.apply(*source);
    EXPECT_EQ(result->data[0], source->data[0]);
    EXPECT_EQ(result->width, 64);
    EXPECT_EQ(result->height, 48);
}

TEST(PictureTransform, keepsLumaOfAnOddPartAsItIs) {
    const auto source = drawNoise(AV_PIX_FMT_YUV420P, 64, 48);
    PictureTransform transform(AffineTransform::translation(-7, -3), {64, 48},
                               {.width = 40, .height = 30});
    const auto result = transform.apply(*source);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(sampleOf(*result, 0, x, y), sampleOf(*source, 0, x + 7, y + 3));
}

TEST(PictureTransform, keepsEveryTagOfTheSource) {
    const auto source = drawPicture(AV_PIX_FMT_YUV422P, 64, 48, waves,
                                    {.range = AVCOL_RANGE_MPEG,
                                     .matrix = AVCOL_SPC_BT2020_NCL,
                                     .location = AVCHROMA_LOC_TOPLEFT});
    source->color_primaries = AVCOL_PRI_BT2020;
    source->color_trc = AVCOL_TRC_ARIB_STD_B67;
    source->pts = 1234;
    av_frame_new_side_data(source.get(), AV_FRAME_DATA_CONTENT_LIGHT_LEVEL, 8);
    av_frame_new_side_data(source.get(), AV_FRAME_DATA_DISPLAYMATRIX, 36);
    PictureTransform transform({}, {64, 48}, {.width = 64, .height = 48});
    const auto result = transform.apply(*source);
    EXPECT_EQ(result->color_range, AVCOL_RANGE_MPEG);
    EXPECT_EQ(result->colorspace, AVCOL_SPC_BT2020_NCL);
    EXPECT_EQ(result->color_primaries, AVCOL_PRI_BT2020);
    EXPECT_EQ(result->color_trc, AVCOL_TRC_ARIB_STD_B67);
    EXPECT_EQ(result->pts, 1234);
    EXPECT_NE(av_frame_get_side_data(result.get(), AV_FRAME_DATA_CONTENT_LIGHT_LEVEL), nullptr);
    // The picture has been laid on the canvas as it is meant to be seen.
    EXPECT_EQ(av_frame_get_side_data(result.get(), AV_FRAME_DATA_DISPLAYMATRIX), nullptr);
    // Chroma of 4:2:2 is on every line; half of the lines have theirs between two of them.
    EXPECT_EQ(result->chroma_location, AVCHROMA_LOC_LEFT);
}

TEST(PictureTransform, leavesUntaggedSourcesUntagged) {
    PictureTransform transform({}, {64, 48}, {.width = 64, .height = 48});
    const auto result = transform.apply(*drawPicture(AV_PIX_FMT_YUV444P, 64, 48, waves));
    EXPECT_EQ(result->color_range, AVCOL_RANGE_UNSPECIFIED);
    EXPECT_EQ(result->colorspace, AVCOL_SPC_UNSPECIFIED);
    EXPECT_EQ(result->chroma_location, AVCHROMA_LOC_UNSPECIFIED);
}

TEST(PictureTransform, tagsTheDeprecatedFullRangeFormats) {
    const auto source = drawNoise(AV_PIX_FMT_YUVJ420P, 64, 48);
    PictureTransform whole({}, {64, 48}, {.width = 64, .height = 48});
    const auto uncopied = whole.apply(*source);
    EXPECT_EQ(uncopied->format, AV_PIX_FMT_YUV420P);
    EXPECT_EQ(uncopied->color_range, AVCOL_RANGE_JPEG);
    EXPECT_EQ(uncopied->data[0], source->data[0]);
    PictureTransform half(AffineTransform::scale(0.5, 0.5), {64, 48}, {.width = 32, .height = 24});
    const auto scaled = half.apply(*source);
    EXPECT_EQ(scaled->format, AV_PIX_FMT_YUV420P);
    EXPECT_EQ(scaled->color_range, AVCOL_RANGE_JPEG);
}

/// Expects one colour in a rectangle of 4:2:0 (even corners) and another one around it.
void expectColours(const AVFrame& frame, Rect rect, const std::array<int, 3>& inside,
                   const std::array<int, 3>& outside) {
    for (int plane = 0; plane < 3; ++plane) {
        const double factor = plane > 0 ? 2 : 1;
        for (int row = 0; row < planeHeight(frame, plane); ++row) {
            for (int column = 0; column < planeWidth(frame, plane); ++column) {
                const Rect sample{column * factor, row * factor, factor, factor};
                const auto& expected = rect.contains(sample) ? inside : outside;
                ASSERT_EQ(sampleOf(frame, plane, column, row),
                          expected[static_cast<std::size_t>(plane)])
                    << "plane " << plane << ", column " << column << ", row " << row;
            }
        }
    }
}

TEST(PictureTransform, isBlackOutsideOfTheSource) {
    struct Range {
        AVColorRange tag;
        int black;
    };

    for (const Range& range : {Range{AVCOL_RANGE_MPEG, 16}, Range{AVCOL_RANGE_JPEG, 0}}) {
        const auto source =
            drawPicture(AV_PIX_FMT_YUV420P, 32, 24, flat(0.7, 0.3, 0.8), {.range = range.tag});
        const std::array<int, 3> colour{sampleOf(*source, 0, 0, 0), sampleOf(*source, 1, 0, 0),
                                        sampleOf(*source, 2, 0, 0)};
        PictureTransform transform(AffineTransform::translation(6, 4), {32, 24},
                                   {.width = 48, .height = 40});
        // Twice, for the second picture gets the memory of the first.
        for (int i = 0; i < 2; ++i)
            expectColours(*transform.apply(*source), {6, 4, 32, 24}, colour,
                          {range.black, 128, 128});
    }
}

TEST(PictureTransform, halvesTheChromaThatAnOddPictureSharesWithBlack) {
    const auto source = drawPicture(AV_PIX_FMT_YUV420P, 5, 5, flat(0.7, 0.1, 0.9));
    PictureTransform transform({}, {5, 5}, {.width = 6, .height = 6});
    const auto result = transform.apply(*source);
    EXPECT_EQ(sampleOf(*result, 0, 4, 4), sampleOf(*source, 0, 4, 4));
    EXPECT_EQ(sampleOf(*result, 0, 5, 4), 16);
    EXPECT_EQ(sampleOf(*result, 0, 4, 5), 16);
    const int chroma = sampleOf(*source, 1, 0, 0);
    EXPECT_EQ(sampleOf(*result, 1, 1, 1), chroma);
    EXPECT_NEAR(sampleOf(*result, 1, 2, 1), (chroma + 128) / 2.0, 1);
    EXPECT_NEAR(sampleOf(*result, 1, 1, 2), (chroma + 128) / 2.0, 1);
    EXPECT_NEAR(sampleOf(*result, 1, 2, 2), (chroma + 3 * 128) / 4.0, 1);
}

TEST(PictureTransform, isAllBlackWhereTheCanvasMissesTheSource) {
    PictureTransform transform(AffineTransform::translation(-500, 0), {32, 24},
                               {.width = 16, .height = 16});
    const auto result = transform.apply(*drawNoise(AV_PIX_FMT_YUV420P, 32, 24));
    expectColours(*result, {}, {}, {16, 128, 128});
}

TEST(PictureTransform, stretchesToTheNaturalSize) {
    // Half as wide as it is meant to be shown.
    const auto squeezed = [](int channel, double x, double y) { return waves(channel, 2 * x, y); };
    const auto source =
        drawPicture(AV_PIX_FMT_YUV420P, 80, 120, squeezed, {.location = AVCHROMA_LOC_LEFT});
    PictureTransform transform({}, {160, 120}, {.width = 160, .height = 120});
    const auto result = transform.apply(*source);
    const Deviation deviation = deviationFrom(waves, *result, {{}, 160, 120}, {160, 120}, 8);
    EXPECT_LT(deviation.luma, 1.5);
    EXPECT_LT(deviation.chroma, 1.5);
}

TEST(PictureTransform, takesFramesThatChangeSizeAndFormat) {
    const Size natural{kWidth, kHeight};
    PictureTransform transform({}, natural, {.width = kWidth, .height = kHeight});

    struct Kind {
        AVPixelFormat format;
        int divisor;
    };

    const Kind kinds[] = {{AV_PIX_FMT_YUV420P, 1},   {AV_PIX_FMT_YUV422P, 2},
                          {AV_PIX_FMT_YUV444P10, 1}, {AV_PIX_FMT_NV12, 2},
                          {AV_PIX_FMT_YUV420P, 2},   {AV_PIX_FMT_YUV411P, 1},
                          {AV_PIX_FMT_P010LE, 1}};
    for (int round = 0; round < 3; ++round) {
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(av_get_pix_fmt_name(kind.format));
            const auto shrunk = [&](int channel, double x, double y) {
                return waves(channel, x * kind.divisor, y * kind.divisor);
            };
            const auto source =
                drawPicture(kind.format, kWidth / kind.divisor, kHeight / kind.divisor, shrunk);
            const auto result = transform.apply(*source);
            const Deviation deviation =
                deviationFrom(waves, *result, {{}, kWidth, kHeight}, natural, 14);
            EXPECT_LT(deviation.luma, 1.5);
            EXPECT_LT(deviation.chroma, 1.5);
        }
    }
}

TEST(PictureTransform, composesTransparentPicturesOverBlack) {
    struct Transparent {
        AVPixelFormat format;
        AVPixelFormat output;
    };

    for (const auto& [format, output] :
         {Transparent{AV_PIX_FMT_YUVA420P, AV_PIX_FMT_YUV420P},
          Transparent{AV_PIX_FMT_YUVA422P10LE, AV_PIX_FMT_YUV420P10},
          Transparent{AV_PIX_FMT_YUVA444P16LE, AV_PIX_FMT_YUV420P10}}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        const auto source = drawPicture(format, 33, 23, flat(0.8, 0.2, 0.9, 0.6));
        PictureTransform transform({}, {33, 23}, {.width = 32, .height = 22, .format = output});
        const auto result = transform.apply(*source);
        const int depth = descriptorOf(output).comp[0].depth;
        const double tolerance = std::exp2(depth - 8);
        EXPECT_NEAR(sampleOf(*result, 0, 9, 9), levelOf(0.48, depth, false, false), tolerance);
        EXPECT_NEAR(sampleOf(*result, 1, 9, 9), levelOf(0.32, depth, true, false), tolerance);
        EXPECT_NEAR(sampleOf(*result, 2, 9, 9), levelOf(0.74, depth, true, false), tolerance);
    }
}

TEST(PictureTransform, composesTransparentRgbOverBlack) {
    for (const AVPixelFormat format :
         {AV_PIX_FMT_BGRA, AV_PIX_FMT_ARGB, AV_PIX_FMT_GBRAP, AV_PIX_FMT_RGBA64LE}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        const auto source = drawPicture(format, 32, 24, flat(0.8, 0.8, 0.8, 0.25));
        PictureTransform transform({}, {32, 24}, {.width = 32, .height = 24});
        const auto result = transform.apply(*source);
        EXPECT_NEAR(sampleOf(*result, 0, 9, 9), levelOf(0.2, 8, false, false), 1);
        EXPECT_NEAR(sampleOf(*result, 1, 9, 9), 128, 0);
        EXPECT_NEAR(sampleOf(*result, 2, 9, 9), 128, 0);
    }
}

TEST(PictureTransform, givesGreyPicturesNeutralChroma) {
    for (const AVPixelFormat format : {AV_PIX_FMT_GRAY8, AV_PIX_FMT_GRAY10LE, AV_PIX_FMT_GRAY16LE,
                                       AV_PIX_FMT_GRAY16BE, AV_PIX_FMT_YA8}) {
        SCOPED_TRACE(av_get_pix_fmt_name(format));
        for (const AVColorRange range : {AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG}) {
            const bool isFull = range == AVCOL_RANGE_JPEG;
            const auto source = drawPicture(format, 32, 24, flat(0.6), {.range = range});
            PictureTransform transform({}, {32, 24},
                                       {.width = 32, .height = 24, .format = AV_PIX_FMT_YUV420P10});
            const auto result = transform.apply(*source);
            EXPECT_NEAR(sampleOf(*result, 0, 9, 9), levelOf(0.6, 10, false, isFull), 2.5);
            EXPECT_EQ(sampleOf(*result, 1, 9, 9), 512);
            EXPECT_EQ(sampleOf(*result, 2, 9, 9), 512);
        }
    }
}

TEST(PictureTransform, keepsFullRangeChromaNeutralThroughAChangeOfDepth) {
    const auto source =
        drawPicture(AV_PIX_FMT_YUV420P, 32, 24, flat(1.0), {.range = AVCOL_RANGE_JPEG});
    PictureTransform transform({}, {32, 24},
                               {.width = 32, .height = 24, .format = AV_PIX_FMT_YUV420P10});
    const auto result = transform.apply(*source);
    EXPECT_EQ(sampleOf(*result, 0, 9, 9), 1023);
    EXPECT_EQ(sampleOf(*result, 1, 9, 9), 512);
    EXPECT_EQ(sampleOf(*result, 2, 9, 9), 512);
}

TEST(PictureTransform, readsPalettesAndTheirTransparency) {
    auto source = ffmpeg::makeFrame();
    source->format = AV_PIX_FMT_PAL8;
    source->width = 32;
    source->height = 24;
    ASSERT_EQ(av_frame_get_buffer(source.get(), 0), 0);
    auto* palette = reinterpret_cast<std::uint32_t*>(source->data[1]);
    palette[3] = 0xffff0000;
    palette[4] = 0x80ffffff;
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 32; ++x)
            source->data[0][y * source->linesize[0] + x] = x < 16 ? 3 : 4;
    PictureTransform transform({}, {32, 24},
                               {.width = 32, .height = 24, .matrixForRgb = AVCOL_SPC_SMPTE170M});
    const auto result = transform.apply(*source);
    EXPECT_NEAR(sampleOf(*result, 0, 4, 4), 81, 1);
    EXPECT_NEAR(sampleOf(*result, 1, 2, 2), 90, 1);
    EXPECT_NEAR(sampleOf(*result, 2, 2, 2), 240, 1);
    EXPECT_NEAR(sampleOf(*result, 0, 28, 4), 126, 1);
    EXPECT_NEAR(sampleOf(*result, 1, 14, 2), 128, 1);
}

TEST(PictureTransform, takesPicturesAndCanvasesOfVeryFewPixels) {
    for (const int width : {1, 2, 3, 5}) {
        for (const int height : {1, 2, 7}) {
            for (int turn = 0; turn < 8; ++turn) {
                const Size natural{double(width), double(height)};
                const auto source =
                    drawPicture(AV_PIX_FMT_YUV444P, width, height, flat(0.7, 0.3, 0.8));
                const Canvas canvas = canvasOf(turn, natural, {0, 0, 2, 2}, 1);
                PictureTransform transform(canvas.toCanvas, natural, {.width = 2, .height = 2});
                const auto result = transform.apply(*source);
                EXPECT_EQ(sampleOf(*result, 0, 0, 0), sampleOf(*source, 0, 0, 0))
                    << width << " x " << height << ", orientation " << turn;
            }
        }
    }
}

TEST(PictureTransform, cutsANarrowStripOutOfALargePicture) {
    const Size size{kWidth, kHeight};
    const auto source =
        drawPicture(AV_PIX_FMT_YUV420P, kWidth, kHeight, waves, {.location = AVCHROMA_LOC_LEFT});
    const Canvas canvas = canvasOf(0, size, {61, 31, 2, 60}, 1);
    PictureTransform transform(canvas.toCanvas, size,
                               {.width = canvas.width, .height = canvas.height});
    const Deviation deviation = deviationFrom(waves, *transform.apply(*source), canvas, size, 0);
    EXPECT_LT(deviation.luma, 1.0);
    EXPECT_LT(deviation.chroma, 1.5);
}

// A vector kernel of the scaler computed single columns from the wrong samples where a line is
// shrunk to a little less than half. Nothing but the scale decides it, so they are tried densely.
TEST(PictureTransform, computesEveryColumnAtScalesAroundOneHalf) {
    const Size size{kWidth, kHeight};
    const auto source =
        drawPicture(AV_PIX_FMT_YUV420P, kWidth, kHeight, waves, {.location = AVCHROMA_LOC_LEFT});
    for (int step = 0; step < 40; ++step) {
        const double scale = 0.44 + 0.003 * step;
        SCOPED_TRACE(testing::Message() << "scale " << scale);
        const Canvas canvas = canvasOf(0, size, {0, 0, kWidth, kHeight}, scale);
        PictureTransform transform(canvas.toCanvas, size,
                                   {.width = canvas.width, .height = canvas.height});
        const Deviation deviation =
            deviationFrom(waves, *transform.apply(*source), canvas, size, 16);
        EXPECT_LT(deviation.luma, 1.5);
        EXPECT_LT(deviation.chroma, 1.5);
    }
}

TEST(PictureTransform, shrinksAPictureToTwoPixels) {
    PictureTransform transform(AffineTransform::scale(2.0 / 320, 2.0 / 240), {320, 240},
                               {.width = 2, .height = 2});
    const auto source = drawPicture(AV_PIX_FMT_YUV420P, 320, 240, flat(0.7, 0.3, 0.8));
    const auto result = transform.apply(*source);
    for (int plane = 0; plane < 3; ++plane)
        EXPECT_EQ(sampleOf(*result, plane, 0, 0), sampleOf(*source, plane, 0, 0));
}

TEST(PictureTransform, takesFramesAtAnyAddressAndUpsideDown) {
    const auto whole = drawPicture(AV_PIX_FMT_YUV420P, kWidth, kHeight, waves);
    const auto flipped = ffmpeg::referenced(*whole);
    for (int plane = 0; plane < 3; ++plane) {
        flipped->data[plane] +=
            std::ptrdiff_t{planeHeight(*whole, plane) - 1} * whole->linesize[plane];
        flipped->linesize[plane] = -whole->linesize[plane];
    }
    const auto shifted = ffmpeg::referenced(*whole);
    shifted->width -= 6;
    for (int plane = 0; plane < 3; ++plane)
        shifted->data[plane] += plane > 0 ? 3 : 6;

    const auto upsideDown = [](int channel, double x, double y) {
        return waves(channel, x, kHeight - y);
    };
    const auto movedLeft = [](int channel, double x, double y) { return waves(channel, x + 6, y); };
    const AffineTransform half = AffineTransform::scale(0.5, 0.5);
    PictureTransform transform(half, {kWidth, kHeight},
                               {.width = kWidth / 2, .height = kHeight / 2});
    const Deviation first =
        deviationFrom(upsideDown, *transform.apply(*flipped), {half, 0, 0}, {kWidth, kHeight}, 12);
    EXPECT_LT(std::max(first.luma, first.chroma), 1.5);
    PictureTransform narrower(half, {kWidth - 6, kHeight},
                              {.width = kWidth / 2 - 4, .height = kHeight / 2});
    const Deviation second = deviationFrom(movedLeft, *narrower.apply(*shifted), {half, 0, 0},
                                           {kWidth - 6, kHeight}, 12);
    EXPECT_LT(std::max(second.luma, second.chroma), 1.5);
}

TEST(PictureTransform, keepsItsFramesIntactAndOutlivesThem) {
    const auto bright = drawPicture(AV_PIX_FMT_YUV444P, 32, 24, flat(0.9));
    const auto dark = drawPicture(AV_PIX_FMT_YUV444P, 32, 24, flat(0.1));
    ffmpeg::FramePtr first;
    ffmpeg::FramePtr second;
    {
        PictureTransform transform({}, {32, 24}, {.width = 32, .height = 24});
        first = transform.apply(*bright);
        second = transform.apply(*dark);
    }
    EXPECT_EQ(sampleOf(*first, 0, 31, 23), sampleOf(*bright, 0, 31, 23));
    EXPECT_EQ(sampleOf(*second, 0, 31, 23), sampleOf(*dark, 0, 31, 23));
}

TEST(PictureTransform, takesTheNearestQuarterTurnOfAnyTransform) {
    const double angle = 1.45;
    const AffineTransform slanted = AffineTransform::translation(-40, -40)
                                        .concatenated({std::cos(angle), std::sin(angle),
                                                       -std::sin(angle), std::cos(angle), 0, 0})
                                        .concatenated(AffineTransform::translation(40, 40));
    const Size size{80, 80};
    const auto source = drawNoise(AV_PIX_FMT_YUV420P, 80, 80);
    PictureTransform transform(slanted, size, {.width = 80, .height = 80});
    PictureTransform quarter(orientation(2, size), size, {.width = 80, .height = 80});
    const auto result = transform.apply(*source);
    const auto expected = quarter.apply(*source);
    for (int i = 0; i < 80; ++i)
        ASSERT_EQ(sampleOf(*result, 0, i, 79 - i / 2), sampleOf(*expected, 0, i, 79 - i / 2));
}

TEST(PictureTransform, refusesWhatHasNoSamplesToRead) {
    auto frame = ffmpeg::makeFrame();
    frame->format = AV_PIX_FMT_VAAPI;
    frame->width = 32;
    frame->height = 24;
    PictureTransform transform({}, {32, 24}, {.width = 32, .height = 24});
    EXPECT_THROW(static_cast<void>(transform.apply(*frame)), Error);
}

} // namespace

} // namespace media::test
