#include "Media/Pictures/PictureTransform.h"

#include "Media/Error.h"
#include "SyntheticPicture.h"
#include "TransformDeviation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace media::test {

namespace {

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

TEST(PictureTransformEdges, isBlackOutsideOfTheSource) {
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

TEST(PictureTransformEdges, halvesTheChromaThatAnOddPictureSharesWithBlack) {
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

TEST(PictureTransformEdges, isAllBlackWhereTheCanvasMissesTheSource) {
    PictureTransform transform(AffineTransform::translation(-500, 0), {32, 24},
                               {.width = 16, .height = 16});
    const auto result = transform.apply(*drawNoise(AV_PIX_FMT_YUV420P, 32, 24));
    expectColours(*result, {}, {}, {16, 128, 128});
}

TEST(PictureTransformEdges, stretchesToTheNaturalSize) {
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

TEST(PictureTransformEdges, takesFramesThatChangeSizeAndFormat) {
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

TEST(PictureTransformEdges, composesTransparentPicturesOverBlack) {
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

TEST(PictureTransformEdges, composesTransparentRgbOverBlack) {
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

TEST(PictureTransformEdges, givesGreyPicturesNeutralChroma) {
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

TEST(PictureTransformEdges, keepsFullRangeChromaNeutralThroughAChangeOfDepth) {
    const auto source =
        drawPicture(AV_PIX_FMT_YUV420P, 32, 24, flat(1.0), {.range = AVCOL_RANGE_JPEG});
    PictureTransform transform({}, {32, 24},
                               {.width = 32, .height = 24, .format = AV_PIX_FMT_YUV420P10});
    const auto result = transform.apply(*source);
    EXPECT_EQ(sampleOf(*result, 0, 9, 9), 1023);
    EXPECT_EQ(sampleOf(*result, 1, 9, 9), 512);
    EXPECT_EQ(sampleOf(*result, 2, 9, 9), 512);
}

TEST(PictureTransformEdges, readsPalettesAndTheirTransparency) {
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

TEST(PictureTransformEdges, takesPicturesAndCanvasesOfVeryFewPixels) {
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

TEST(PictureTransformEdges, cutsANarrowStripOutOfALargePicture) {
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
TEST(PictureTransformEdges, computesEveryColumnAtScalesAroundOneHalf) {
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

TEST(PictureTransformEdges, shrinksAPictureToTwoPixels) {
    PictureTransform transform(AffineTransform::scale(2.0 / 320, 2.0 / 240), {320, 240},
                               {.width = 2, .height = 2});
    const auto source = drawPicture(AV_PIX_FMT_YUV420P, 320, 240, flat(0.7, 0.3, 0.8));
    const auto result = transform.apply(*source);
    for (int plane = 0; plane < 3; ++plane)
        EXPECT_EQ(sampleOf(*result, plane, 0, 0), sampleOf(*source, plane, 0, 0));
}

TEST(PictureTransformEdges, takesFramesAtAnyAddressAndUpsideDown) {
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

TEST(PictureTransformEdges, keepsItsFramesIntactAndOutlivesThem) {
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

TEST(PictureTransformEdges, takesTheNearestQuarterTurnOfAnyTransform) {
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

TEST(PictureTransformEdges, refusesWhatHasNoSamplesToRead) {
    auto frame = ffmpeg::makeFrame();
    frame->format = AV_PIX_FMT_VAAPI;
    frame->width = 32;
    frame->height = 24;
    PictureTransform transform({}, {32, 24}, {.width = 32, .height = 24});
    EXPECT_THROW(static_cast<void>(transform.apply(*frame)), Error);
}

} // namespace

} // namespace media::test
