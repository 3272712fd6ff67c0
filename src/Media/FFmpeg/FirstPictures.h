#pragma once

#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Threading/ThreadAffinity.h"

#include <cstddef>
#include <cstdint>
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

/// Reads a track's packets from where the demuxer stands until one picture has decoded and the
/// track's habits are known. Proves with it that the file is decodable. One thread.
class FirstPicturesReader {
public:
    /// Keeps references to both.
    FirstPicturesReader(Demuxer& demuxer, const SourceTrack& track);

    /// Throws Error if not one picture decodes or the file is encrypted; Cancelled.
    FirstPictures read(const std::stop_token& stop);

    /// When the first pictures are shown or, if not all say so, decoded; after read(), and as far
    /// as little has to be read for it.
    std::vector<Timestamp> times(const std::stop_token& stop);

    /// When the first or second packet (0, 1) of a stream is presented. Known of those that begin
    /// silently only.
    [[nodiscard]] std::optional<Timestamp> packetTime(int stream, std::size_t number) const;

    /// The first picture, once read() has returned.
    [[nodiscard]] const AVFrame& picture() const { return *m_frame; }

private:
    /// False at the end of the file.
    bool readPacket(const std::stop_token& stop);
    void notePicture();
    void noteSound();
    [[nodiscard]] bool isAwaitingSound() const;
    [[nodiscard]] FirstPictures judged() const;

    ThreadAffinity m_thread;
    Demuxer& m_demuxer;
    const SourceTrack& m_track;
    Decoder m_decoder;
    PacketPtr m_packet = makePacket();
    FramePtr m_frame = makeFrame();
    bool m_hasPicture = false;
    std::optional<Timestamp> m_timestamp;
    /// The first two times of each stream that begins silently.
    std::map<int, std::vector<std::optional<Timestamp>>> m_soundTimes;
    std::int64_t m_bytes = 0;
    /// As far as packets have them.
    std::vector<Timestamp> m_pts;
    std::vector<Timestamp> m_dts;
    std::size_t m_packets = 0;
};

} // namespace media::ffmpeg
