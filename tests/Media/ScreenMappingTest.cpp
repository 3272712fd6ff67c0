#include "Media/Pixels/ScreenMapping.h"
#include "Media/SyntheticPicture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

/// Large pictures are mapped in strips, by several threads.
namespace media::pixels {
namespace {

constexpr int kWidth = 96;
/// Not a multiple of a strip's lines.
constexpr int kHeight = 518;
const ScreenColours kHlg{.matrix = AVCOL_SPC_BT2020_NCL,
                         .transfer = AVCOL_TRC_ARIB_STD_B67,
                         .primaries = AVCOL_PRI_BT2020};

PlanarFormat formatOf(int height) {
    return {.width = kWidth, .height = height, .depth = 10};
}

/// The planes one after the other, without what lies between their lines.
using Samples = std::vector<std::uint8_t>;

Samples mapped(const AVFrame& frame, int chromaShift, int helperCount) {
    ScreenMapping mapping(formatOf(frame.height), kHlg, chromaShift,
                          std::make_shared<Helpers>(helperCount));
    std::array<ConstPlane, 3> in;
    std::array<PlaneBuffer, 3> memory;
    std::array<Plane, 3> out;
    for (std::size_t i = 0; i < 3; ++i) {
        const int shift = i > 0 ? chromaShift : 0;
        in[i] = {frame.data[i], frame.linesize[i], frame.width, frame.height};
        out[i] = memory[i].reserve(frame.width >> shift, frame.height >> shift, 8);
    }
    Samples samples;
    // The second picture must not depend on the first.
    for (int picture = 0; picture < 2; ++picture) {
        samples.clear();
        mapping.run(in, out, 10);
        for (const Plane& plane : out) {
            for (int y = 0; y < plane.height; ++y)
                samples.insert(samples.end(), plane.line(y), plane.line(y) + plane.width);
        }
    }
    return samples;
}

TEST(ScreenMapping, isTheSameByAnyNumberOfThreads) {
    const auto frame = test::drawNoise(AV_PIX_FMT_YUV444P10, kWidth, kHeight);
    for (const int chromaShift : {0, 1}) {
        const Samples alone = mapped(*frame, chromaShift, 0);
        for (const int threads : {2, 7, 16}) {
            EXPECT_TRUE(mapped(*frame, chromaShift, threads - 1) == alone)
                << threads << " threads, chroma shift " << chromaShift;
        }
    }
}

/// What a line becomes depends on the lines around it only, so a picture that begins farther down
/// has the same lines there, whatever strip they are in now. Dithering makes a difference of one.
TEST(ScreenMapping, hasNoSeams) {
    const auto frame = test::drawNoise(AV_PIX_FMT_YUV444P10, kWidth, kHeight);
    const auto lower = ffmpeg::referenced(*frame);
    constexpr int kMissing = 30;
    for (unsigned plane = 0; plane < 3; ++plane)
        lower->data[plane] += kMissing * lower->linesize[plane];
    lower->height -= kMissing;
    const Samples whole = mapped(*frame, 1, 0);
    const Samples part = mapped(*lower, 1, 0);
    // From below the line whose chroma has to do without the missing ones.
    std::size_t wholeStart = 0;
    std::size_t partStart = 0;
    for (const int shift : {0, 1, 1}) {
        const int width = kWidth >> shift;
        for (int y = 2; y < lower->height >> shift; ++y) {
            for (int x = 0; x < width; ++x) {
                const auto at = [&](const Samples& samples, std::size_t start, int line) {
                    return int{samples[start + static_cast<std::size_t>(line * width + x)]};
                };
                ASSERT_LE(std::abs(at(part, partStart, y) -
                                   at(whole, wholeStart, y + (kMissing >> shift))),
                          1)
                    << "column " << x << ", line " << y << ", shift " << shift;
            }
        }
        wholeStart += static_cast<std::size_t>(width * (kHeight >> shift));
        partStart += static_cast<std::size_t>(width * (lower->height >> shift));
    }
}

/// Lower than a strip, as high as one, and one more line.
TEST(ScreenMapping, mapsPicturesOfAnyHeight) {
    const auto reference = mapped(
        *test::drawPicture(AV_PIX_FMT_YUV444P10, kWidth, 4, test::flat(0.5, 0.4, 0.7)), 0, 1);
    for (const int height : {1, 2, 67, 68, 69, 132, 133}) {
        const auto frame =
            test::drawPicture(AV_PIX_FMT_YUV444P10, kWidth, height, test::flat(0.5, 0.4, 0.7));
        const Samples samples = mapped(*frame, 0, 1);
        const auto planeSize = static_cast<std::size_t>(kWidth * height);
        ASSERT_EQ(samples.size(), 3 * planeSize);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const int expected = reference[i / planeSize * kWidth * 4];
            ASSERT_LE(std::abs(int{samples[i]} - expected), 1) << height << " lines, " << i;
        }
    }
}

} // namespace
} // namespace media::pixels
