#pragma once

#include "Media/Image.h"
#include "Media/PictureMemory.h"
#include "Media/Pixels/BgrxPacking.h"
#include "Media/Pixels/Plane.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace media {

/// An upright picture at preview size, in the form that caches keep: it takes a third to half of
/// the memory of an Image. The planes are in the source's colour model; chroma is 4:2:0 if the
/// source's is subsampled in any way. Filled once by its maker, immutable after that and shared
/// between threads.
class PreviewPicture {
public:
    /// The colour model of the planes.
    enum class Kind { grey, yuv, rgb };

    struct Format {
        int width = 1;
        int height = 1;
        Kind kind = Kind::yuv;
        /// 1 where chroma is sited on the even pixels of the even lines, else 0.
        int chromaShift = 0;
        /// Of yuv.
        AVColorSpace matrix = AVCOL_SPC_BT709;
        /// Of grey and yuv.
        bool isFullRange = false;
    };

    /// Whether pictures of that size take so long to make and to convert that several threads do
    /// it: from somewhat more than 1080p on.
    static bool isLarge(int width, int height);

    /// Undefined content.
    explicit PreviewPicture(const Format& format);

    [[nodiscard]] const Format& format() const { return m_format; }

    [[nodiscard]] std::size_t byteCount() const { return m_bytes.size(); }

    /// For the maker. Grey has only the first; aligned for zimg.
    [[nodiscard]] std::array<pixels::Plane, 3> planes();

    /// All planes one after another, as they lie in any picture of this format.
    [[nodiscard]] std::span<const std::uint8_t> bytes() const { return m_bytes; }

    /// For the maker.
    [[nodiscard]] std::span<std::uint8_t> bytesToFill() { return m_bytes; }

    /// The picture in the screen's pixel format. Any thread; Helpers::shared() help with a large
    /// one.
    [[nodiscard]] ImagePtr image() const;

private:
    [[nodiscard]] pixels::ConstPlane plane(unsigned index) const;
    /// The lines from `first` to before `end`.
    void convert(Image& image, int first, int end) const;
    void convertYuv(Image& image, int first, int end) const;
    void convertRgb(Image& image, int first, int end) const;

    Format m_format;
    std::array<std::size_t, 3> m_offsets{};
    std::array<std::size_t, 3> m_strides{};
    PictureBytes m_bytes;
};

using PreviewPicturePtr = std::shared_ptr<const PreviewPicture>;

} // namespace media
