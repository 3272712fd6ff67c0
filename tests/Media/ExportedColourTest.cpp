#include "Media/ChartFile.h"
#include "Media/ColourDifference.h"
#include "Media/ExportFixture.h"
#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/ColourTags.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <numbers>

/// Colours and their tags, from every kind of source through every way of rendering.
namespace media {
namespace {

enum class Dynamics { standard, pq, hlg };

struct Case {
    AVColorSpace matrix = AVCOL_SPC_UNSPECIFIED;
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;
    Dynamics dynamics = Dynamics::standard;
    int depth = 8;

    [[nodiscard]] bool isTagged() const { return matrix != AVCOL_SPC_UNSPECIFIED; }

    [[nodiscard]] AVColorPrimaries primaries() const {
        switch (matrix) {
        case AVCOL_SPC_SMPTE170M:
            return AVCOL_PRI_SMPTE170M;
        case AVCOL_SPC_BT709:
            return AVCOL_PRI_BT709;
        case AVCOL_SPC_BT2020_NCL:
            return AVCOL_PRI_BT2020;
        default:
            return AVCOL_PRI_UNSPECIFIED;
        }
    }

    [[nodiscard]] AVColorTransferCharacteristic transfer() const {
        if (dynamics == Dynamics::pq)
            return AVCOL_TRC_SMPTE2084;
        if (dynamics == Dynamics::hlg)
            return AVCOL_TRC_ARIB_STD_B67;
        switch (matrix) {
        case AVCOL_SPC_SMPTE170M:
            return AVCOL_TRC_SMPTE170M;
        case AVCOL_SPC_BT709:
            return AVCOL_TRC_BT709;
        case AVCOL_SPC_BT2020_NCL:
            return AVCOL_TRC_BT2020_10;
        default:
            return AVCOL_TRC_UNSPECIFIED;
        }
    }

    [[nodiscard]] test::LumaWeights weights() const {
        switch (matrix) {
        case AVCOL_SPC_SMPTE170M:
            return {0.299, 0.114};
        case AVCOL_SPC_BT2020_NCL:
            return {0.2627, 0.0593};
        default:
            return {0.2126, 0.0722};
        }
    }

    [[nodiscard]] std::string name() const {
        const char* const dynamic = dynamics == Dynamics::pq    ? "pq"
                                    : dynamics == Dynamics::hlg ? "hlg"
                                                                : "sdr";
        const std::string colours = isTagged() ? av_color_space_name(matrix) : "untagged";
        const char* const levels = range == AVCOL_RANGE_JPEG   ? "full"
                                   : range == AVCOL_RANGE_MPEG ? "limited"
                                                               : "any";
        return colours + "_" + levels + "_" + dynamic + "_" + std::to_string(depth);
    }
};

std::vector<Case> everyCase() {
    std::vector<Case> cases;
    for (const int depth : {8, 10}) {
        cases.push_back({.depth = depth});
        for (const AVColorSpace matrix :
             {AVCOL_SPC_SMPTE170M, AVCOL_SPC_BT709, AVCOL_SPC_BT2020_NCL}) {
            for (const AVColorRange range : {AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG}) {
                for (const Dynamics dynamics : {Dynamics::standard, Dynamics::pq, Dynamics::hlg})
                    cases.push_back({matrix, range, dynamics, depth});
            }
        }
    }
    return cases;
}

// ---- The chart: fields of one colour each

constexpr int kField = 64;
constexpr int kColumns = 6;
constexpr int kRows = 4;
constexpr Size kChartSize{kColumns * kField, kRows* kField};

int fieldAt(double x, double y) {
    return static_cast<int>(y / kField) * kColumns + static_cast<int>(x / kField);
}

/// Colours of all hues and levels that all three matrices can show.
double chart(int channel, double x, double y) {
    const int field = fieldAt(x, y);
    if (channel == 0)
        return 0.15 + 0.7 * (field * 7 % 24) / 23;
    const double angle = field * 2 * std::numbers::pi * 5 / 24;
    return 0.5 + 0.12 * (channel == 1 ? std::cos(angle) : std::sin(angle));
}

std::filesystem::path chartOf(const Case& row) {
    const AVPixelFormat format = row.depth > 8 ? AV_PIX_FMT_YUV420P10 : AV_PIX_FMT_YUV420P;
    const auto picture = test::drawPicture(format, static_cast<int>(kChartSize.width),
                                           static_cast<int>(kChartSize.height), chart,
                                           {.range = row.range, .matrix = row.matrix});
    std::vector<std::string> tags;
    if (row.isTagged()) {
        tags = testsupport::colourArguments(
            {av_color_primaries_name(row.primaries()), av_color_transfer_name(row.transfer()),
             av_color_space_name(row.matrix), av_color_range_name(row.range)});
    }
    return test::chartFile("colour-fields-" + row.name() + ".mkv", *picture, 4, tags);
}

// ---- The ways of rendering

struct Rendering {
    const char* name;
    /// From the chart to the canvas; none without a video composition.
    std::optional<VideoComposition> composition;
};

std::vector<Rendering> everyRendering() {
    const Time frame{1, 10};
    const int width = static_cast<int>(kChartSize.width);
    const int height = static_cast<int>(kChartSize.height);
    return {
        {"straight", std::nullopt},
        // Neither offset is even.
        {"crop", VideoComposition{AffineTransform::translation(-33, -21), 240, 180, frame}},
        {"turn", VideoComposition{test::orientation(2, kChartSize), height, width, frame}},
        {"cap", VideoComposition{AffineTransform::scale(0.5, 0.5), width / 2, height / 2, frame}},
    };
}

// ---- What comes out

test::YCbCr normalized(const std::array<double, 3>& levels, const AVFrame& frame, bool isFull) {
    const int depth = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth;
    const double most = std::exp2(depth) - 1;
    const double unit = std::exp2(depth - 8);
    const double middle = std::exp2(depth - 1);
    if (isFull)
        return {levels[0] / most, (levels[1] - middle) / most, (levels[2] - middle) / most};
    return {(levels[0] / unit - 16) / 219, (levels[1] - middle) / unit / 224,
            (levels[2] - middle) / unit / 224};
}

/// The mean levels in the middle of a field that the canvas shows whole.
std::optional<std::array<double, 3>> levelsOf(const AVFrame& frame, int field,
                                              const AffineTransform& toCanvas) {
    constexpr double kInset = 16;
    const int column = field % kColumns;
    const int row = field / kColumns;
    const Rect inside = Rect{static_cast<double>(column * kField),
                             static_cast<double>(row * kField), kField, kField}
                            .insetBy(kInset, kInset);
    const Rect shown = toCanvas.apply(inside);
    if (shown.minX() < 0 || shown.minY() < 0 || shown.maxX() > frame.width ||
        shown.maxY() > frame.height)
        return std::nullopt;
    std::array<double, 3> means{};
    for (int plane = 0; plane < 3; ++plane) {
        const double size = plane > 0 ? 2 : 1;
        int count = 0;
        for (int y = static_cast<int>(shown.minY() / size); y < shown.maxY() / size - 1; ++y) {
            for (int x = static_cast<int>(shown.minX() / size); x < shown.maxX() / size - 1; ++x) {
                means[static_cast<std::size_t>(plane)] += test::sampleOf(frame, plane, x, y);
                ++count;
            }
        }
        means[static_cast<std::size_t>(plane)] /= count;
    }
    return means;
}

/// The tags that the coded pictures themselves hold, whatever the container says.
ffmpeg::FramePtr firstPictureAlone(const std::filesystem::path& path) {
    ffmpeg::Demuxer demuxer(ffmpeg::SourceFile::open(path));
    AVStream& stream = *demuxer.context().streams[0];
    AVCodecParameters& parameters = *stream.codecpar;
    parameters.color_primaries = AVCOL_PRI_UNSPECIFIED;
    parameters.color_trc = AVCOL_TRC_UNSPECIFIED;
    parameters.color_space = AVCOL_SPC_UNSPECIFIED;
    parameters.color_range = AVCOL_RANGE_UNSPECIFIED;
    ffmpeg::Decoder decoder(parameters, stream.time_base, 1);
    auto packet = ffmpeg::makePacket();
    auto frame = ffmpeg::makeFrame();
    while (decoder.receive(*frame) != ffmpeg::Decoder::Status::frame) {
        const bool hasPacket = demuxer.read(*packet) == ffmpeg::Demuxer::Status::packet;
        decoder.send(hasPacket ? packet.get() : nullptr);
        av_packet_unref(packet.get());
    }
    return frame;
}

/// The colour box of a file: code points of primaries, transfer and matrix, and the full-range
/// flag where the form of the box has one.
struct ColourBox {
    std::string form;
    std::size_t primaries = 0;
    std::size_t transfer = 0;
    std::size_t matrix = 0;
    bool isFullRange = false;
};

std::optional<ColourBox> colourBoxOf(const std::filesystem::path& path) {
    const std::string bytes = contentsOf(path);
    const std::size_t at = bytes.find("colrncl");
    if (at == std::string::npos)
        return std::nullopt;
    const std::size_t values = at + 8;
    ColourBox box{bytes.substr(at + 4, 4), testsupport::numberAt(bytes, values, 2),
                  testsupport::numberAt(bytes, values + 2, 2),
                  testsupport::numberAt(bytes, values + 4, 2), false};
    box.isFullRange = box.form == "nclx" && testsupport::numberAt(bytes, values + 6, 1) >= 0x80;
    return box;
}

class ExportedColour : public ExportTest, public testing::WithParamInterface<Case> {
protected:
    static void expectTags(const std::filesystem::path& path, FileType type) {
        const Case& row = GetParam();
        const auto picture = firstPictureAlone(path);
        EXPECT_EQ(picture->color_primaries, row.primaries());
        EXPECT_EQ(picture->color_trc, row.transfer());
        EXPECT_EQ(picture->colorspace, row.matrix);
        const bool isFull = row.range == AVCOL_RANGE_JPEG;
        EXPECT_EQ(picture->color_range == AVCOL_RANGE_JPEG, isFull);
        const auto box = colourBoxOf(path);
        ASSERT_EQ(box.has_value(), row.isTagged());
        if (!box)
            return;
        EXPECT_EQ(box->form, type == FileType::mpeg4 ? "nclx" : "nclc");
        EXPECT_EQ(box->primaries, static_cast<std::size_t>(row.primaries()));
        EXPECT_EQ(box->transfer, static_cast<std::size_t>(row.transfer()));
        EXPECT_EQ(box->matrix, static_cast<std::size_t>(row.matrix));
        if (type == FileType::mpeg4) {
            EXPECT_EQ(box->isFullRange, isFull);
        }
    }

    static void expectColours(const AVFrame& source, const AVFrame& result,
                              const AffineTransform& toCanvas) {
        const Case& row = GetParam();
        const bool isFull = row.range == AVCOL_RANGE_JPEG;
        const bool isDeep = row.depth > 8 || row.dynamics != Dynamics::standard;
        const int depth =
            av_pix_fmt_desc_get(static_cast<AVPixelFormat>(result.format))->comp[0].depth;
        ASSERT_EQ(depth, isDeep ? 10 : 8);
        double sum = 0;
        int count = 0;
        for (int field = 0; field < kColumns * kRows; ++field) {
            const auto before = levelsOf(source, field, {});
            const auto after = levelsOf(result, field, toCanvas);
            if (!before || !after)
                continue;
            const test::YCbCr a = normalized(*before, source, isFull);
            const test::YCbCr b = normalized(*after, result, isFull);
            ++count;
            if (row.dynamics == Dynamics::standard) {
                sum += test::colourDifference(a, b, row.weights());
                continue;
            }
            const double unit = isFull ? 1023 : 876;
            const double chromaUnit = isFull ? 1023 : 896;
            EXPECT_NEAR(b.y * unit, a.y * unit, 2) << field;
            EXPECT_NEAR(b.cb * chromaUnit, a.cb * chromaUnit, 2) << field;
            EXPECT_NEAR(b.cr * chromaUnit, a.cr * chromaUnit, 2) << field;
        }
        ASSERT_GE(count, 4);
        EXPECT_LE(sum / count, 1);
    }
};

TEST_P(ExportedColour, isThatOfTheSource) {
    const auto source = chartOf(GetParam());
    const auto asset = Asset::open(source);
    const auto before = test::decodedFrames(source, 1);
    for (const Rendering& rendering : everyRendering()) {
        for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
            SCOPED_TRACE(std::string(rendering.name) + (type == FileType::mpeg4 ? " mp4" : " mov"));
            const auto output = m_folder / "out";
            StagedExportSession session(compositionOf(asset), output, type);
            session.setVideoComposition(rendering.composition);
            session.run();
            expectTags(output, type);
            const auto after = test::decodedFrames(output, 4);
            ASSERT_EQ(after.size(), 4U);
            const AffineTransform toCanvas =
                rendering.composition ? rendering.composition->transform : AffineTransform{};
            expectColours(*before[0], *after.back(), toCanvas);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Charts, ExportedColour, testing::ValuesIn(everyCase()),
                         [](const auto& row) { return row.param.name(); });

/// The measure itself, on pairs from the data that was published with the formula: what it says
/// about sRGB primaries and about equal colours is known.
TEST(ColourDifference, isThatOfTheStandard) {
    const test::LumaWeights weights{0.2126, 0.0722};
    const test::YCbCr grey{0.5, 0, 0};
    EXPECT_EQ(test::colourDifference(grey, grey, weights), 0);
    // Black and white differ by the whole of lightness.
    EXPECT_NEAR(test::colourDifference({0, 0, 0}, {1, 0, 0}, weights), 100, 0.01);
    // Red against green of sRGB.
    const test::YCbCr red{0.2126, -0.2126 / 1.8556, 0.5};
    const test::YCbCr green{0.7152, -0.7152 / 1.8556, -0.7152 / 1.5748};
    EXPECT_NEAR(test::colourDifference(red, green, weights), 86.6, 0.1);
}

} // namespace
} // namespace media
