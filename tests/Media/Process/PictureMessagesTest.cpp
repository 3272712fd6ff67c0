#include "Media/Process/Wire/MediaMessages.h"

#include "Media/FFmpeg/Bounds.h"
#include "Media/Process/RandomMedia.h"
#include "Media/Process/SameValues.h"
#include "Media/Process/WireTest.h"

#include <array>
#include <cstdint>
#include <fcntl.h>
#include <memory>
#include <numeric>
#include <sys/mman.h>
#include <tuple>
#include <vector>

namespace media::process {
namespace {

using playback::CachedFrame;
using Kind = PreviewPicture::Kind;

/// Pictures of the tests; pixels.
constexpr int kMostTestSide = 40;

template<typename Bytes>
void fill(RandomValues& values, Bytes& bytes) {
    for (auto& byte : bytes)
        byte = static_cast<std::uint8_t>(values.number<std::uint16_t>(0, 255));
}

PreviewPicture::Format randomFormat(RandomValues& values) {
    PreviewPicture::Format format;
    format.width = values.number<int>(1, kMostTestSide);
    format.height = values.number<int>(1, kMostTestSide);
    format.kind = static_cast<Kind>(values.number<int>(0, 2));
    format.chromaShift = format.kind == Kind::yuv ? values.number<int>(0, 1) : 0;
    format.matrix = static_cast<AVColorSpace>(values.number<int>(0, AVCOL_SPC_NB - 1));
    format.isFullRange = values.isHeads();
    return format;
}

struct WiredFrame {
    static constexpr const char* kName = "Frame";
    using Value = CachedFrame;

    static CachedFrame random(RandomValues& values) {
        CachedFrame frame;
        frame.range = randomTickRange(values);
        frame.time = randomTime(values);
        auto picture = std::make_shared<PreviewPicture>(randomFormat(values));
        auto bytes = picture->bytesToFill();
        fill(values, bytes);
        frame.picture = std::move(picture);
        return frame;
    }

    void write(MessageWriter& writer, const CachedFrame& frame) { put(writer, area, frame); }

    CachedFrame read(MessageReader& reader) { return getFrame(reader, area); }

    static bool isSame(const CachedFrame& a, const CachedFrame& b) { return process::isSame(a, b); }

    static void expectBounds(const CachedFrame& frame) {
        const auto [width, height] = frame.size();
        EXPECT_GE(width, 1);
        EXPECT_GE(height, 1);
        EXPECT_LE(std::int64_t{width} * height, ffmpeg::kMostPixels);
        EXPECT_EQ(frame.picture->image()->height, height);
    }

    SharedArea area;
};

struct WiredImage {
    static constexpr const char* kName = "Image";
    using Value = TimedImage;

    static TimedImage random(RandomValues& values) {
        auto image = std::make_shared<Image>();
        image->width = values.number<int>(1, kMostTestSide);
        image->height = values.number<int>(1, kMostTestSide);
        image->stride = 4 * (image->width + values.number<int>(0, 16));
        image->pixels.resize(static_cast<std::size_t>(image->stride) *
                             static_cast<std::size_t>(image->height));
        fill(values, image->pixels);
        return {std::move(image), randomTime(values)};
    }

    void write(MessageWriter& writer, const TimedImage& image) { put(writer, area, image); }

    TimedImage read(MessageReader& reader) { return getImage(reader, area); }

    static bool isSame(const TimedImage& a, const TimedImage& b) { return process::isSame(a, b); }

    static void expectBounds(const TimedImage& image) {
        const auto& [width, height, stride, pixels] = *image.image;
        EXPECT_GE(width, 1);
        EXPECT_GE(height, 1);
        EXPECT_LE(std::int64_t{width} * height, ffmpeg::kMostPixels);
        EXPECT_GE(stride, 4 * width);
        EXPECT_EQ(stride % 4, 0) << "each line begins with a whole pixel";
        EXPECT_EQ(pixels.size(),
                  static_cast<std::size_t>(stride) * static_cast<std::size_t>(height));
    }

    SharedArea area;
};

struct WiredSamples {
    static constexpr const char* kName = "Samples";
    using Value = std::vector<float>;

    static Value random(RandomValues& values) {
        Value samples(values.number<std::size_t>(0, 500));
        for (float& sample : samples)
            sample = values.number<float>();
        return samples;
    }

    void write(MessageWriter& writer, const Value& samples) {
        put(writer, area, std::span<const float>(samples));
    }

    Value read(MessageReader& reader) {
        const std::span<const float> samples = getSamples(reader, area);
        return {samples.begin(), samples.end()};
    }

    static bool isSame(const Value& a, const Value& b) { return a == b; }

    static void expectBounds(const Value& /*samples*/) {}

    SharedArea area;
};

using PictureKinds = testing::Types<WiredFrame, WiredImage, WiredSamples>;
INSTANTIATE_TYPED_TEST_SUITE_P(Pictures, WireTest, PictureKinds, WiredName);

/// A message with something in place of the memory of its area.
template<typename Wired>
void expectRefused(Descriptor memory) {
    RandomValues values(7);
    Wired sender;
    MessageWriter writer;
    sender.write(writer, Wired::random(values));
    Message message = copyOf(writer.message());
    message.descriptors.clear();
    if (memory.isOpen())
        message.descriptors.push_back(std::move(memory));
    MessageReader reader(std::move(message));
    Wired receiver;
    EXPECT_THROW(static_cast<void>(receiver.read(reader)), BadMessage);
}

TEST(PictureMessages, areRefusedWithoutTheirArea) {
    expectRefused<WiredFrame>({});
    expectRefused<WiredImage>({});
    expectRefused<WiredSamples>({});
}

TEST(PictureMessages, areRefusedWithAnotherFileForTheirArea) {
    expectRefused<WiredFrame>(Descriptor(::open("/", O_PATH | O_CLOEXEC)));
    expectRefused<WiredImage>(Descriptor(::memfd_create("unsealed", MFD_CLOEXEC)));
    expectRefused<WiredSamples>(Descriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC)));
}

/// A frame whose message says that it has another format than its bytes.
bool isTaken(const PreviewPicture::Format& format) {
    MessageWriter writer;
    SharedArea sent;
    static_cast<void>(sent.ensure(1));
    writer.put(std::uint8_t{1});
    writer.put(*sent.takeNew());
    put(writer, TickRange{});
    put(writer, Time{});
    writer.put(format.width);
    writer.put(format.height);
    writer.put(format.kind);
    writer.put(format.chromaShift);
    writer.put(static_cast<std::int32_t>(format.matrix));
    writer.put(std::uint8_t{0});
    SharedArea received;
    MessageReader reader(copyOf(writer.message()));
    try {
        WiredFrame::expectBounds(getFrame(reader, received));
        return true;
    } catch (const BadMessage&) {
        return false;
    }
}

TEST(PictureMessages, areOfFormatsThatCanBeShown) {
    for (const Kind kind : {Kind::grey, Kind::yuv, Kind::rgb}) {
        for (const int shift : {0, 1}) {
            for (int matrix = 0; matrix < AVCOL_SPC_NB; ++matrix) {
                const bool isRight = shift == 0 || kind == Kind::yuv;
                for (const int width : {1, 2, 63, 64, 301})
                    EXPECT_EQ(isTaken({.width = width,
                                       .height = 200,
                                       .kind = kind,
                                       .chromaShift = shift,
                                       .matrix = static_cast<AVColorSpace>(matrix)}),
                              isRight)
                        << static_cast<int>(kind) << " shifted by " << shift;
            }
        }
    }
}

TEST(PictureMessages, areNotLargerThanTheirArea) {
    EXPECT_TRUE(isTaken({.width = 1000, .height = 250, .kind = Kind::grey}));
    EXPECT_FALSE(isTaken({.width = 1000, .height = 1000, .kind = Kind::grey}));
    EXPECT_FALSE(isTaken({.width = 1000, .height = 250, .kind = Kind::rgb}));
    EXPECT_FALSE(isTaken({.width = 1 << 16, .height = 1 << 16, .kind = Kind::grey}));
    EXPECT_FALSE(isTaken({.width = (1 << 16) + 1, .height = 1, .kind = Kind::grey}));
    EXPECT_FALSE(isTaken({.width = -1, .height = -1, .kind = Kind::grey}));
    EXPECT_FALSE(isTaken({.width = 0, .height = 1, .kind = Kind::grey}));
}

TEST(PictureMessages, areNotMostlyPadding) {
    constexpr int kHeight = 16;
    const auto isTakenWith = [](int stride) {
        MessageWriter writer;
        SharedArea sent;
        static_cast<void>(sent.ensure(static_cast<std::size_t>(stride) * kHeight));
        writer.put(std::uint8_t{1});
        writer.put(*sent.takeNew());
        put(writer, Time{});
        writer.put(1);
        writer.put(kHeight);
        writer.put(stride);
        SharedArea received;
        MessageReader reader(copyOf(writer.message()));
        try {
            WiredImage::expectBounds(getImage(reader, received));
            return true;
        } catch (const BadMessage&) {
            return false;
        }
    };
    EXPECT_TRUE(isTakenWith(64));
    EXPECT_FALSE(isTakenWith(4 << 16));
}

TEST(PictureMessages, bringSoundOnlyAsFarAsThereIsSome) {
    for (const std::uint64_t count :
         {std::uint64_t{65'536}, std::uint64_t{65'537}, std::uint64_t{1} << 40,
          std::uint64_t{1} << 62, ~std::uint64_t{0}}) {
        SharedArea sent;
        static_cast<void>(sent.ensure(1));
        MessageWriter writer;
        writer.put(std::uint8_t{1});
        writer.put(*sent.takeNew());
        writer.put(count);
        SharedArea received;
        MessageReader reader(copyOf(writer.message()));
        if (count * sizeof(float) == std::size_t{256} * 1024)
            EXPECT_EQ(getSamples(reader, received).size(), count);
        else
            EXPECT_THROW(static_cast<void>(getSamples(reader, received)), BadMessage) << count;
    }
}

} // namespace
} // namespace media::process
