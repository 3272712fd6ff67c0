#include "Media/Pictures/PictureTransform.h"

#include "SyntheticPicture.h"
#include "TransformDeviation.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace media::test {

namespace {

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

} // namespace

} // namespace media::test
