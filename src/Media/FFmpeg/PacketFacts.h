#pragma once

#include "Media/FFmpeg/Handles.h"

#include <optional>

namespace media::ffmpeg {

/// How far a packet can be done without when its own picture is not wanted.
enum class Dispensable {
    /// Others may need it.
    no,
    /// The decoder has to see it, and leaves it out by itself when told to (AVDISCARD_NONREF).
    bySkipping,
    /// The decoder need not even see it.
    entirely,
};

/// Tells which packets of a stream no other picture depends on. It judges by what the packets say,
/// and takes them to be needed where they do not say it plainly.
class Disposability {
public:
    explicit Disposability(const AVCodecParameters& parameters);

    /// Every packet has to be shown to it, in decoding order from a key frame on: some bring what
    /// it takes to understand those that follow.
    [[nodiscard]] Dispensable judge(const AVPacket& packet);

private:
    /// What an H.264 or HEVC stream says of itself.
    struct Layout {
        /// Of the lengths in front of its units; 0: start codes stand there.
        unsigned lengthBytes = 0;
        /// Temporal layers (HEVC).
        int layers = 1;
    };

    static std::optional<Layout> layoutOf(const AVCodecParameters& parameters);
    [[nodiscard]] bool isHevcNonReference(const AVPacket& packet) const;
    [[nodiscard]] bool isH264NonReference(const AVPacket& packet) const;
    [[nodiscard]] bool isWholeFrame(const AVPacket& packet);

    AVCodecID m_codec;
    std::optional<Layout> m_layout;
    /// H.264 only.
    ParserPtr m_parser;
    CodecContextPtr m_parserContext;
};

/// Whether the pictures of two packets that follow one another in a stream are both random-access
/// points, and no picture of any other packet can be shown between them.
bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec);

} // namespace media::ffmpeg
