#pragma once

#include "Media/FFmpeg/Handles.h"

#include <vector>

namespace media::ffmpeg {

/// Owns one channel layout (custom layouts hold memory of their own).
class ChannelLayout {
public:
    ChannelLayout() = default;
    explicit ChannelLayout(const AVChannelLayout& layout);

    ChannelLayout(const ChannelLayout& other) : ChannelLayout(other.m_layout) {}

    ChannelLayout& operator=(const ChannelLayout& other);
    ~ChannelLayout();

    /// The usual layout of that many channels.
    static ChannelLayout usual(int channels);
    /// `layout`, or the usual one of its channel count where it does not say which channels it has.
    static ChannelLayout specified(const AVChannelLayout& layout);

    [[nodiscard]] const AVChannelLayout& layout() const { return m_layout; }

    [[nodiscard]] AVChannelLayout& layout() { return m_layout; }

    [[nodiscard]] bool isSameAs(const AVChannelLayout& other) const;

private:
    AVChannelLayout m_layout = {};
};

/// Converts a run of audio frames to one sample format, rate and channel layout, without shifting
/// it: the first sample out belongs to the first sample in. Use from one thread at a time.
class SampleConverter {
public:
    SampleConverter(AVSampleFormat sampleFormat, int sampleRate, const AVChannelLayout& layout);

    [[nodiscard]] int sampleRate() const { return m_sampleRate; }

    [[nodiscard]] const AVChannelLayout& layout() const { return m_layout.layout(); }

    /// Whether a run is on its way.
    [[nodiscard]] bool isRunning() const { return m_context != nullptr; }

    /// Whether `frame` can join the run on its way: its format is that of the run's first frame.
    [[nodiscard]] bool accepts(const AVFrame& frame) const;

    /// Adds a frame to the run, or begins one with it. Gives the samples that are ready; null when
    /// there are none yet. Throws Error if there is no way to convert such samples.
    FramePtr convert(const AVFrame& frame);
    /// Ends the run. Gives its last samples; null when there are none.
    FramePtr finish();

    /// Drops the run.
    void reset() { m_context.reset(); }

    /// A block of silence.
    [[nodiscard]] FramePtr silence(int samples) const;

private:
    void begin(const AVFrame& frame);
    [[nodiscard]] SwrContextPtr makeContext(const AVFrame& frame) const;
    void matchByIndex(SwrContext& context, int inputChannels);
    [[nodiscard]] FramePtr makeBlock(int samples) const;
    FramePtr run(const AVFrame* frame);

    AVSampleFormat m_sampleFormat;
    int m_sampleRate;
    ChannelLayout m_layout;

    /// Which channel of the input each of the output is; read by the context as long as it lives.
    std::vector<int> m_channelMap;
    SwrContextPtr m_context;
    int m_inputFormat = AV_SAMPLE_FMT_NONE;
    int m_inputRate = 0;
    ChannelLayout m_inputLayout;
};

} // namespace media::ffmpeg
