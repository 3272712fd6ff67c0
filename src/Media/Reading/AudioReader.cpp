#include "Media/Reading/AudioReader.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/SampleConverter.h"
#include "Media/Reading/AudioFrames.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace media {

namespace {

/// A track whose timestamps lead or trail its samples by this much is moved to where they say.
constexpr double kDriftSeconds = 0.03;
/// A jump from one frame to the next by this much is a hole or an overlap, not rounding. Less than
/// one AAC frame, the smallest loss that is common.
constexpr double kStepSeconds = 0.01;
/// Frames whose timestamps are this close in their distance from the expected agree.
constexpr double kAgreementSeconds = 0.005;
constexpr int kSilenceBlockSamples = 1024;
constexpr int kFallbackSampleRate = 48000;
constexpr int kFallbackChannels = 2;

double secondsOf(const AVFrame& frame) {
    return static_cast<double>(frame.nb_samples) / frame.sample_rate;
}

/// Removes the first samples of a frame that is ours alone.
void dropLeading(AVFrame& frame, int samples) {
    const int rest = frame.nb_samples - samples;
    ffmpeg::check(av_samples_copy(frame.extended_data, frame.extended_data, 0, samples, rest,
                                  frame.ch_layout.nb_channels,
                                  static_cast<AVSampleFormat>(frame.format)));
    frame.nb_samples = rest;
}

} // namespace

/// Three stages, each pulling from the one before: frames (decoded, with a few ahead), chunks
/// (converted, with a position counted in output samples) and blocks (gapless).
class AudioReader::Private {
public:
    Private(std::shared_ptr<const Asset> asset, const AssetTrack& facts, Format format)
        : m_frames(std::move(asset), facts), m_converter(makeConverter(format)) {}

    [[nodiscard]] const ffmpeg::SampleConverter& converter() const { return m_converter; }

    void seek(Time time, const std::stop_token& stop) {
        forgetRun();
        m_target = time.seconds();
        m_delivered = 0;
        m_pending.clear();
        m_frames.seek(m_target, stop);
    }

    ffmpeg::FramePtr next(const std::stop_token& stop) {
        for (;;) {
            if (stop.stop_requested())
                throw Cancelled();
            if (auto block = takeBlock())
                return block;
            m_frames.fillAhead(stop);
            if (!m_frames.ahead().empty())
                convertNext(stop);
            else if (m_converter.isRunning())
                finishRun();
            else
                return nullptr;
        }
    }

private:
    struct Chunk {
        ffmpeg::FramePtr frame;
        /// Output samples from the target of the last seek; negative before it.
        std::int64_t position = 0;
    };

    [[nodiscard]] ffmpeg::SampleConverter makeConverter(const Format& format) const {
        const AVCodecParameters& source = *m_frames.track().parameters;
        const int rate = format.sampleRate > 0    ? format.sampleRate
                         : source.sample_rate > 0 ? source.sample_rate
                                                  : kFallbackSampleRate;
        const auto layout = format.channels > 0 ? ffmpeg::ChannelLayout::usual(format.channels)
                            : source.ch_layout.nb_channels > 0
                                ? ffmpeg::ChannelLayout::specified(source.ch_layout)
                                : ffmpeg::ChannelLayout::usual(kFallbackChannels);
        return {format.sampleFormat, rate, layout.layout()};
    }

    void forgetRun() {
        m_converter.reset();
        m_expected.reset();
        m_lastStray = 0;
    }

    // ---- Chunks

    /// Where the timestamps of the frames ahead, taken together, put the first of them; none if
    /// none of them has one.
    [[nodiscard]] std::optional<double> agreedTime() const {
        std::optional<double> first;
        double sum = 0;
        int count = 0;
        double counted = 0;
        for (const auto& frame : m_frames.ahead()) {
            if (const auto time = m_frames.timeOf(*frame)) {
                const double start = *time - counted;
                if (!first)
                    first = start;
                if (std::abs(start - *first) > kStepSeconds)
                    break;
                sum += start;
                ++count;
            }
            counted += secondsOf(*frame);
        }
        if (!first)
            return std::nullopt;
        // A file's first timestamp is rarely a rounded one.
        const double mean = sum / count;
        const bool isFirstOfFile = m_frames.startedAtStart() && !m_expected;
        return isFirstOfFile && std::abs(mean - *first) < av_q2d(m_frames.track().timeBase) ? *first
                                                                                            : mean;
    }

    /// Whether the next frame lies elsewhere than right behind the last one, and most of the
    /// frames after it say so too.
    bool isDisplaced() {
        const auto time = m_frames.timeOf(*m_frames.ahead().front());
        if (!time)
            return false;
        const double stray = *time - *m_expected;
        const double step = stray - m_lastStray;
        m_lastStray = stray;
        const bool isStep = std::abs(stray) > kStepSeconds && std::abs(step) > kStepSeconds;
        if (std::abs(stray) <= kDriftSeconds && !isStep)
            return false;
        std::size_t votes = 0;
        std::size_t agreeing = 0;
        double expected = *m_expected;
        for (const auto& frame : m_frames.ahead()) {
            if (const auto other = m_frames.timeOf(*frame)) {
                ++votes;
                agreeing += std::abs(*other - expected - stray) < kAgreementSeconds ? 1U : 0U;
            }
            expected += secondsOf(*frame);
        }
        return agreeing * 2 > votes;
    }

    void convertNext(const std::stop_token& stop) {
        if (!m_expected) {
            m_expected = agreedTime();
            if (!m_expected && !m_frames.startedAtStart()) {
                restartWithoutTimestamps(stop);
                return;
            }
            beginRun(m_expected.value_or(m_frames.track().facts.startTime.seconds()));
        } else if (isDisplaced()) {
            finishRun();
            beginRun(agreedTime().value_or(*m_expected));
        }
        const auto frame = std::move(m_frames.ahead().front());
        m_frames.ahead().pop_front();
        if (m_converter.isRunning() && !m_converter.accepts(*frame)) {
            finishRun();
            beginRun(*m_expected);
        }
        append(m_converter.convert(*frame));
        *m_expected += secondsOf(*frame);
    }

    /// Nothing says where a seek has led to: only counting from the start can.
    void restartWithoutTimestamps(const std::stop_token& stop) {
        forgetRun();
        m_frames.restart(stop);
    }

    void beginRun(double time) {
        m_expected = time;
        m_lastStray = 0;
        m_position = std::llround((time - m_target) * m_converter.sampleRate());
    }

    void finishRun() { append(m_converter.finish()); }

    void append(ffmpeg::FramePtr frame) {
        if (!frame)
            return;
        const int samples = frame->nb_samples;
        m_pending.push_back({std::move(frame), m_position});
        m_position += samples;
    }

    // ---- Blocks

    /// The next block of what is converted, with silence in its holes; null if more has to be
    /// converted first.
    ffmpeg::FramePtr takeBlock() {
        while (!m_pending.empty()) {
            Chunk& chunk = m_pending.front();
            const std::int64_t gap = chunk.position - m_delivered;
            if (gap > 0) {
                const auto samples = std::min<std::int64_t>(gap, kSilenceBlockSamples);
                return stamped(m_converter.silence(static_cast<int>(samples)));
            }
            auto frame = std::move(chunk.frame);
            m_pending.pop_front();
            if (-gap >= frame->nb_samples)
                continue;
            if (gap < 0)
                dropLeading(*frame, static_cast<int>(-gap));
            return stamped(std::move(frame));
        }
        return nullptr;
    }

    ffmpeg::FramePtr stamped(ffmpeg::FramePtr block) {
        block->pts = m_delivered;
        m_delivered += block->nb_samples;
        return block;
    }

    AudioFrames m_frames;
    ffmpeg::SampleConverter m_converter;

    /// Asset seconds: the target of the last seek.
    double m_target = 0;
    /// Asset seconds: where the next frame continues the run; none before a run.
    std::optional<double> m_expected;
    /// How far from that the last frame's timestamp was.
    double m_lastStray = 0;
    /// The position of the next chunk.
    std::int64_t m_position = 0;
    std::deque<Chunk> m_pending;
    std::int64_t m_delivered = 0;
};

AudioReader::AudioReader(std::shared_ptr<const Asset> asset, const AssetTrack& track, Format format)
    : d(std::make_unique<Private>(std::move(asset), track, format)) {}

AudioReader::~AudioReader() = default;

int AudioReader::sampleRate() const {
    return d->converter().sampleRate();
}

const AVChannelLayout& AudioReader::channelLayout() const {
    return d->converter().layout();
}

void AudioReader::seek(Time time, const std::stop_token& stop) {
    d->seek(time, stop);
}

ffmpeg::FramePtr AudioReader::next(const std::stop_token& stop) {
    return d->next(stop);
}

} // namespace media
