#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

namespace media::pixels {

/// One plane of samples in memory owned by somebody else: bytes up to a depth of 8 bits, native
/// 16-bit words above. The stride is in bytes and may be negative, or 0 to repeat one line.
template<typename Byte>
struct BasicPlane {
    Byte* data = nullptr;
    std::ptrdiff_t stride = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] Byte* line(int y) const { return data + y * stride; }
};

using ConstPlane = BasicPlane<const std::uint8_t>;

struct Plane : BasicPlane<std::uint8_t> {
    // NOLINTNEXTLINE(google-explicit-constructor): reading is always allowed where writing is.
    operator ConstPlane() const { return {data, stride, width, height}; }
};

/// Bytes that one sample of this depth takes.
constexpr int bytesPerSample(int depth) {
    return depth > 8 ? 2 : 1;
}

/// Start and stride of the planes that zimg asks for, in bytes.
inline constexpr std::size_t kPlaneAlignment = 32;

constexpr std::size_t alignedUp(std::size_t bytes) {
    return (bytes + kPlaneAlignment - 1) / kPlaneAlignment * kPlaneAlignment;
}

/// Aligned memory that only grows; its content does not survive growing.
class AlignedBuffer {
public:
    std::uint8_t* ensure(std::size_t bytes) {
        if (bytes > m_size) {
            m_bytes.reset();
            m_size = 0;
            m_bytes.reset(static_cast<std::uint8_t*>(
                ::operator new (bytes, std::align_val_t{kPlaneAlignment})));
            m_size = bytes;
        }
        return m_bytes.get();
    }

private:
    struct Deleter {
        void operator()(std::uint8_t* bytes) const noexcept {
            ::operator delete (bytes, std::align_val_t{kPlaneAlignment});
        }
    };

    std::unique_ptr<std::uint8_t, Deleter> m_bytes;
    std::size_t m_size = 0;
};

/// A plane with its own memory, reused from one picture to the next.
class PlaneBuffer {
public:
    /// A plane of this size (at least 1 × 1) with undefined content.
    Plane reserve(int width, int height, int depth) {
        const std::size_t stride = alignedUp(static_cast<std::size_t>(width) *
                                             static_cast<unsigned>(bytesPerSample(depth)));
        Plane plane;
        plane.data = m_bytes.ensure(stride * static_cast<std::size_t>(height));
        plane.stride = static_cast<std::ptrdiff_t>(stride);
        plane.width = width;
        plane.height = height;
        return plane;
    }

private:
    AlignedBuffer m_bytes;
};

} // namespace media::pixels
