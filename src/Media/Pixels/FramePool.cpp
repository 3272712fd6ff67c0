#include "Media/Pixels/FramePool.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace media::pixels {

FramePool::FramePool(int width, int height, AVPixelFormat format)
    : m_width(width), m_height(height), m_format(format) {
    const auto sampleBytes = static_cast<unsigned>(av_pix_fmt_desc_get(format)->comp[0].step);
    std::size_t size = 0;
    for (unsigned plane = 0; plane < 3; ++plane) {
        const int shift = plane > 0 ? 1 : 0;
        m_offsets[plane] = size;
        m_strides[plane] = alignedUp(static_cast<std::size_t>(width >> shift) * sampleBytes);
        size += m_strides[plane] * static_cast<std::size_t>(height >> shift);
    }
    // Once to align the start, and once for encoders that read past the end.
    m_pool.reset(ffmpeg::allocated(av_buffer_pool_init(size + 2 * kPlaneAlignment, nullptr)));
}

ffmpeg::FramePtr FramePool::frame() {
    ffmpeg::FramePtr frame = ffmpeg::makeFrame();
    frame->buf[0] = ffmpeg::allocated(av_buffer_pool_get(m_pool.get()));
    const auto address = reinterpret_cast<std::uintptr_t>(frame->buf[0]->data);
    std::uint8_t* start = frame->buf[0]->data + (alignedUp(address) - address);
    frame->format = m_format;
    frame->width = m_width;
    frame->height = m_height;
    for (unsigned plane = 0; plane < 3; ++plane) {
        frame->data[plane] = start + m_offsets[plane];
        frame->linesize[plane] = static_cast<int>(m_strides[plane]);
    }
    return frame;
}

std::array<Plane, 3> planesOf(const AVFrame& frame) {
    std::array<Plane, 3> planes;
    for (unsigned index = 0; index < 3; ++index) {
        const int shift = index > 0 ? 1 : 0;
        planes[index].data = frame.data[index];
        planes[index].stride = frame.linesize[index];
        planes[index].width = frame.width >> shift;
        planes[index].height = frame.height >> shift;
    }
    return planes;
}

} // namespace media::pixels
