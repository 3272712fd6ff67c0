#pragma once

#include "Media/FFmpeg/Handles.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// The one place that knows how libav's releases differ, from FFmpeg 5.1 on. Each difference says
/// with which release it came; the branch for older ones can go when these are no longer built
/// with.
namespace media::ffmpeg {

// FFmpeg 6.1: a picture's fields and whether it is a key picture are flags, no longer members.
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 7, 100)

inline bool isInterlaced(const AVFrame& frame) {
    return (frame.flags & AV_FRAME_FLAG_INTERLACED) != 0;
}

/// Whether the field of the first line is shown first; only of an interlaced frame.
inline bool isTopFieldFirst(const AVFrame& frame) {
    return (frame.flags & AV_FRAME_FLAG_TOP_FIELD_FIRST) != 0;
}

inline void setInterlaced(AVFrame& frame, bool isTopFieldFirst) {
    frame.flags |= AV_FRAME_FLAG_INTERLACED;
    frame.flags &= ~AV_FRAME_FLAG_TOP_FIELD_FIRST;
    if (isTopFieldFirst)
        frame.flags |= AV_FRAME_FLAG_TOP_FIELD_FIRST;
}

inline void setProgressive(AVFrame& frame) {
    frame.flags &= ~(AV_FRAME_FLAG_INTERLACED | AV_FRAME_FLAG_TOP_FIELD_FIRST);
}

inline void forgetKeyPicture(AVFrame& frame) {
    frame.flags &= ~AV_FRAME_FLAG_KEY;
}

#else

inline bool isInterlaced(const AVFrame& frame) {
    return frame.interlaced_frame != 0;
}

/// Whether the field of the first line is shown first; only of an interlaced frame.
inline bool isTopFieldFirst(const AVFrame& frame) {
    return frame.top_field_first != 0;
}

inline void setInterlaced(AVFrame& frame, bool isTopFieldFirst) {
    frame.interlaced_frame = 1;
    frame.top_field_first = isTopFieldFirst ? 1 : 0;
}

inline void setProgressive(AVFrame& frame) {
    frame.interlaced_frame = 0;
    frame.top_field_first = 0;
}

inline void forgetKeyPicture(AVFrame& frame) {
    frame.key_frame = 0;
}

#endif

// FFmpeg 6.1: what a container says beside a stream's packets is with its parameters.
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 30, 100)

/// Empty where the container has none of this kind.
inline std::span<const std::uint8_t> sideData(const AVStream& stream, AVPacketSideDataType type) {
    const AVPacketSideData* data = av_packet_side_data_get(
        stream.codecpar->coded_side_data, stream.codecpar->nb_coded_side_data, type);
    if (!data)
        return {};
    return {data->data, data->size};
}

/// Room for `size` bytes that the stream owns; std::bad_alloc where there is none.
inline std::uint8_t* addSideData(AVStream& stream, AVPacketSideDataType type, std::size_t size) {
    return allocated(av_packet_side_data_new(&stream.codecpar->coded_side_data,
                                             &stream.codecpar->nb_coded_side_data, type, size, 0))
        ->data;
}

#else

/// Empty where the container has none of this kind.
inline std::span<const std::uint8_t> sideData(const AVStream& stream, AVPacketSideDataType type) {
    std::size_t size = 0;
    const std::uint8_t* data = av_stream_get_side_data(&stream, type, &size);
    return {data, data ? size : 0};
}

/// Room for `size` bytes that the stream owns; std::bad_alloc where there is none.
inline std::uint8_t* addSideData(AVStream& stream, AVPacketSideDataType type, std::size_t size) {
    return allocated(av_stream_new_side_data(&stream, type, size));
}

#endif

// FFmpeg 7.0: what is handed to a write callback is const.
#if LIBAVFORMAT_VERSION_MAJOR >= 61
using WrittenByte = const std::uint8_t;
#else
using WrittenByte = std::uint8_t;
#endif

} // namespace media::ffmpeg
