#pragma once

#include "Media/Ticks.h"

#include <algorithm>
#include <cstddef>
#include <deque>

namespace media::ffmpeg {

/// When the pictures of the packets that a decoder was given last are shown: with that it can be
/// told that none of a time is to be expected any more where nothing decodes.
class LatestPackets final {
public:
    void clear() { m_ticks.clear(); }

    void note(Ticks ticks) {
        m_ticks.push_back(ticks);
        if (m_ticks.size() > kMostInside)
            m_ticks.pop_front();
    }

    [[nodiscard]] Ticks latest() const { return m_ticks.back(); }

    /// Whether no picture that is still to come out of the decoder can be one up to `until`.
    [[nodiscard]] bool areAllAfter(Ticks until) const {
        return m_ticks.size() == kMostInside &&
               std::ranges::all_of(m_ticks, [until](Ticks ticks) { return ticks > until; });
    }

private:
    /// More packets than any decoder holds: two fields each of the pictures that its threads are at
    /// and of those that wait for their turn to be shown, 16 of either.
    static constexpr std::size_t kMostInside = 96;
    std::deque<Ticks> m_ticks;
};

} // namespace media::ffmpeg
