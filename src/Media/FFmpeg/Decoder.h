#pragma once

#include "Media/FFmpeg/Handles.h"

namespace media::ffmpeg {

/// Whether no picture of the codec needs another one.
inline bool hasOnlyKeyFrames(AVCodecID codec) {
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(codec);
    return descriptor && descriptor->props & AV_CODEC_PROP_INTRA_ONLY;
}

/// A libav decoder. Use from one thread at a time.
class Decoder {
public:
    /// What its threads share.
    enum class Sharing {
        /// As the codec can: where each decodes a picture, the first comes after some more packets.
        any,
        /// The parts of one picture, in codecs that divide it: the first comes soonest.
        withinPictures,
    };

    /// `threads` 0: usualThreads(); one where the system starts no more. Throws Error if there is
    /// no decoder or it does not open.
    Decoder(const AVCodecParameters& parameters, AVRational timeBase, int threads = 0,
            Sharing sharing = Sharing::any);

    /// As many as there are processors, up to 16.
    static int usualThreads();

    [[nodiscard]] AVCodecContext& context() { return *m_context; }

    /// Hands in one packet; null begins draining. Call receive() until it gives needsInput before.
    /// A packet that does not decode is dropped and counted.
    void send(const AVPacket* packet);

    enum class Status { frame, needsInput, endOfStream };
    Status receive(AVFrame& frame);

    /// Forgets everything buffered (after a seek).
    void flush();

    [[nodiscard]] int errorCount() const { return m_errorCount; }

private:
    int open(const AVCodecParameters& parameters, AVRational timeBase, int threads,
             Sharing sharing);

    CodecContextPtr m_context;
    int m_errorCount = 0;
};

} // namespace media::ffmpeg
