#include "Media/Pixels/SampleUnpacking.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace media::pixels {

namespace {

/// Where the samples of one component are in a line: every `step` bytes from `offset` on.
struct Run {
    const std::uint8_t* data;
    std::ptrdiff_t stride;
};

Run runOf(const AVFrame& frame, const AVComponentDescriptor& component) {
    return {frame.data[component.plane] + component.offset, frame.linesize[component.plane]};
}

template<std::size_t Step>
void pickBytes(Run run, Plane out) {
    const auto width = static_cast<std::size_t>(out.width);
    for (int y = 0; y < out.height; ++y) {
        const std::uint8_t* from = run.data + y * run.stride;
        std::uint8_t* to = out.line(y);
        for (std::size_t x = 0; x < width; ++x)
            to[x] = from[x * Step];
    }
}

template<std::size_t Step>
void pickWords(Run run, int shift, unsigned mask, Plane out) {
    const auto width = static_cast<std::size_t>(out.width);
    for (int y = 0; y < out.height; ++y) {
        const auto* from = reinterpret_cast<const std::uint16_t*>(run.data + y * run.stride);
        auto* to = reinterpret_cast<std::uint16_t*>(out.line(y));
        for (std::size_t x = 0; x < width; ++x)
            to[x] = static_cast<std::uint16_t>((unsigned{from[x * Step]} >> shift) & mask);
    }
}

/// Copies a component in one of the common layouts; false for any other layout.
bool pickCommon(const AVFrame& frame, const AVPixFmtDescriptor& format,
                const AVComponentDescriptor& component, Plane out) {
    if (format.flags & (AV_PIX_FMT_FLAG_BE | AV_PIX_FMT_FLAG_BITSTREAM))
        return false;
    const Run run = runOf(frame, component);
    if (component.depth == 8 && component.shift == 0) {
        switch (component.step) {
        case 1:
            return pickBytes<1>(run, out), true;
        case 2:
            return pickBytes<2>(run, out), true;
        case 3:
            return pickBytes<3>(run, out), true;
        case 4:
            return pickBytes<4>(run, out), true;
        default:
            return false;
        }
    }
    if (std::endian::native != std::endian::little || component.depth <= 8 ||
        component.depth + component.shift > 16 || component.offset % 2 != 0)
        return false;
    const unsigned mask = (1U << component.depth) - 1;
    switch (component.step) {
    case 2:
        return pickWords<1>(run, component.shift, mask, out), true;
    case 4:
        return pickWords<2>(run, component.shift, mask, out), true;
    case 6:
        return pickWords<3>(run, component.shift, mask, out), true;
    case 8:
        return pickWords<4>(run, component.shift, mask, out), true;
    default:
        return false;
    }
}

/// Single-precision samples, clamped to 0 … 1.
void pickFloats(const AVFrame& frame, const AVPixFmtDescriptor& format, int index, Plane out) {
    const std::uint8_t* planes[4] = {frame.data[0], frame.data[1], frame.data[2], frame.data[3]};
    const int strides[4] = {frame.linesize[0], frame.linesize[1], frame.linesize[2],
                            frame.linesize[3]};
    std::vector<std::uint32_t> line(static_cast<std::size_t>(out.width));
    for (int y = 0; y < out.height; ++y) {
        av_read_image_line2(line.data(), planes, strides, &format, 0, y, index, out.width, 0, 4);
        std::ranges::transform(
            line, reinterpret_cast<std::uint16_t*>(out.line(y)), [](std::uint32_t bits) {
                const auto value = std::bit_cast<float>(bits);
                // NaN becomes 0.
                const float level = value > 0 ? std::min(value, 1.0F) * 65535 : 0;
                return static_cast<std::uint16_t>(level + 0.5F);
            });
    }
}

/// Any other layout, line by line with av_read_image_line().
void pickAny(const AVFrame& frame, const AVPixFmtDescriptor& format, int index, Plane out) {
    const AVComponentDescriptor& component = format.comp[index];
    const std::uint8_t* planes[4] = {frame.data[0], frame.data[1], frame.data[2], frame.data[3]};
    const int strides[4] = {frame.linesize[0], frame.linesize[1], frame.linesize[2],
                            frame.linesize[3]};
    const unsigned most = (1U << component.depth) - 1;
    std::vector<std::uint16_t> line(static_cast<std::size_t>(out.width));
    for (int y = 0; y < out.height; ++y) {
        av_read_image_line2(line.data(), planes, strides, &format, 0, y, index, out.width, 0, 2);
        if (component.depth > 8) {
            std::ranges::copy(line, reinterpret_cast<std::uint16_t*>(out.line(y)));
            continue;
        }
        std::ranges::transform(line, out.line(y), [most](unsigned value) {
            return static_cast<std::uint8_t>((value * 255 + most / 2) / most);
        });
    }
}

/// (value × alpha + base × (most − alpha)) / most, rounded to the nearest without a division; exact
/// for most = 2^depth − 1.
template<typename T>
void composeLine(const T* in, const T* alpha, int depth, std::uint32_t base, T* out, int width) {
    const std::uint32_t most = (std::uint32_t{1} << depth) - 1;
    const std::uint32_t half = std::uint32_t{1} << (depth - 1);
    for (int x = 0; x < width; ++x) {
        const std::uint32_t opacity = std::min<std::uint32_t>(alpha[x], most);
        const std::uint32_t sum = in[x] * opacity + base * (most - opacity) + half;
        out[x] = static_cast<T>((sum + (sum >> depth)) >> depth);
    }
}

template<typename T>
void averageLine(ConstPlane alpha, int top, int bottom, int shiftX, T* out, int width) {
    for (int x = 0; x < width; ++x) {
        const int left = x << shiftX;
        const int right = std::min((x + 1) << shiftX, alpha.width);
        std::uint32_t sum = 0;
        for (int y = top; y < bottom; ++y)
            for (int column = left; column < right; ++column)
                sum += reinterpret_cast<const T*>(alpha.line(y))[column];
        const auto count = static_cast<std::uint32_t>((bottom - top) * (right - left));
        out[x] = static_cast<T>((sum + count / 2) / count);
    }
}

} // namespace

int unpackedDepth(const AVPixFmtDescriptor& format, int component) {
    return format.flags & AV_PIX_FMT_FLAG_FLOAT ? 16 : std::max(8, format.comp[component].depth);
}

bool isPlane(const AVPixFmtDescriptor& format, int component) {
    const AVComponentDescriptor& layout = format.comp[component];
    const bool native = layout.depth <= 8 || ((format.flags & AV_PIX_FMT_FLAG_BE) != 0) ==
                                                 (std::endian::native == std::endian::big);
    return native && layout.depth >= 8 && layout.shift == 0 && layout.offset == 0 &&
           layout.step == bytesPerSample(layout.depth) &&
           !(format.flags & (AV_PIX_FMT_FLAG_BITSTREAM | AV_PIX_FMT_FLAG_FLOAT));
}

void unpackComponent(const AVFrame& frame, const AVPixFmtDescriptor& format, int index, Plane out) {
    if (format.flags & AV_PIX_FMT_FLAG_FLOAT)
        pickFloats(frame, format, index, out);
    else if (!pickCommon(frame, format, format.comp[index], out))
        pickAny(frame, format, index, out);
}

void unpackPalette(const AVFrame& frame, const Plane& red, const Plane& green, const Plane& blue) {
    // Entries are native words 0xAARRGGBB.
    std::array<std::array<std::uint8_t, 256>, 3> tables{};
    const auto* palette = reinterpret_cast<const std::uint32_t*>(frame.data[1]);
    for (unsigned entry = 0; entry < 256; ++entry) {
        const std::uint32_t alpha = palette[entry] >> 24;
        for (unsigned channel = 0; channel < 3; ++channel) {
            const std::uint32_t value = (palette[entry] >> (16 - 8 * channel)) & 0xff;
            tables[channel][entry] = static_cast<std::uint8_t>((value * alpha + 127) / 255);
        }
    }
    const Plane planes[] = {red, green, blue};
    for (unsigned channel = 0; channel < 3; ++channel) {
        for (int y = 0; y < red.height; ++y) {
            const std::uint8_t* from = frame.data[0] + std::ptrdiff_t{y} * frame.linesize[0];
            std::transform(from, from + red.width, planes[channel].line(y),
                           [&](std::uint8_t entry) { return tables[channel][entry]; });
        }
    }
}

bool isOpaque(ConstPlane alpha, int depth) {
    const auto most = static_cast<std::uint16_t>((1U << depth) - 1);
    for (int y = 0; y < alpha.height; ++y) {
        const std::uint8_t* line = alpha.line(y);
        const auto* words = reinterpret_cast<const std::uint16_t*>(line);
        const bool opaque =
            depth > 8 ? std::all_of(words, words + alpha.width, [&](auto a) { return a >= most; })
                      : std::all_of(line, line + alpha.width, [](auto a) { return a == 255; });
        if (!opaque)
            return false;
    }
    return true;
}

void averageAlpha(ConstPlane alpha, int depth, int shiftX, int shiftY, Plane out) {
    for (int y = 0; y < out.height; ++y) {
        const int top = y << shiftY;
        const int bottom = std::min((y + 1) << shiftY, alpha.height);
        if (depth > 8)
            averageLine(alpha, top, bottom, shiftX, reinterpret_cast<std::uint16_t*>(out.line(y)),
                        out.width);
        else
            averageLine(alpha, top, bottom, shiftX, out.line(y), out.width);
    }
}

void composeOver(ConstPlane in, ConstPlane alpha, int depth, unsigned base, Plane out) {
    for (int y = 0; y < out.height; ++y) {
        if (depth > 8)
            composeLine(reinterpret_cast<const std::uint16_t*>(in.line(y)),
                        reinterpret_cast<const std::uint16_t*>(alpha.line(y)), depth, base,
                        reinterpret_cast<std::uint16_t*>(out.line(y)), out.width);
        else
            composeLine(in.line(y), alpha.line(y), depth, base, out.line(y), out.width);
    }
}

} // namespace media::pixels
