#pragma once

#include <cstdint>
#include <memory>
#include <new>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

namespace media::ffmpeg {

/// The one place where libav objects are released.
struct Deleter {
    void operator()(AVFormatContext* context) const noexcept { avformat_close_input(&context); }

    void operator()(AVCodecContext* context) const noexcept { avcodec_free_context(&context); }

    void operator()(AVCodecParameters* parameters) const noexcept {
        avcodec_parameters_free(&parameters);
    }

    void operator()(AVCodecParserContext* parser) const noexcept { av_parser_close(parser); }

    void operator()(AVFrame* frame) const noexcept { av_frame_free(&frame); }

    void operator()(AVPacket* packet) const noexcept { av_packet_free(&packet); }

    void operator()(AVDictionary* dictionary) const noexcept { av_dict_free(&dictionary); }

    void operator()(SwsContext* context) const noexcept { sws_freeContext(context); }

    void operator()(SwrContext* context) const noexcept { swr_free(&context); }

    void operator()(AVIOContext* context) const noexcept {
        av_freep(static_cast<void*>(&context->buffer));
        avio_context_free(&context);
    }
};

/// An output context owns no file of its own and is not an opened input.
struct OutputDeleter {
    void operator()(AVFormatContext* context) const noexcept { avformat_free_context(context); }
};

using FormatContextPtr = std::unique_ptr<AVFormatContext, Deleter>;
using OutputContextPtr = std::unique_ptr<AVFormatContext, OutputDeleter>;
using CodecContextPtr = std::unique_ptr<AVCodecContext, Deleter>;
using CodecParametersPtr = std::unique_ptr<AVCodecParameters, Deleter>;
using ParserPtr = std::unique_ptr<AVCodecParserContext, Deleter>;
using FramePtr = std::unique_ptr<AVFrame, Deleter>;
using PacketPtr = std::unique_ptr<AVPacket, Deleter>;
using DictionaryPtr = std::unique_ptr<AVDictionary, Deleter>;
using SwsContextPtr = std::unique_ptr<SwsContext, Deleter>;
using SwrContextPtr = std::unique_ptr<SwrContext, Deleter>;
using IoContextPtr = std::unique_ptr<AVIOContext, Deleter>;

/// `object`, or std::bad_alloc where libav could not allocate it.
template<typename T>
T* allocated(T* object) {
    if (!object)
        throw std::bad_alloc();
    return object;
}

inline FramePtr makeFrame() {
    return FramePtr(allocated(av_frame_alloc()));
}

inline PacketPtr makePacket() {
    return PacketPtr(allocated(av_packet_alloc()));
}

/// A new reference to the same data.
inline FramePtr referenced(const AVFrame& frame) {
    return FramePtr(allocated(av_frame_clone(&frame)));
}

} // namespace media::ffmpeg
