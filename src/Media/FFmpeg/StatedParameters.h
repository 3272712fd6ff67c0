#pragma once

#include "Media/FFmpeg/Decoder.h"

#include <map>

namespace media::ffmpeg {

/// Whether the headers say enough of all tracks for their decoders, which know the rest once they
/// have decoded something, so that libav need not read and decode pictures to find it out.
bool statesParameters(const AVFormatContext& context);

/// Completes what the headers say of a stream by what its decoder found out.
void completeParameters(AVStream& stream, const AVCodecContext& decoder);

/// Decodes the beginning of each sound: how many channels it has, and at what rate, may differ from
/// what the container says (HE-AAC). Use from one thread at a time.
class FirstSounds {
public:
    /// `context` outlives it.
    explicit FirstSounds(AVFormatContext& context);

    /// A packet of any stream, in the order of the file.
    void note(const AVPacket& packet);

    /// Whether nothing is left to be found out.
    [[nodiscard]] bool isComplete() const { return m_awaited.empty(); }

private:
    struct Sound {
        Decoder decoder;
        int packets = 0;
    };

    AVFormatContext& m_context;
    /// By stream index.
    std::map<int, Sound> m_awaited;
};

} // namespace media::ffmpeg
