#pragma once

#include "Media/Ticks.h"

namespace media::playback {

/// Where a seek goes: to the frame at `earliest` if that is `latest` too, otherwise to one that
/// begins between them, both included.
struct SeekTarget {
    Ticks earliest;
    Ticks latest;

    static constexpr SeekTarget exactly(Ticks ticks) { return {ticks, ticks}; }

    [[nodiscard]] constexpr bool isExact() const { return earliest == latest; }

    [[nodiscard]] constexpr bool accepts(Ticks ticks) const {
        return earliest <= ticks && ticks <= latest;
    }

    [[nodiscard]] constexpr Ticks middle() const {
        return earliest + Ticks((latest.count() - earliest.count()) / 2);
    }

    friend constexpr bool operator==(const SeekTarget&, const SeekTarget&) = default;
};

} // namespace media::playback
