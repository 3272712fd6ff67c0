#include "Media/FFmpeg/CodedPictures.h"

#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/NalUnits.h"

#include <algorithm>
#include <span>

namespace media::ffmpeg {

namespace {

/// Rec. ITU-T H.264, table 7-1.
enum H264Unit { kFirstSlice = 1, kInstantRefresh = 5 };

/// Rec. ITU-T H.265, table 7-1.
enum HevcUnit {
    kSkippedLeadingN = 8,
    kSkippedLeadingR = 9,
    kFirstRandomAccess = 16,
    kLastInstantRefresh = 20,
    kCleanRandomAccess = 21,
    kFirstWithoutPicture = 32
};

bool isPictureOf(AVCodecID codec, int unitType) {
    return codec == AV_CODEC_ID_H264 ? unitType >= kFirstSlice && unitType <= kInstantRefresh
                                     : unitType < kFirstWithoutPicture;
}

/// The type of the first NAL unit of a picture in an H.264 or HEVC packet; none without a picture.
std::optional<int> firstPictureUnit(const AVPacket& packet, AVCodecID codec) {
    std::span<const std::uint8_t> rest(packet.data,
                                       static_cast<std::size_t>(std::max(packet.size, 0)));
    for (;;) {
        const auto found = static_cast<std::size_t>(startCodeIn(rest) - rest.begin());
        const std::size_t past = found + kStartCodeLength;
        rest = rest.subspan(std::min(past, rest.size()));
        if (rest.empty())
            return std::nullopt;
        const int type = codec == AV_CODEC_ID_H264 ? rest[0] & 31 : rest[0] >> 1 & 63;
        if (isPictureOf(codec, type))
            return type;
    }
}

bool isField(int structure) {
    return structure == AV_PICTURE_STRUCTURE_TOP_FIELD ||
           structure == AV_PICTURE_STRUCTURE_BOTTOM_FIELD;
}

} // namespace

bool CodedPictures::canRead(AVCodecID codec) {
    return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC ||
           codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
           codec == AV_CODEC_ID_MPEG4;
}

CodedPictures::CodedPictures(const AVCodecParameters& parameters)
    : m_codec(parameters.codec_id),
      m_context(allocated(avcodec_alloc_context3(nullptr))),
      m_parser(allocated(av_parser_init(parameters.codec_id))) {
    check(avcodec_parameters_to_context(m_context.get(), &parameters));
    m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
}

std::optional<CodedPicture> CodedPictures::next(const AVPacket& packet) {
    std::uint8_t* data = nullptr;
    int size = 0;
    av_parser_parse2(m_parser.get(), m_context.get(), &data, &size, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
    CodedPicture picture;
    if (m_codec != AV_CODEC_ID_H264 && m_codec != AV_CODEC_ID_HEVC) {
        picture.isBetween = m_parser->pict_type == AV_PICTURE_TYPE_B;
        picture.halves = std::max(picture.halves, m_parser->repeat_pict + 1);
        return picture;
    }
    const auto unitType = firstPictureUnit(packet, m_codec);
    if (!unitType)
        return std::nullopt;
    picture.number = m_parser->output_picture_number;
    if (m_codec == AV_CODEC_ID_H264)
        readH264(picture, *unitType);
    else
        readHevc(picture, *unitType);
    return picture;
}

void CodedPictures::readH264(CodedPicture& picture, int unitType) {
    const AVPictureStructure structure = m_parser->picture_structure;
    picture.isSecondField = isField(structure) && isField(m_openField) && structure != m_openField;
    m_openField =
        isField(structure) && !picture.isSecondField ? structure : AV_PICTURE_STRUCTURE_UNKNOWN;
    picture.beginsSequence = unitType == kInstantRefresh && !picture.isSecondField;
    picture.halves = isField(structure) ? 1 : std::max(picture.halves, m_parser->repeat_pict + 1);
}

void CodedPictures::readHevc(CodedPicture& picture, int unitType) {
    const bool isRandomAccess = unitType >= kFirstRandomAccess && unitType <= kCleanRandomAccess;
    if (isRandomAccess) {
        picture.beginsSequence = unitType <= kLastInstantRefresh || !m_hasRandomAccess;
        m_isBroken = picture.beginsSequence;
        m_hasRandomAccess = true;
    }
    picture.isShown = !m_isBroken || (unitType != kSkippedLeadingN && unitType != kSkippedLeadingR);
}

} // namespace media::ffmpeg
