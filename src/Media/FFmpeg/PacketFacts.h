#pragma once

#include "Media/FFmpeg/Handles.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <vector>

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
    /// it takes to understand those that follow. Those that can't be done without have to go to
    /// the decoder.
    [[nodiscard]] Dispensable judge(const AVPacket& packet);

    /// To be called where the order of packets breaks, or the decoder is another one.
    void restart();

private:
    using Unit = std::span<const std::uint8_t>;

    /// What an H.264 or HEVC stream says of itself.
    struct Layout {
        /// Of the lengths in front of its units; 0: start codes stand there.
        unsigned lengthBytes = 0;
        /// Temporal layers (HEVC).
        int layers = 1;
    };

    /// What a unit of a packet is to others.
    enum class Use {
        /// A picture, or a part of one, that none refers to.
        needlessPicture,
        /// Of no consequence for any picture.
        none,
        pictureParameters,
        /// Those that parameters of pictures build on.
        streamParameters,
        /// Others may need it.
        needed,
        damaged,
    };

    static std::optional<Layout> layoutOf(const AVCodecParameters& parameters);
    [[nodiscard]] Use useOf(Unit unit) const;
    [[nodiscard]] Use useOfH264(Unit unit) const;
    [[nodiscard]] Use useOfHevc(Unit unit) const;
    [[nodiscard]] bool isNonReference(const AVPacket& packet);
    [[nodiscard]] bool isWholeFrame(const AVPacket& packet);
    [[nodiscard]] bool isRepetition(Unit pictureParameters);

    AVCodecID m_codec;
    std::optional<Layout> m_layout;
    /// The latest parameters of pictures by their number, since the latest ones of the stream.
    std::map<unsigned, std::vector<std::uint8_t>> m_pictureParameters;
    /// H.264 only.
    ParserPtr m_parser;
    CodecContextPtr m_parserContext;
};

/// Whether the pictures of two packets that follow one another in a stream are both random-access
/// points, and no picture of any other packet can be shown between them.
bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec);

} // namespace media::ffmpeg
