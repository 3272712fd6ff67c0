#include "Media/AudioReader.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/SampleConverter.h"
#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <string_view>

namespace media {

namespace {

/// Decoding starts this much before the time asked for: an Opus decoder needs 80 ms to converge,
/// MP3 the bytes of earlier frames, AAC one or two frames.
constexpr double kPrerollSeconds = 0.2;
/// Frames decoded ahead. Their timestamps vote on where the first of them lies, so that neither a
/// container's rounding nor one false timestamp moves the sound.
constexpr std::size_t kFramesAhead = 8;
/// A track whose timestamps lead or trail its samples by this much is moved to where they say.
constexpr double kDriftSeconds = 0.03;
/// A jump from one frame to the next by this much is a hole or an overlap, not rounding. Less than
/// one AAC frame, the smallest loss that is common.
constexpr double kStepSeconds = 0.01;
/// Frames whose timestamps are this close in their distance from the expected agree.
constexpr double kAgreementSeconds = 0.005;
/// Steps back for containers that land behind the time they were asked for.
constexpr std::array<double, 3> kStepsBackSeconds = {0, 2, 10};
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

/// Whether packets carry all their facts without a look at the streams' content first.
bool describesPackets(const AVInputFormat& format) {
    const std::string_view name(format.name);
    return name.starts_with("mov") || name.starts_with("matroska");
}

/// Whether the container's index knows positions by the picture track only.
bool isIndexedByPictures(const AVInputFormat& format) {
    const std::string_view name(format.name);
    return name.starts_with("matroska") || name.ends_with("flv");
}

} // namespace

/// Three stages, each pulling from the one before: frames (decoded, with a few ahead), chunks
/// (converted, with a position counted in output samples) and blocks (gapless).
class AudioReader::Private {
public:
    Private(std::shared_ptr<const Asset> asset, const AssetTrack& facts, Format format)
        : m_asset(std::move(asset)),
          m_track(m_asset->info().track(facts.streamIndex)),
          m_demuxer(m_asset->file(), m_asset->info().format),
          m_decoder(*m_track.parameters, m_track.timeBase, 1),
          m_converter(makeConverter(format)) {
        if (!describesPackets(*m_asset->info().format))
            m_demuxer.findStreamInfo();
        m_demuxer.selectOnly({m_track.facts.streamIndex});
    }

    [[nodiscard]] const ffmpeg::SampleConverter& converter() const { return m_converter; }

    void seek(Time time, const std::stop_token& stop) {
        forgetBuffered();
        m_target = time.seconds();
        m_delivered = 0;
        m_pending.clear();
        move(stop);
    }

    ffmpeg::FramePtr next(const std::stop_token& stop) {
        for (;;) {
            if (stop.stop_requested())
                throw Cancelled();
            if (auto block = takeBlock())
                return block;
            fillAhead(stop);
            if (!m_ahead.empty())
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
        const AVCodecParameters& source = *m_track.parameters;
        const int rate = format.sampleRate > 0    ? format.sampleRate
                         : source.sample_rate > 0 ? source.sample_rate
                                                  : kFallbackSampleRate;
        const auto layout = format.channels > 0 ? ffmpeg::ChannelLayout::usual(format.channels)
                            : source.ch_layout.nb_channels > 0
                                ? ffmpeg::ChannelLayout::specified(source.ch_layout)
                                : ffmpeg::ChannelLayout::usual(kFallbackChannels);
        return {format.sampleFormat, rate, layout.layout()};
    }

    // ---- Positions in the file

    void forgetBuffered() {
        m_decoder.flush();
        m_converter.reset();
        m_ahead.clear();
        m_expected.reset();
        m_lastStray = 0;
        m_isDraining = false;
        m_isDrained = false;
        m_hasPacket = false;
        av_packet_unref(m_packet.get());
    }

    /// Goes to where decoding has to start for the sound at the target.
    void move(const std::stop_token& stop) {
        const double audible = std::max(m_target, m_track.facts.startTime.seconds());
        m_skipBefore = audible - kPrerollSeconds;
        const bool wantsStart = m_skipBefore <= 0;
        if ((wantsStart && m_isAtStart) || !seekContainer(audible, stop))
            moveToStart(stop);
    }

    void moveToStart(const std::stop_token& stop) {
        m_hasPacket = false;
        av_packet_unref(m_packet.get());
        if (!m_isAtStart)
            m_demuxer.reopen(stop);
        m_isAtStart = true;
        m_startedAtStart = true;
    }

    bool seekContainer(double audible, const std::stop_token& stop) {
        const ffmpeg::SourceInfo& info = m_asset->info();
        if (info.format->flags & AVFMT_NOTIMESTAMPS)
            return false;
        const ffmpeg::SourceTrack& guide = guideTrack();
        std::optional<double> earlier;
        for (const double back : kStepsBackSeconds) {
            const Time time = Time::fromSeconds(m_skipBefore - back, AV_TIME_BASE);
            m_isAtStart = false;
            m_startedAtStart = false;
            const bool isBeforeStart = back > 0 && time.value <= 0;
            if (isBeforeStart || !m_demuxer.seek(guide.facts.streamIndex,
                                                 ffmpeg::streamTimestamp(info, guide, time), stop))
                return false;
            const auto landing = readLanding(stop);
            if (landing && (*landing <= audible || landing == earlier))
                return true;
            earlier = landing;
        }
        return earlier.has_value();
    }

    [[nodiscard]] const ffmpeg::SourceTrack& guideTrack() const {
        const ffmpeg::SourceInfo& info = m_asset->info();
        if (isIndexedByPictures(*info.format)) {
            for (const ffmpeg::SourceTrack& track : info.tracks) {
                if (track.facts.type == MediaType::video)
                    return track;
            }
        }
        return m_track;
    }

    /// The time of the first packet after a seek, which stays to be decoded.
    std::optional<double> readLanding(const std::stop_token& stop) {
        av_packet_unref(m_packet.get());
        m_hasPacket = readPacket(stop);
        return m_hasPacket ? timeOf(m_packet->pts) : std::nullopt;
    }

    [[nodiscard]] std::optional<double> timeOf(std::int64_t timestamp) const {
        if (timestamp == AV_NOPTS_VALUE)
            return std::nullopt;
        return ffmpeg::assetTime(m_asset->info(), m_track, timestamp).seconds();
    }

    [[nodiscard]] std::optional<double> timeOf(const AVFrame& frame) const {
        return timeOf(frame.pts != AV_NOPTS_VALUE ? frame.pts : frame.best_effort_timestamp);
    }

    // ---- Frames

    /// The next packet of our track into m_packet.
    bool readPacket(const std::stop_token& stop) {
        m_isAtStart = false;
        while (m_demuxer.read(*m_packet, stop) == ffmpeg::Demuxer::Status::packet) {
            if (m_packet->stream_index == m_track.facts.streamIndex)
                return true;
            av_packet_unref(m_packet.get());
        }
        return false;
    }

    [[nodiscard]] bool isBeforePreroll() const {
        const auto time = timeOf(m_packet->pts);
        return time && *time + static_cast<double>(m_packet->duration) * av_q2d(m_track.timeBase) <
                           m_skipBefore;
    }

    void feed(const std::stop_token& stop) {
        while (m_hasPacket || readPacket(stop)) {
            m_hasPacket = false;
            const bool isNeeded = !isBeforePreroll();
            if (isNeeded)
                m_decoder.send(m_packet.get());
            av_packet_unref(m_packet.get());
            if (isNeeded)
                return;
        }
        m_isDrained = m_isDraining;
        m_isDraining = true;
        if (!m_isDrained)
            m_decoder.send(nullptr);
    }

    void fillAhead(const std::stop_token& stop) {
        while (m_ahead.size() < kFramesAhead && !m_isDrained) {
            if (stop.stop_requested())
                throw Cancelled();
            auto frame = ffmpeg::makeFrame();
            switch (m_decoder.receive(*frame)) {
            case ffmpeg::Decoder::Status::frame:
                if (frame->nb_samples > 0 && frame->sample_rate > 0)
                    m_ahead.push_back(std::move(frame));
                break;
            case ffmpeg::Decoder::Status::needsInput:
                feed(stop);
                break;
            case ffmpeg::Decoder::Status::endOfStream:
                m_isDrained = true;
                break;
            }
        }
    }

    // ---- Chunks

    /// Where the timestamps of the frames ahead, taken together, put the first of them; none if
    /// none of them has one.
    [[nodiscard]] std::optional<double> agreedTime() const {
        std::optional<double> first;
        double sum = 0;
        int count = 0;
        double counted = 0;
        for (const auto& frame : m_ahead) {
            if (const auto time = timeOf(*frame)) {
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
        const bool isFirstOfFile = m_startedAtStart && !m_expected;
        return isFirstOfFile && std::abs(mean - *first) < av_q2d(m_track.timeBase) ? *first : mean;
    }

    /// Whether the next frame lies elsewhere than right behind the last one, and most of the
    /// frames after it say so too.
    bool isDisplaced() {
        const auto time = timeOf(*m_ahead.front());
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
        for (const auto& frame : m_ahead) {
            if (const auto other = timeOf(*frame)) {
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
            if (!m_expected && !m_startedAtStart) {
                restartWithoutTimestamps(stop);
                return;
            }
            beginRun(m_expected.value_or(m_track.facts.startTime.seconds()));
        } else if (isDisplaced()) {
            finishRun();
            beginRun(agreedTime().value_or(*m_expected));
        }
        const auto frame = std::move(m_ahead.front());
        m_ahead.pop_front();
        if (m_converter.isRunning() && !m_converter.accepts(*frame)) {
            finishRun();
            beginRun(*m_expected);
        }
        append(m_converter.convert(*frame));
        *m_expected += secondsOf(*frame);
    }

    /// Nothing says where a seek has led to: only counting from the start can.
    void restartWithoutTimestamps(const std::stop_token& stop) {
        forgetBuffered();
        moveToStart(stop);
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

    std::shared_ptr<const Asset> m_asset;
    const ffmpeg::SourceTrack& m_track;
    ffmpeg::Demuxer m_demuxer;
    ffmpeg::Decoder m_decoder;
    ffmpeg::SampleConverter m_converter;

    /// The packet that a seek landed on waits in m_packet while m_hasPacket.
    ffmpeg::PacketPtr m_packet = ffmpeg::makePacket();
    bool m_hasPacket = false;
    /// Nothing has been read since the file was opened.
    bool m_isAtStart = true;
    /// What has been read since the last seek began at the file's start.
    bool m_startedAtStart = true;
    bool m_isDraining = false;
    bool m_isDrained = false;
    std::deque<ffmpeg::FramePtr> m_ahead;

    /// Asset seconds: the target of the last seek, and where packets begin to be of use.
    double m_target = 0;
    double m_skipBefore = -kPrerollSeconds;
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
