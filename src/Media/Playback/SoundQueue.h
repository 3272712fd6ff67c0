#pragma once

#include "Media/Playback/AudioOutput.h"

#include <array>
#include <atomic>
#include <optional>
#include <span>
#include <vector>

namespace media::playback {

/// Carries decoded sound from one thread, the producer, to the device's, without a lock.
///
/// What is queued is a *run*: samples that follow one another without a gap on the item's time
/// line. begin() silences the output and starts a new, still silent run; play() makes it audible.
/// From its first frame on a run keeps to the device's count of frames: where samples are not there
/// in time there is silence, and what comes too late is left out. So one pair of numbers, the
/// device's frame and the run's first sample, ties the device's position to the item's time for as
/// long as the run lasts.
class SoundQueue final : public AudioSource {
public:
    static constexpr std::size_t kCapacityFrames = std::size_t{1} << 16;

    SoundQueue();

    // The producer.

    /// Drops what is queued and not heard yet, and starts an empty run.
    void begin();
    /// Adds as much of `samples` (interleaved frames) as there is room for; returns the number of
    /// frames taken.
    std::size_t write(std::span<const float> samples);
    /// Frames queued and not yet pulled.
    [[nodiscard]] std::size_t queuedFrames() const;
    /// Makes the run audible, its first frame at the device's frame `at` (which may have passed:
    /// then the run's beginning is left out), or as soon as possible where none is given. Once for
    /// each run.
    void play(std::optional<std::int64_t> at = std::nullopt);
    /// The device's frame at which the first frame of the playing run stands; none before the
    /// device has taken notice of play().
    [[nodiscard]] std::optional<std::int64_t> firstDeviceFrame() const;
    /// Begins the device's count anew, and an empty run. Only while no device pulls.
    void reset();

    // Any thread.

    /// Silences the output without stopping it, from the next pull on.
    void setMuted(bool muted) { m_isMuted.store(muted, std::memory_order_relaxed); }

    // The device's thread.

    void pull(float* samples, std::size_t frameCount) noexcept override;

private:
    using Frame = std::array<float, kOutputChannels>;

    /// What the producer wants of the consumer.
    struct Order {
        std::uint32_t number = 0;
        bool isAudible = false;
        std::int64_t firstFrame = 0;
        std::int64_t at = 0;
    };

    static constexpr std::int64_t kAsSoonAsPossible = -1;

    void give(bool isAudible, std::int64_t firstFrame, std::int64_t at);
    [[nodiscard]] std::optional<Order> readOrder() const noexcept;
    void follow(const Order& order) noexcept;
    void breakOff() noexcept;
    void sound(Frame& frame, const Frame* queued, bool isMuted) noexcept;

    std::vector<Frame> m_frames;
    /// Indices of queue frames since creation. The producer advances m_written (release: the
    /// samples before it are there), the consumer m_read (release: their places are free).
    std::atomic<std::int64_t> m_written = 0;
    std::atomic<std::int64_t> m_read = 0;
    std::atomic<bool> m_isMuted = false;

    /// The order, guarded by a sequence number that is odd while it is being written, so that the
    /// consumer never waits: it looks again at the next pull.
    std::atomic<std::uint32_t> m_sequence = 0;
    std::atomic<bool> m_isAudible = false;
    std::atomic<std::int64_t> m_firstFrame = 0;
    std::atomic<std::int64_t> m_at = kAsSoonAsPossible;

    /// Written by the consumer: the answer to an order; the number is stored last (release).
    std::atomic<std::int64_t> m_firstDeviceFrame = 0;
    std::atomic<std::uint32_t> m_answered = 0;

    // The device's thread only (and reset(), while there is none).
    Order m_order;
    std::int64_t m_deviceFrame = 0;
    std::int64_t m_start = 0;
    /// Against clicks: the volume rises over some frames wherever sound sets in, and the last
    /// value dies away where it breaks off.
    float m_gain = 0;
    Frame m_last{};
    Frame m_tail{};
    bool m_wasQueued = false;
};

} // namespace media::playback
