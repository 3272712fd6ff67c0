#include "SyntheticPicture.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <random>
#include <vector>

namespace media::test {

namespace {

struct Wave {
    double amplitude;
    double perPixelX;
    double perPixelY;
    double phase;
};

constexpr Wave kWaves[3][2] = {
    {{0.20, 0.0131, 0.0043, 0.7}, {0.16, -0.0052, 0.0127, 2.1}},
    {{0.18, 0.0070, -0.0061, 4.0}, {0.15, 0.0033, 0.0078, 0.3}},
    {{0.17, -0.0047, 0.0074, 1.5}, {0.16, 0.0081, 0.0024, 3.3}},
};

bool isChroma(const AVPixFmtDescriptor& format, int component) {
    return !(format.flags & AV_PIX_FMT_FLAG_RGB) && format.nb_components >= 3 &&
           (component == 1 || component == 2);
}

bool isAlpha(const AVPixFmtDescriptor& format, int component) {
    return (format.flags & AV_PIX_FMT_FLAG_ALPHA) && component == format.nb_components - 1;
}

int shifted(int length, int shift) {
    return (length + (1 << shift) - 1) >> shift;
}

} // namespace

double waves(int channel, double x, double y) {
    if (channel > 2)
        return 1;
    double value = 0.5;
    for (const Wave& wave : kWaves[channel])
        value +=
            wave.amplitude *
            std::cos(2 * std::numbers::pi * (wave.perPixelX * x + wave.perPixelY * y) + wave.phase);
    return value;
}

ChannelFunction flat(double first, double second, double third, double alpha) {
    return [=](int channel, double, double) {
        const double values[] = {first, second, third, alpha};
        return values[channel];
    };
}

Point samplePlace(const AVPixFmtDescriptor& format, AVChromaLocation location, int plane,
                  int column, int row) {
    if (!isChroma(format, plane))
        return {column + 0.5, row + 0.5};
    const double spacingX = 1 << format.log2_chroma_w;
    const double spacingY = 1 << format.log2_chroma_h;
    Point first{0.5, spacingY / 2};
    if (location == AVCHROMA_LOC_CENTER || location == AVCHROMA_LOC_TOP ||
        location == AVCHROMA_LOC_BOTTOM)
        first.x = spacingX / 2;
    if (location == AVCHROMA_LOC_TOPLEFT || location == AVCHROMA_LOC_TOP)
        first.y = 0.5;
    if (location == AVCHROMA_LOC_BOTTOMLEFT || location == AVCHROMA_LOC_BOTTOM)
        first.y = spacingY - 0.5;
    return {first.x + spacingX * column, first.y + spacingY * row};
}

double levelOf(double value, int depth, bool isChroma, bool isFullRange) {
    if (!isFullRange)
        return (isChroma ? 128 + 224 * (value - 0.5) : 16 + 219 * value) * std::exp2(depth - 8);
    const double most = std::exp2(depth) - 1;
    return isChroma ? (value - 0.5) * most + std::exp2(depth - 1) : value * most;
}

ffmpeg::FramePtr drawPicture(AVPixelFormat format, int width, int height,
                             const ChannelFunction& value, const PictureTags& tags) {
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    ffmpeg::FramePtr frame = ffmpeg::makeFrame();
    frame->format = format;
    frame->width = width;
    frame->height = height;
    frame->color_range = tags.range;
    frame->colorspace = tags.matrix;
    frame->chroma_location = tags.location;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        throw std::bad_alloc();
    for (const AVBufferRef* buffer : frame->buf)
        if (buffer)
            std::memset(buffer->data, 0, buffer->size);
    const bool isRgb = descriptor.flags & AV_PIX_FMT_FLAG_RGB;
    for (int component = 0; component < descriptor.nb_components; ++component) {
        const bool chroma = isChroma(descriptor, component);
        const bool alpha = isAlpha(descriptor, component);
        const bool fullRange = isRgb || alpha || tags.range == AVCOL_RANGE_JPEG;
        const int depth = descriptor.comp[component].depth;
        const double most = std::exp2(depth) - 1;
        const int columns = shifted(width, chroma ? descriptor.log2_chroma_w : 0);
        const int rows = shifted(height, chroma ? descriptor.log2_chroma_h : 0);
        std::vector<std::uint16_t> line(static_cast<std::size_t>(columns));
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const Point place = samplePlace(descriptor, tags.location, component, column, row);
                const double level = levelOf(value(alpha ? 3 : component, place.x, place.y), depth,
                                             chroma, fullRange);
                line[static_cast<std::size_t>(column)] =
                    static_cast<std::uint16_t>(std::lround(std::min(level, most)));
            }
            av_write_image_line2(line.data(), frame->data, frame->linesize, &descriptor, 0, row,
                                 component, columns, 2);
        }
    }
    return frame;
}

ffmpeg::FramePtr drawNoise(AVPixelFormat format, int width, int height) {
    std::mt19937 random(1234);
    std::uniform_real_distribution<double> uniform(0, 1);
    return drawPicture(format, width, height, [&](int, double, double) { return uniform(random); });
}

int planeWidth(const AVFrame& frame, int plane) {
    const auto* descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    return shifted(frame.width, plane > 0 ? descriptor->log2_chroma_w : 0);
}

int planeHeight(const AVFrame& frame, int plane) {
    const auto* descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    return shifted(frame.height, plane > 0 ? descriptor->log2_chroma_h : 0);
}

int sampleOf(const AVFrame& frame, int plane, int column, int row) {
    const auto* descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const std::uint8_t* line = frame.data[plane] + std::ptrdiff_t{row} * frame.linesize[plane];
    if (descriptor->comp[0].depth <= 8)
        return line[column];
    return reinterpret_cast<const std::uint16_t*>(line)[column];
}

AffineTransform orientation(int index, Size size) {
    AffineTransform transform;
    if (index & 1)
        transform = {-1, 0, 0, 1, size.width, 0};
    for (int turn = 0; turn < index / 2; ++turn) {
        transform = transform.concatenated({0, 1, -1, 0, size.height, 0});
        std::swap(size.width, size.height);
    }
    return transform;
}

} // namespace media::test
