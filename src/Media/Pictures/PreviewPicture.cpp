#include "Media/Pictures/PreviewPicture.h"

#include "Media/Threading/Helpers.h"

#include <algorithm>
#include <vector>

namespace media {

using namespace pixels;

namespace {

constexpr std::uint8_t kNeutral = 128;

constexpr int kLargePixels = 1920 * 1088;
/// What one thread converts at a time of a large picture.
constexpr int kStripLines = 64;

int planeCount(PreviewPicture::Kind kind) {
    return kind == PreviewPicture::Kind::grey ? 1 : 3;
}

/// The mean of two lines.
void blend(const std::uint8_t* a, const std::uint8_t* b, std::uint8_t* out, int count) {
    for (int i = 0; i < count; ++i)
        out[i] = static_cast<std::uint8_t>((a[i] + b[i] + 1) / 2);
}

/// Inserts the mean between every two neighbouring samples; reads `pairs` + 1 samples of `in`.
void widen(const std::uint8_t* in, std::uint8_t* out, int pairs) {
    for (int i = 0; i < pairs; ++i) {
        out[2 * i] = in[i];
        out[2 * i + 1] = static_cast<std::uint8_t>((in[i] + in[i + 1] + 1) / 2);
    }
}

/// The lines of a chroma plane, interpolated to full size.
class ChromaLines {
public:
    ChromaLines(ConstPlane plane, int shift, int width)
        : m_plane(plane),
          m_shift(shift),
          m_between(static_cast<std::size_t>(plane.width) + 1),
          m_wide(static_cast<std::size_t>(width) + 1) {}

    const std::uint8_t* line(int y) {
        if (m_shift == 0)
            return m_plane.line(y);
        const std::uint8_t* upper = m_plane.line(y / 2);
        const std::uint8_t* lower = m_plane.line(std::min(y / 2 + 1, m_plane.height - 1));
        if (y % 2 != 0)
            blend(upper, lower, m_between.data(), m_plane.width);
        else
            std::copy_n(upper, m_plane.width, m_between.data());
        m_between.back() = *(m_between.end() - 2);
        widen(m_between.data(), m_wide.data(), static_cast<int>(m_wide.size() / 2));
        return m_wide.data();
    }

private:
    ConstPlane m_plane;
    int m_shift;
    std::vector<std::uint8_t> m_between;
    std::vector<std::uint8_t> m_wide;
};

} // namespace

bool PreviewPicture::isLarge(int width, int height) {
    return width > kLargePixels / height;
}

PreviewPicture::PreviewPicture(const Format& format) : m_format(format) {
    std::size_t byteCount = 0;
    for (int index = 0; index < planeCount(format.kind); ++index) {
        const int shift = index > 0 ? format.chromaShift : 0;
        const auto width = static_cast<std::size_t>((format.width + (1 << shift) - 1) >> shift);
        const auto height = static_cast<std::size_t>((format.height + (1 << shift) - 1) >> shift);
        const auto i = static_cast<std::size_t>(index);
        m_offsets[i] = byteCount;
        m_strides[i] = alignedUp(width);
        byteCount += m_strides[i] * height;
    }
    m_bytes.resize(byteCount);
}

std::array<Plane, 3> PreviewPicture::planes() {
    std::array<Plane, 3> planes;
    for (unsigned index = 0; index < 3; ++index) {
        const ConstPlane plane = this->plane(index);
        if (!plane.data)
            continue;
        planes[index].data = m_bytes.data() + m_offsets[index];
        planes[index].stride = plane.stride;
        planes[index].width = plane.width;
        planes[index].height = plane.height;
    }
    return planes;
}

ConstPlane PreviewPicture::plane(unsigned index) const {
    if (index >= static_cast<unsigned>(planeCount(m_format.kind)))
        return {};
    const int shift = index > 0 ? m_format.chromaShift : 0;
    return {m_bytes.data() + m_offsets[index], static_cast<std::ptrdiff_t>(m_strides[index]),
            (m_format.width + (1 << shift) - 1) >> shift,
            (m_format.height + (1 << shift) - 1) >> shift};
}

ImagePtr PreviewPicture::image() const {
    auto image = std::make_shared<Image>();
    image->width = m_format.width;
    image->height = m_format.height;
    image->stride = 4 * m_format.width;
    image->pixels.resize(static_cast<std::size_t>(image->stride) *
                         static_cast<std::size_t>(m_format.height));
    if (!isLarge(image->width, image->height)) {
        convert(*image, 0, image->height);
        return image;
    }
    const int strips = (image->height + kStripLines - 1) / kStripLines;
    Helpers::shared()->run(strips, [&](int strip, int) {
        const int first = strip * kStripLines;
        convert(*image, first, std::min(first + kStripLines, image->height));
    });
    return image;
}

void PreviewPicture::convert(Image& image, int first, int end) const {
    if (m_format.kind == Kind::rgb)
        convertRgb(image, first, end);
    else
        convertYuv(image, first, end);
}

void PreviewPicture::convertYuv(Image& image, int first, int end) const {
    const std::vector<std::uint8_t> neutral(static_cast<std::size_t>(image.width), kNeutral);
    const ConstPlane grey{neutral.data(), 0, image.width, image.height};
    const bool isGrey = m_format.kind == Kind::grey;
    const int shift = isGrey ? 0 : m_format.chromaShift;
    ChromaLines u(isGrey ? grey : plane(1), shift, image.width);
    ChromaLines v(isGrey ? grey : plane(2), shift, image.width);
    const ConstPlane luma = plane(0);
    const YuvToRgb toRgb(m_format.matrix, m_format.isFullRange);
    for (int y = first; y < end; ++y) {
        std::uint8_t* out = image.pixels.data() + std::ptrdiff_t{y} * image.stride;
        toRgb.convertLine(luma.line(y), u.line(y), v.line(y), out, image.width);
    }
}

void PreviewPicture::convertRgb(Image& image, int first, int end) const {
    for (int y = first; y < end; ++y) {
        std::uint8_t* out = image.pixels.data() + std::ptrdiff_t{y} * image.stride;
        packLine(plane(0).line(y), plane(1).line(y), plane(2).line(y), out, image.width);
    }
}

} // namespace media
