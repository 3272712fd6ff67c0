#pragma once

#include "Media/Time.h"

#include <span>
#include <stop_token>

namespace media::playback {

/// Decodes the sound of one asset in the format that every output takes (AudioOutput.h). Use from
/// one thread.
class SoundReader {
public:
    SoundReader() = default;
    SoundReader(const SoundReader&) = delete;
    SoundReader& operator=(const SoundReader&) = delete;
    virtual ~SoundReader() = default;

    /// Moves to `time` on the asset's time line (numeric). Throws Error; Cancelled on a stop
    /// request.
    virtual void seek(Time time, const std::stop_token& stop) = 0;

    /// The interleaved frames that follow, some tens of milliseconds of them, valid until the next
    /// call; none after the end. Sample n after seek(t) is what sounds at t + n / the rate. Throws
    /// Error; Cancelled.
    [[nodiscard]] virtual std::span<const float> next(const std::stop_token& stop) = 0;
};

} // namespace media::playback
