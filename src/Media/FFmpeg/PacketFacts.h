#pragma once

#include "Media/FFmpeg/Handles.h"

#include <optional>

namespace media::ffmpeg {

/// Tells which pictures of a stream no other picture depends on, as far as its packets say so.
class Disposability {
public:
    explicit Disposability(const AVCodecParameters& parameters);

    /// Whether a decoder that leaves out what nothing depends on does so rightly with this packet.
    [[nodiscard]] bool mayBeLeftOut(const AVPacket& packet) const;

private:
    /// What an HEVC stream says of itself as MP4 and Matroska store it.
    struct HevcLayout {
        /// Of the lengths in front of its units.
        unsigned lengthBytes = 4;
        /// Temporal layers.
        int layers = 1;
    };

    static std::optional<HevcLayout> hevcLayout(const AVCodecParameters& parameters);
    static bool isHevcNonReference(const AVPacket& packet, const HevcLayout& layout);

    AVCodecID m_codec;
    std::optional<HevcLayout> m_hevcLayout;
};

/// Whether the pictures of two packets that follow one another in a stream are both random-access
/// points, and no picture of any other packet can be shown between them.
bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec);

} // namespace media::ffmpeg
