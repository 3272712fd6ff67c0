#pragma once

#include "Media/Asset.h"
#include "Media/FFmpeg/Handles.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace media {

/// Decodes one audio track into a gapless run of samples from any time.
///
/// Sample n after seek(t) is what the source sounds at t + n / sampleRate, to the sample: priming
/// is left out, silence stands where the source has none (before its first sample and in holes).
/// Has its own demuxer and decoder. Use from one thread at a time.
class AudioReader {
public:
    struct Format {
        AVSampleFormat sampleFormat = AV_SAMPLE_FMT_FLTP;
        /// 0 keeps the source's.
        int sampleRate = 0;
        /// 0 keeps the source's layout; otherwise the default layout of that many channels.
        int channels = 0;
    };

    /// Throws Error if the track cannot be decoded.
    AudioReader(std::shared_ptr<const Asset> asset, const AssetTrack& track, Format format);
    AudioReader(const AudioReader&) = delete;
    AudioReader& operator=(const AudioReader&) = delete;
    ~AudioReader();

    /// The format that next() delivers: the sample rate in Hz and the channel layout.
    [[nodiscard]] int sampleRate() const;
    [[nodiscard]] const AVChannelLayout& channelLayout() const;

    /// Moves to `time` on the asset's time line (numeric). Throws Cancelled on a stop request.
    void seek(Time time, const std::stop_token& stop = {});

    /// The next block, some tens of milliseconds long; its pts is the number of samples since the
    /// last seek. None after the track's end. A new reader starts at time 0.
    ffmpeg::FramePtr next(const std::stop_token& stop = {});

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace media
