#pragma once

#include "Media/Asset.h"

#include <cstdint>
#include <optional>

namespace brisklet {

/// The numbers of a video's frames, counted from 0, by the rule that says which frame is the one at
/// a time. They are known where all frames have the same distance and the file proves it: otherwise
/// only reading the whole file would tell, and there are none. A value type.
class FrameNumbers final {
public:
    /// None are known.
    FrameNumbers() = default;
    explicit FrameNumbers(const media::AssetTrack& track);

    [[nodiscard]] bool areKnown() const { return m_count > 0; }

    /// How many frames there are; 0 where that is not known.
    [[nodiscard]] std::int64_t count() const { return m_count; }

    /// The number of the frame that is shown at a time in seconds; none for NaN.
    [[nodiscard]] std::optional<std::int64_t> at(double seconds) const;
    /// The time in seconds at which a frame begins; none if there is no such frame.
    [[nodiscard]] std::optional<double> timeOf(std::int64_t number) const;

private:
    [[nodiscard]] media::Ticks ticksOf(std::int64_t number) const;

    media::Time m_first;
    media::Time m_distance;
    std::int64_t m_count = 0;
};

} // namespace brisklet
