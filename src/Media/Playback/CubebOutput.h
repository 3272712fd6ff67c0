#pragma once

#include "Media/Playback/AudioOutput.h"

#include <memory>

namespace media::playback {

/// The system's default sound device (PulseAudio, PipeWire through it, ALSA …). Connects on the
/// first start(), and again after a failure.
class CubebOutput final : public AudioOutput {
public:
    CubebOutput();
    CubebOutput(const CubebOutput&) = delete;
    CubebOutput& operator=(const CubebOutput&) = delete;
    ~CubebOutput() override;

    bool start(AudioSource& source) override;
    void stop() noexcept override;
    [[nodiscard]] std::optional<std::uint64_t> heardFrames() override;
    [[nodiscard]] bool hasFailed() const override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace media::playback
