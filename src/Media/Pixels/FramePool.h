#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/Pixels/Plane.h"

#include <array>
#include <memory>

extern "C" {
#include <libavutil/buffer.h>
}

namespace media::pixels {

/// Makes frames of one size in a planar 4:2:0 format, in memory that is reused once a frame is
/// released. Frames may outlive the pool and be released on any thread.
class FramePool {
public:
    FramePool(int width, int height, AVPixelFormat format);

    /// Undefined content, no properties; aligned for zimg. Throws std::bad_alloc.
    ffmpeg::FramePtr frame();

private:
    struct PoolDeleter {
        void operator()(AVBufferPool* pool) const noexcept { av_buffer_pool_uninit(&pool); }
    };

    int m_width;
    int m_height;
    AVPixelFormat m_format;
    std::array<std::size_t, 3> m_strides{};
    std::array<std::size_t, 3> m_offsets{};
    std::unique_ptr<AVBufferPool, PoolDeleter> m_pool;
};

/// The three planes of such a frame.
std::array<Plane, 3> planesOf(const AVFrame& frame);

} // namespace media::pixels
