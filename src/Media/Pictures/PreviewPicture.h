#pragma once

#include "Media/Image.h"
#include "Media/PictureMemory.h"
#include "Media/Pixels/BgrxPacking.h"
#include "Media/Pixels/Plane.h"

#include <array>
#include <cstddef>
#include <memory>

namespace media {

/// An upright picture at the size of the screen in a form that takes a third to half of the memory
/// of an Image, in which many are kept: its planes as the colours of the source have them, chroma
/// on every second pixel and line where that of the source is coarser than its luma. Filled once
/// by its maker, immutable from then on and shared between threads.
class PreviewPicture {
public:
    /// What the three planes are.
    enum class Kind { grey, yuv, rgb };

    struct Format {
        int width = 1;
        int height = 1;
        Kind kind = Kind::yuv;
        /// 1 where chroma stands on the even pixels of the even lines, else 0.
        int chromaShift = 0;
        /// Of yuv.
        AVColorSpace matrix = AVCOL_SPC_BT709;
        /// Of grey and yuv.
        bool isFullRange = false;
    };

    /// Undefined content.
    explicit PreviewPicture(const Format& format);

    [[nodiscard]] const Format& format() const { return m_format; }

    [[nodiscard]] std::size_t byteCount() const { return m_bytes.size(); }

    /// For the maker. Grey has only the first; aligned for zimg.
    [[nodiscard]] std::array<pixels::Plane, 3> planes();

    /// The picture as the screen takes it. Any thread.
    [[nodiscard]] ImagePtr image() const;

private:
    [[nodiscard]] pixels::ConstPlane plane(unsigned index) const;
    void convertYuv(Image& image) const;
    void convertRgb(Image& image) const;

    Format m_format;
    std::array<std::size_t, 3> m_offsets{};
    std::array<std::size_t, 3> m_strides{};
    PictureBytes m_bytes;
};

using PreviewPicturePtr = std::shared_ptr<const PreviewPicture>;

} // namespace media
