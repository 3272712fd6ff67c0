#include "Media/FFmpeg/FirstPictures.h"

#include "Media/Error.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/Encryption.h"

#include <algorithm>

namespace media::ffmpeg {

namespace {

/// How many packets are looked at to learn whether a track states its presentation times.
constexpr std::size_t kPacketsToJudge = 16;

/// How much is read of a container without an index of all pictures to learn at which distances
/// they follow one another.
constexpr std::size_t kTimesToJudge = 64;
constexpr std::int64_t kBytesToJudge = 4'000'000;
/// No decoder keeps more pictures to put them in order.
constexpr std::size_t kMostReordered = 16;

/// How many packets are read in search of the second one of a sound.
constexpr int kPacketsForSound = 64;

/// Whether the container counts the time of what only prepares the decoder: the first packet of
/// Vorbis, the first samples of Opus.
bool beginsSilently(const AVFormatContext& context, const AVStream& stream) {
    const AVCodecID codec = stream.codecpar->codec_id;
    return (codec == AV_CODEC_ID_VORBIS || codec == AV_CODEC_ID_OPUS) &&
           containerTraits(*context.iformat).countsSoundPriming;
}

} // namespace

FirstPicturesReader::FirstPicturesReader(Demuxer& demuxer, const SourceTrack& track)
    : m_demuxer(demuxer), m_track(track), m_decoder(*track.parameters, track.timeBase, 1) {
    const AVFormatContext& context = demuxer.context();
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        if (beginsSilently(context, *context.streams[i]))
            m_soundTimes[context.streams[i]->index];
    }
}

FirstPictures FirstPicturesReader::read(const std::stop_token& stop) {
    m_thread.check();
    const bool mustJudge = !m_demuxer.statesPresentationTimes();
    for (int read = 0; !m_hasPicture || (mustJudge && m_packets < kPacketsToJudge) ||
                       (isAwaitingSound() && read < kPacketsForSound);
         ++read) {
        if (!readPacket(stop))
            break;
    }
    if (!m_hasPicture)
        throw Error(ErrorKind::noPictureDecodable);
    return judged();
}

std::vector<Timestamp> FirstPicturesReader::times(const std::stop_token& stop) {
    m_thread.check();
    while (m_packets < kTimesToJudge && m_bytes < kBytesToJudge && readPacket(stop)) {
    }
    if (m_pts.size() < m_packets)
        return m_dts.size() == m_packets ? m_dts : std::vector<Timestamp>();
    // Between the last ones some may be missing that are decoded later.
    std::vector<Timestamp> shown = m_pts;
    std::ranges::sort(shown);
    shown.resize(shown.size() - std::min(shown.size(), kMostReordered));
    return shown;
}

std::optional<Timestamp> FirstPicturesReader::packetTime(int stream, std::size_t number) const {
    const auto entry = m_soundTimes.find(stream);
    if (entry == m_soundTimes.end() || entry->second.size() <= number)
        return std::nullopt;
    return entry->second[number];
}

bool FirstPicturesReader::readPacket(const std::stop_token& stop) {
    const bool hasPacket = m_demuxer.read(*m_packet, stop) == Demuxer::Status::packet;
    if (hasPacket)
        expectNoEncryption(*m_packet);
    m_bytes += hasPacket ? m_packet->size : 0;
    if (hasPacket && m_packet->stream_index != m_track.facts.streamIndex) {
        noteSound();
        av_packet_unref(m_packet.get());
        return true;
    }
    if (hasPacket)
        notePicture();
    if (!m_hasPicture) {
        m_decoder.send(hasPacket ? m_packet.get() : nullptr);
        m_hasPicture = m_decoder.receive(*m_frame) == Decoder::Status::frame;
        if (m_hasPicture)
            m_timestamp = ptsOf(*m_frame);
    }
    av_packet_unref(m_packet.get());
    return hasPacket;
}

void FirstPicturesReader::notePicture() {
    ++m_packets;
    if (const auto pts = ptsOf(*m_packet))
        m_pts.push_back(*pts);
    if (const auto dts = dtsOf(*m_packet))
        m_dts.push_back(*dts);
}

void FirstPicturesReader::noteSound() {
    const auto entry = m_soundTimes.find(m_packet->stream_index);
    if (entry != m_soundTimes.end() && entry->second.size() < 2)
        entry->second.push_back(ptsOf(*m_packet));
}

bool FirstPicturesReader::isAwaitingSound() const {
    return std::ranges::any_of(m_soundTimes,
                               [](const auto& entry) { return entry.second.size() < 2; });
}

FirstPictures FirstPicturesReader::judged() const {
    FirstPictures result{m_timestamp, false, false};
    const std::size_t withoutPts = m_packets - m_pts.size();
    const AVCodecID codec = m_track.parameters->codec_id;
    const bool reordersByOne = codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
                               codec == AV_CODEC_ID_MPEG4;
    if (reordersByOne && withoutPts > 0) {
        result.needsGeneratedTimes = true;
    } else if (withoutPts * 2 > m_packets) {
        result.lacksPresentationTimes = true;
        result.timestamp = m_dts.empty() ? std::nullopt : std::optional(m_dts.front());
    }
    return result;
}

} // namespace media::ffmpeg
