#pragma once

#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/StatedParameters.h"
#include "Media/FFmpeg/Timestamp.h"
#include "Media/Threading/ThreadAffinity.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <stop_token>
#include <vector>

namespace media::ffmpeg {

/// What the first pictures of a track tell.
struct FirstPictures {
    /// Of the first picture that decodes, if it has one.
    std::optional<Timestamp> timestamp;
    bool lacksPresentationTimes = false;
    bool needsGeneratedTimes = false;
};

/// The picture of a track that is shown first.
struct FirstFrame {
    FramePtr frame;
    Timestamp timestamp;
    /// Of the picture shown after it, if that one decodes.
    Timestamp next;
};

/// Reads a track's packets from where the demuxer stands until one picture has decoded and the
/// track's habits are known. Proves with it that the file is decodable. One thread.
class FirstPicturesReader {
public:
    /// What only the container says of the tracks, or also what libav has read of them.
    enum class Known { headers, everything };

    /// Keeps references to the demuxer and its stream.
    FirstPicturesReader(Demuxer& demuxer, AVStream& stream, Known known);

    /// Completes the parameters of the file's streams where only the headers are known. Throws
    /// Error if not one picture decodes or the file is encrypted; Cancelled.
    FirstPictures read(const std::stop_token& stop);

    /// When the first pictures are shown or, if not all say so, decoded; after read(), and as far
    /// as little has to be read for it.
    std::vector<Timestamp> times(const std::stop_token& stop);

    /// When the first or second packet (0, 1) of a stream is presented. Known of those that begin
    /// silently only.
    [[nodiscard]] std::optional<Timestamp> packetTime(int stream, std::size_t number) const;

    /// The first picture, once read() has returned.
    [[nodiscard]] const AVFrame& picture() const { return *m_frame; }

    /// The same where it is certain that it is shown first, and until when, and that it decoded
    /// without a flaw.
    [[nodiscard]] std::optional<FirstFrame> firstFrame() const;

private:
    /// False at the end of the file.
    bool readPacket(const std::stop_token& stop);
    void findPicture(const std::stop_token& stop);
    void lookAhead(const std::stop_token& stop);
    [[nodiscard]] bool knowsNext() const;
    bool decodeAlone();
    void decodeInTurn(const std::stop_token& stop);
    void decode(const AVPacket* packet);
    void completeStreams(const std::stop_token& stop);
    [[nodiscard]] bool isWholeFrame(const AVFrame& frame) const;
    void notePicture();
    void noteHeaders();
    void noteNext();
    void noteSound();
    [[nodiscard]] bool isAwaitingSound() const;
    [[nodiscard]] FirstPictures judged() const;

    ThreadAffinity m_thread;
    Demuxer& m_demuxer;
    AVStream& m_stream;
    Decoder m_decoder;
    PacketPtr m_packet = makePacket();
    FramePtr m_frame = makeFrame();
    bool m_hasPicture = false;
    std::optional<Timestamp> m_timestamp;
    /// The track's packets that were read but not decoded.
    std::deque<PacketPtr> m_waiting;
    /// The earliest time of presentation behind the first packet's; none if one does not say.
    std::optional<Timestamp> m_next;
    /// The first packet's picture is a key frame, and shown before that of any other that was read.
    bool m_beginsInTurn = true;
    bool m_decodedAlone = false;
    bool m_hasEnded = false;
    bool m_statesDts = false;
    /// Of the first packet, in H.264.
    AVPictureStructure m_structure = AV_PICTURE_STRUCTURE_UNKNOWN;
    AVFieldOrder m_fieldOrder = AV_FIELD_UNKNOWN;
    /// The first two times of each stream that begins silently.
    std::map<int, std::vector<std::optional<Timestamp>>> m_soundTimes;
    /// Where only the headers are known.
    std::optional<FirstSounds> m_sounds;
    bool m_isCompleted = false;
    std::int64_t m_bytes = 0;
    /// As far as packets have them.
    std::vector<Timestamp> m_pts;
    std::vector<Timestamp> m_dts;
    std::size_t m_packets = 0;
};

} // namespace media::ffmpeg
