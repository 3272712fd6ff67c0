#include "Media/FFmpeg/Decoder.h"

#include "Media/FFmpeg/Bounds.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ClassicLocale.h"
#include "Media/Threading/Processors.h"
#include "Media/Threading/ThreadName.h"

#include <algorithm>

namespace media::ffmpeg {

/// libav's own choice would be one more than processors, which holds more pictures and gains
/// nothing. The limit is the same as libav's.
int Decoder::usualThreads() {
    constexpr int kMost = 16;
    return std::min(processorCount(), kMost);
}

Decoder::Decoder(const AVCodecParameters& parameters, AVRational timeBase, int threads,
                 Sharing sharing) {
    silenceLog();
    const int wanted = threads > 0 ? threads : usualThreads();
    int result = open(parameters, timeBase, wanted, sharing);
    // The system starts no more threads; this one can do without.
    if (result == AVERROR(EAGAIN) && wanted > 1)
        result = open(parameters, timeBase, 1, sharing);
    check(result);
}

/// What libav answers.
int Decoder::open(const AVCodecParameters& parameters, AVRational timeBase, int threads,
                  Sharing sharing) {
    const AVCodec* codec = avcodec_find_decoder(parameters.codec_id);
    if (!codec)
        return AVERROR_DECODER_NOT_FOUND;
    m_context.reset(allocated(avcodec_alloc_context3(codec)));
    check(avcodec_parameters_to_context(m_context.get(), &parameters));
    m_context->pkt_timebase = timeBase;
    m_context->max_pixels = kMostPixels;
    m_context->thread_count = threads;
    if (sharing == Sharing::withinPictures) {
        m_context->thread_type = FF_THREAD_SLICE;
        // dav1d has threads of its own and goes by this; others would take it for the stream's own
        // property that pictures come in the order in which they are shown.
        if (parameters.codec_id == AV_CODEC_ID_AV1)
            m_context->flags |= AV_CODEC_FLAG_LOW_DELAY;
    }
    const ClassicLocale classic;
    // What libav starts here would have the name of whichever thread that is.
    const ThreadName name(parameters.codec_type == AVMEDIA_TYPE_VIDEO ? "decode-video"
                                                                      : "decode-audio");
    return avcodec_open2(m_context.get(), codec, nullptr);
}

void Decoder::send(const AVPacket* packet) {
    const int result = avcodec_send_packet(m_context.get(), packet);
    if (result == AVERROR(ENOMEM))
        check(result);
    if (result < 0 && result != AVERROR_EOF)
        ++m_errorCount;
}

Decoder::Status Decoder::receive(AVFrame& frame) {
    // A decoder reports each damaged picture once; it goes on with the next.
    constexpr int kMostErrorsInARow = 10'000;
    for (int errors = 0; errors < kMostErrorsInARow; ++errors) {
        const int result = avcodec_receive_frame(m_context.get(), &frame);
        if (result >= 0)
            return Status::frame;
        if (result == AVERROR(EAGAIN))
            return Status::needsInput;
        if (result == AVERROR_EOF)
            return Status::endOfStream;
        if (result == AVERROR(ENOMEM))
            check(result);
        ++m_errorCount;
    }
    return Status::endOfStream;
}

void Decoder::flush() {
    avcodec_flush_buffers(m_context.get());
}

} // namespace media::ffmpeg
