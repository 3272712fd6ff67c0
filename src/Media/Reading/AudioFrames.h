#pragma once

#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Reading/OpenedAsset.h"

#include <deque>
#include <memory>
#include <optional>
#include <stop_token>

namespace media {

/// The decoded frames of one audio track from any position on, a few of them ahead, so that their
/// timestamps can be compared. Has its own demuxer and decoder. Use from one thread at a time.
class AudioFrames {
public:
    /// Throws Error if the track cannot be decoded.
    AudioFrames(std::shared_ptr<const Asset> asset, const AssetTrack& facts);

    [[nodiscard]] const ffmpeg::SourceTrack& track() const { return m_track; }

    /// Goes to where decoding has to start for the sound at `target`, in asset seconds. Throws
    /// Cancelled.
    void seek(double target, const std::stop_token& stop);
    /// Goes to the first frame of the file.
    void restart(const std::stop_token& stop);

    /// Decodes until some frames are ahead or the track has ended. Throws Cancelled.
    void fillAhead(const std::stop_token& stop);

    /// In the order of the file; empty after the last.
    [[nodiscard]] std::deque<ffmpeg::FramePtr>& ahead() { return m_ahead; }

    [[nodiscard]] const std::deque<ffmpeg::FramePtr>& ahead() const { return m_ahead; }

    /// Whether what has been decoded since the last seek began with the file.
    [[nodiscard]] bool startedAtStart() const { return m_startedAtStart; }

    /// By its timestamp; asset seconds.
    [[nodiscard]] std::optional<double> timeOf(const AVFrame& frame) const;

private:
    void forgetBuffered();
    void moveToStart(const std::stop_token& stop);
    bool seekContainer(double audible, const std::stop_token& stop);
    [[nodiscard]] const ffmpeg::SourceTrack& guideTrack() const;
    std::optional<double> readLanding(const std::stop_token& stop);
    [[nodiscard]] std::optional<double> timeOf(std::optional<ffmpeg::Timestamp> timestamp) const;
    bool readPacket(const std::stop_token& stop);
    [[nodiscard]] bool isBeforePreroll() const;
    void feed(const std::stop_token& stop);

    std::shared_ptr<const OpenedAsset> m_asset;
    const ffmpeg::SourceTrack& m_track;
    ffmpeg::Demuxer m_demuxer;
    ffmpeg::Decoder m_decoder;

    /// The packet that a seek landed on waits in m_packet while m_hasPacket.
    ffmpeg::PacketPtr m_packet = ffmpeg::makePacket();
    bool m_hasPacket = false;
    /// Nothing has been read since the file was opened.
    bool m_isAtStart = true;
    bool m_startedAtStart = true;
    bool m_isDraining = false;
    bool m_isDrained = false;
    std::deque<ffmpeg::FramePtr> m_ahead;
    /// Asset seconds: where packets begin to be of use.
    double m_skipBefore;
};

} // namespace media
