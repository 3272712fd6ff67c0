#pragma once

#include "Media/FFmpeg/Handles.h"

#include <cstdint>
#include <optional>

namespace media::ffmpeg {

/// What a packet of a bitstream says of its picture, without decoding it.
struct CodedPicture {
    /// Where the codec numbers its pictures: those of a sequence are shown in this order. None
    /// where at most the pictures between two others are moved, as in MPEG-1, 2 and 4.
    std::optional<std::int64_t> number;
    /// All pictures so far are shown before it and those after it.
    bool beginsSequence = false;
    /// Shown as soon as it is decoded, before the picture decoded ahead of it. Only without number.
    bool isBetween = false;
    /// The other field of the frame that the packet before it began.
    bool isSecondField = false;
    /// False of those that lean on pictures from before the beginning of their sequence.
    bool isShown = true;
    /// For how many halves of a frame it is shown: two, one if it is a field, more if it says so.
    int halves = 2;
};

/// Reads the headers of the packets of one H.264, HEVC, MPEG-1, 2 or 4 bitstream. Use from one
/// thread at a time.
class CodedPictures {
public:
    static bool canRead(AVCodecID codec);

    explicit CodedPictures(const AVCodecParameters& parameters);

    /// Packets have to come in the order of the stream, from its beginning. None for one without a
    /// picture.
    std::optional<CodedPicture> next(const AVPacket& packet);

private:
    void readH264(CodedPicture& picture, int unitType);
    void readHevc(CodedPicture& picture, int unitType);

    AVCodecID m_codec;
    CodecContextPtr m_context;
    ParserPtr m_parser;
    /// H.264: the field that waits for its other one; AV_PICTURE_STRUCTURE_UNKNOWN without.
    AVPictureStructure m_openField = AV_PICTURE_STRUCTURE_UNKNOWN;
    /// HEVC: the last random-access point was the first of the stream or broke off what was before
    /// it, so that pictures that lean on both are not shown.
    bool m_isBroken = true;
    bool m_hasRandomAccess = false;
};

} // namespace media::ffmpeg
