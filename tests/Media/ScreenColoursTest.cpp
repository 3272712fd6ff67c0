#include "ColourDifference.h"
#include "Media/Pictures/PictureRenderer.h"
#include "Media/Reading/VideoReader.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

/// Pictures that a usual screen cannot take as they are, against what ffmpeg makes of them with its
/// own filters for the purpose.
namespace {

using testsupport::cachedMedia;
using testsupport::runProcess;

struct Chart {
    std::string name;
    /// The tags, as the options of setparams.
    std::string tags;
    std::string range;
    std::string format;
    /// Filters of the reference, up to full-range R′G′B′.
    std::string reference;
};

const std::string kToneMapped = "zscale=t=linear:npl=100,format=gbrpf32le,zscale=p=bt709,"
                                "tonemap=tonemap=hable:desat=0,zscale=t=bt709:r=pc,format=gbrp";
const std::string kGamutMapped = "zscale=p=bt709:r=pc,format=gbrp";

/// A chart of the colours that are used to judge cameras, as large patches.
std::string chartFile(const Chart& chart) {
    return cachedMedia("colour-chart-" + chart.name + ".mkv",
                       {"-f", "lavfi", "-i", "colorchart=preset=reference:patch_size=64x64",
                        "-frames:v", "1", "-vf",
                        "format=gbrp,scale=out_color_matrix=bt2020:out_range=" + chart.range +
                            ",format=" + chart.format + ",setparams=" + chart.tags +
                            ":range=" + chart.range,
                        "-c:v", "ffv1"});
}

/// The picture as R G B bytes.
std::string referenceOf(const std::string& path, const std::string& filters) {
    const auto result = runProcess({"ffmpeg", "-v", "error", "-i", path, "-vf", filters, "-pix_fmt",
                                    "rgb24", "-f", "rawvideo", "-"});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    return result.output;
}

constexpr media::test::LumaWeights kBt709{};

media::test::YCbCr colourOf(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    const double r = red / 255.0;
    const double g = green / 255.0;
    const double b = blue / 255.0;
    const double y = kBt709.red * r + (1 - kBt709.red - kBt709.blue) * g + kBt709.blue * b;
    return {y, (b - y) / (2 - 2 * kBt709.blue), (r - y) / (2 - 2 * kBt709.red)};
}

class ScreenColours : public testing::TestWithParam<Chart> {};

TEST_P(ScreenColours, areThoseOfTheReference) {
    const std::string path = chartFile(GetParam());
    const std::string reference = referenceOf(path, GetParam().reference);
    const auto asset = media::Asset::open(path);
    const media::AssetTrack track = asset->tracks(media::MediaType::video).front();
    media::VideoReader reader(asset, track);
    const auto frame = reader.next();
    ASSERT_TRUE(frame);
    media::PictureRenderer renderer(track);
    for (const auto& image :
         {renderer.render(*frame->frame, 0, 0), renderer.preview(*frame->frame, 0, 0)->image()}) {
        const auto pixels = static_cast<std::size_t>(image->width * image->height);
        ASSERT_EQ(reference.size(), 3 * pixels);
        double sum = 0;
        for (std::size_t i = 0; i < pixels; ++i) {
            const std::uint8_t* bgrx = &image->pixels[4 * i];
            const media::test::YCbCr ours = colourOf(bgrx[2], bgrx[1], bgrx[0]);
            const auto byte = [&](std::size_t k) {
                return static_cast<std::uint8_t>(reference[3 * i + k]);
            };
            sum += media::test::colourDifference(ours, colourOf(byte(0), byte(1), byte(2)), kBt709);
        }
        EXPECT_LT(sum / static_cast<double>(pixels), 1.0);
    }
}

const std::string kPq = "color_trc=smpte2084:color_primaries=bt2020:colorspace=bt2020nc";
const std::string kHlg = "color_trc=arib-std-b67:color_primaries=bt2020:colorspace=bt2020nc";
const std::string kWide = "color_trc=bt2020-10:color_primaries=bt2020:colorspace=bt2020nc";

INSTANTIATE_TEST_SUITE_P(
    Charts, ScreenColours,
    testing::Values(Chart{"pq", kPq, "tv", "yuv420p10", kToneMapped},
                    Chart{"pq-full-range", kPq, "pc", "yuv420p10", kToneMapped},
                    Chart{"hlg", kHlg, "tv", "yuv420p10", kToneMapped},
                    Chart{"hlg-444-12-bit", kHlg, "tv", "yuv444p12", kToneMapped},
                    Chart{"wide-gamut", kWide, "tv", "yuv420p10", kGamutMapped},
                    Chart{"wide-gamut-8-bit-full-range", kWide, "pc", "yuv420p", kGamutMapped}),
    [](const auto& chart) {
        std::string name = chart.param.name;
        std::erase(name, '-');
        return name;
    });

} // namespace
