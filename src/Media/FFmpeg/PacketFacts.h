#pragma once

#include "Media/FFmpeg/Handles.h"

#include <optional>

namespace media::ffmpeg {

/// Tells which pictures of a stream no other picture depends on, as far as its packets say so.
class Disposability {
public:
    explicit Disposability(const AVCodecParameters& parameters);

    /// Whether nothing else is lost without this packet's picture: to a decoder that does not get
    /// the packet, or, where that is not plain, to one that leaves out what nothing depends on.
    [[nodiscard]] bool mayBeLeftOut(const AVPacket& packet) const;

    /// Whether the packets themselves say so, so that a decoder need not even see those.
    [[nodiscard]] bool isPlain() const;

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

    AVCodecID m_codec;
    std::optional<Layout> m_layout;
};

/// Whether the pictures of two packets that follow one another in a stream are both random-access
/// points, and no picture of any other packet can be shown between them.
bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec);

} // namespace media::ffmpeg
