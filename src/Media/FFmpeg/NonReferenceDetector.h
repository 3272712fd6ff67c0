#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/NalUnits.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace media::ffmpeg {

/// Whether a packet can be discarded when its own picture is not wanted.
enum class Discardable {
    /// Others may need it.
    no,
    /// The decoder has to see it, and skips it by itself when told to (AVDISCARD_NONREF).
    byDecoder,
    /// The decoder need not even see it.
    entirely,
};

/// Tells which packets of a stream hold nothing but non-reference pictures, on which no other
/// depends. It goes by what the packets say, and takes them to be needed where they do not say it
/// plainly. Use from one thread at a time.
class NonReferenceDetector final {
public:
    explicit NonReferenceDetector(const AVCodecParameters& parameters);

    /// Every packet has to be shown to it, in decoding order from a key frame on: some bring what
    /// it takes to understand those that follow. Those that are not discardable have to go to the
    /// decoder.
    [[nodiscard]] Discardable inspect(const AVPacket& packet);

    /// To be called where the order of packets breaks, or the decoder is another one.
    void restart();

private:
    /// What an H.264 or HEVC stream says of itself.
    struct Layout {
        /// Of the lengths in front of its NAL units; 0: start codes stand there.
        unsigned lengthBytes = 0;
        /// Temporal layers (HEVC).
        int layers = 1;
    };

    /// What a NAL unit is to other packets.
    enum class Use {
        /// A non-reference picture, or a slice of one.
        nonReferencePicture,
        /// Of no consequence for any picture: SEI, delimiters, filler.
        none,
        pictureParameterSet,
        /// An SPS or VPS: picture parameter sets build on those.
        sequenceParameterSet,
        /// A picture that others may refer to, or anything else that may be needed.
        reference,
        damaged,
    };

    static std::optional<Layout> layoutOf(const AVCodecParameters& parameters);
    [[nodiscard]] Use useOf(NalUnit unit) const;
    [[nodiscard]] Use useOfH264(NalUnit unit) const;
    [[nodiscard]] Use useOfHevc(NalUnit unit) const;
    [[nodiscard]] bool isNonReference(const AVPacket& packet);
    [[nodiscard]] bool isWholeFrame(const AVPacket& packet);
    [[nodiscard]] bool isRepetition(NalUnit pictureParameterSet);

    AVCodecID m_codec;
    std::optional<Layout> m_layout;
    /// The latest picture parameter sets by their number, since the latest SPS.
    std::map<unsigned, std::vector<std::uint8_t>> m_pictureParameterSets;
    /// H.264 only.
    ParserPtr m_parser;
    CodecContextPtr m_parserContext;
};

} // namespace media::ffmpeg
