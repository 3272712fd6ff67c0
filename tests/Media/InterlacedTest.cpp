#include "Media/Export/Deinterlacer.h"
#include "Media/ExportFixture.h"
#include "Media/FFmpeg/LibavReleases.h"
#include "Media/Reading/VideoReader.h"
#include "Media/SyntheticPicture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

/// Pictures that weave two moments together: kept so where pictures stay as they are, and shown as
/// one moment where they are rendered.
namespace media {
namespace {

using testing::Each;
using testsupport::cachedMedia;
using testsupport::runProcessOrThrow;

enum class First { top, bottom };

/// Bars and counters that move, 25 pictures a second woven out of 50, coded without loss.
std::filesystem::path wovenVideo(First first, const std::string& pixelFormat) {
    const bool isTop = first == First::top;
    return cachedMedia(std::string(isTop ? "top-" : "bottom-") + pixelFormat + ".mkv",
                       {"-f", "lavfi", "-i", "testsrc2=s=192x144:r=50:d=0.6", "-vf",
                        "format=" + pixelFormat +
                            ",tinterlace=mode=" + (isTop ? "interleave_top" : "interleave_bottom") +
                            ",setfield=" + (isTop ? "tff" : "bff"),
                        "-c:v", "libx264", "-qp", "0", "-pix_fmt", pixelFormat, "-x264-params",
                        isTop ? "tff=1" : "bff=1"});
}

std::vector<std::string> fieldFlags(const std::filesystem::path& path) {
    const std::string output =
        runProcessOrThrow({"ffprobe", "-v", "error", "-select_streams", "v:0", "-show_entries",
                           "frame=interlaced_frame,top_field_first", "-of", "csv=p=0", path})
            .output;
    std::vector<std::string> flags;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        // Pictures with side data bring more commas and empty lines.
        if (!line.empty())
            flags.push_back(line.substr(0, 3));
    }
    return flags;
}

std::vector<ffmpeg::FramePtr> decoded(const std::filesystem::path& path) {
    const auto asset = Asset::open(path);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    std::vector<ffmpeg::FramePtr> frames;
    while (auto frame = reader.next())
        frames.push_back(std::move(frame->frame));
    return frames;
}

TEST(Deinterlacer, doesWhatTheFilterOfItsNameDoes) {
    for (const First first : {First::top, First::bottom}) {
        for (const std::string format : {"yuv420p", "yuv422p10le"}) {
            SCOPED_TRACE(format);
            const auto source = wovenVideo(first, format);
            const auto expected =
                cachedMedia("whole-" + source.filename().string(),
                            {"-i", source, "-vf", "bwdif=mode=send_frame", "-c:v", "ffv1"});
            const auto woven = decoded(source);
            const auto whole = decoded(expected);
            ASSERT_EQ(woven.size(), whole.size());
            double sum = 0;
            std::int64_t count = 0;
            // At its ends the filter does without the pictures around.
            for (std::size_t i = 1; i + 1 < woven.size(); ++i) {
                const auto result =
                    Deinterlacer::apply(*woven[i], woven[i - 1].get(), woven[i + 1].get());
                EXPECT_FALSE(ffmpeg::isInterlaced(*result));
                for (int plane = 0; plane < 3; ++plane) {
                    // The filter has other rules for the outermost lines.
                    for (int y = 5; y < test::planeHeight(*result, plane) - 5; ++y) {
                        for (int x = 0; x < test::planeWidth(*result, plane); ++x) {
                            sum += std::abs(test::sampleOf(*result, plane, x, y) -
                                            test::sampleOf(*whole[i], plane, x, y));
                            ++count;
                        }
                    }
                }
            }
            EXPECT_LT(sum / static_cast<double>(count), 0.02);
        }
    }
}

TEST(Deinterlacer, leavesWhatDoesNotMoveAsItIs) {
    const auto picture = test::drawNoise(AV_PIX_FMT_YUV422P10, 64, 48);
    ffmpeg::setInterlaced(*picture, true);
    const auto result = Deinterlacer::apply(*picture, picture.get(), picture.get());
    EXPECT_NE(result->data[0], picture->data[0]);
    for (int plane = 0; plane < 3; ++plane) {
        for (int y = 0; y < test::planeHeight(*result, plane); ++y) {
            for (int x = 0; x < test::planeWidth(*result, plane); ++x)
                ASSERT_EQ(test::sampleOf(*result, plane, x, y),
                          test::sampleOf(*picture, plane, x, y));
        }
    }
}

/// Which sample of the planes y, u and v each byte of a 4:2:2 picture is, two pixels in four bytes.
struct PackedByte {
    int plane;
    int column;
};

ffmpeg::FramePtr packed(const AVFrame& planar, AVPixelFormat format,
                        const std::array<PackedByte, 4>& bytes) {
    ffmpeg::FramePtr result = ffmpeg::makeFrame();
    result->format = format;
    result->width = planar.width;
    result->height = planar.height;
    EXPECT_EQ(av_frame_get_buffer(result.get(), 0), 0);
    EXPECT_EQ(av_frame_copy_props(result.get(), &planar), 0);
    for (int y = 0; y < planar.height; ++y) {
        std::uint8_t* line = result->data[0] + std::ptrdiff_t{y} * result->linesize[0];
        for (int pair = 0; pair < planar.width / 2; ++pair) {
            for (const auto& [plane, column] : bytes) {
                const int x = plane == 0 ? 2 * pair + column : pair;
                *line++ = static_cast<std::uint8_t>(test::sampleOf(planar, plane, x, y));
            }
        }
    }
    return result;
}

TEST(Deinterlacer, doesWithPackedPicturesWhatItDoesWithPlanarOnes) {
    const auto woven = decoded(wovenVideo(First::top, "yuv422p"));
    ASSERT_GE(woven.size(), 3U);
    const auto expected = Deinterlacer::apply(*woven[1], woven[0].get(), woven[2].get());
    const std::vector<std::pair<AVPixelFormat, std::array<PackedByte, 4>>> layouts = {
        {AV_PIX_FMT_UYVY422, {{{1, 0}, {0, 0}, {2, 0}, {0, 1}}}},
        {AV_PIX_FMT_YUYV422, {{{0, 0}, {1, 0}, {0, 1}, {2, 0}}}}};
    for (const auto& [format, bytes] : layouts) {
        const auto result = Deinterlacer::apply(*packed(*woven[1], format, bytes),
                                                packed(*woven[0], format, bytes).get(),
                                                packed(*woven[2], format, bytes).get());
        const auto wanted = packed(*expected, format, bytes);
        EXPECT_FALSE(ffmpeg::isInterlaced(*result));
        for (int y = 0; y < wanted->height; ++y) {
            EXPECT_EQ(std::memcmp(result->data[0] + std::ptrdiff_t{y} * result->linesize[0],
                                  wanted->data[0] + std::ptrdiff_t{y} * wanted->linesize[0],
                                  2 * static_cast<std::size_t>(wanted->width)),
                      0)
                << y;
        }
    }
}

TEST(Deinterlacer, doesNotTouchWholePictures) {
    const auto picture = test::drawNoise(AV_PIX_FMT_YUV420P, 64, 48);
    EXPECT_EQ(Deinterlacer::apply(*picture, nullptr, nullptr)->data[0], picture->data[0]);
}

using InterlacedExport = ExportTest;

TEST_F(InterlacedExport, keepsTheFieldsOfPicturesThatAreNotRendered) {
    for (const First first : {First::top, First::bottom}) {
        for (const std::string format : {"yuv420p", "yuv422p"}) {
            for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
                const auto source = wovenVideo(first, format);
                const auto output = exported(source, 0, 0.6, type);
                EXPECT_THAT(fieldFlags(output), Each(first == First::top ? "1,1" : "1,0"));
                EXPECT_EQ(video(output).text("field_order"), first == First::top ? "tt" : "bb");
                EXPECT_GT(testsupport::ssim(source, output), 0.95);
                EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
            }
        }
    }
}

/// Without mixing the colours of two moments: the chroma of each field is that of the field's own
/// lines.
TEST_F(InterlacedExport, keepsTheColoursOfTheFieldsApart) {
    const auto source = cachedMedia(
        "two-colours.mkv", {"-f", "lavfi", "-i",
                            "color=red:s=64x64:r=50:d=0.4,format=yuv422p,geq=lum=128:"
                            "cb='if(mod(N,2),90,160)':cr='if(mod(N,2),170,80)'",
                            "-vf", "tinterlace=mode=interleave_top,setfield=tff", "-c:v", "libx264",
                            "-qp", "0", "-pix_fmt", "yuv422p", "-x264-params", "tff=1"});
    const auto frames = decoded(exported(source, 0, 0.4));
    ASSERT_FALSE(frames.empty());
    for (const auto& frame : frames) {
        for (int y = 4; y < 28; ++y) {
            EXPECT_NEAR(test::sampleOf(*frame, 1, 16, y), y % 2 == 0 ? 160 : 90, 3);
            EXPECT_NEAR(test::sampleOf(*frame, 2, 16, y), y % 2 == 0 ? 80 : 170, 3);
        }
    }
}

TEST_F(InterlacedExport, showsOneMomentWhereItIsRendered) {
    // Every other picture of what was woven together, whole.
    const auto moments = cachedMedia(
        "moments.mkv", {"-f", "lavfi", "-i", "testsrc2=s=192x144:r=50:d=0.6,format=yuv420p", "-vf",
                        "select='not(mod(n,2))',settb=1/25,setpts=N", "-r", "25", "-c:v", "ffv1"});
    const auto source = wovenVideo(First::top, "yuv420p");
    const auto asset = Asset::open(source);
    const auto output = exportedAs(compositionOf(asset, 0, 0.6),
                                   renderedAt(asset->tracks(MediaType::video).at(0), 192, 144, 25));
    EXPECT_THAT(fieldFlags(output), Each("0,0"));
    EXPECT_EQ(video(output).text("field_order"), "progressive");
    EXPECT_GT(testsupport::ssim(moments, output), 0.97);
    EXPECT_LT(testsupport::ssim(moments, source), 0.965);
}

} // namespace
} // namespace media
