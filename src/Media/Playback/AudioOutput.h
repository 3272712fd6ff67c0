#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace media::playback {

/// What every output takes: 32-bit float samples, left and right interleaved, full scale ±1.
inline constexpr int kOutputChannels = 2;
/// Hz.
inline constexpr int kOutputSampleRate = 48000;

/// Where an output takes its samples from. Called on the device's own thread, which must not be
/// kept waiting: no locks, no allocation.
class AudioSource {
public:
    virtual ~AudioSource() = default;
    /// Fills `samples` with `frameCount` frames.
    virtual void pull(float* samples, std::size_t frameCount) noexcept = 0;
};

/// A sound device. Used on one thread, which it may block for a while.
class AudioOutput {
public:
    virtual ~AudioOutput() = default;

    /// Opens the device and lets it pull from `source`, which must live until stop() has
    /// returned. False where there is no device or it fails; may be tried again.
    virtual bool start(AudioSource& source) = 0;
    /// Closes the device. Afterwards the source is not called any more. Harmless when not started.
    virtual void stop() noexcept = 0;

    /// How many frames since start() have been heard; none where that is not known just now.
    [[nodiscard]] virtual std::optional<std::uint64_t> heardFrames() = 0;
    /// Whether the device has failed or gone since start().
    [[nodiscard]] virtual bool hasFailed() const = 0;
};

} // namespace media::playback
