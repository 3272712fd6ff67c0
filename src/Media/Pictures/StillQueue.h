#pragma once

#include "Media/ImageGenerator.h"

#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <vector>

namespace media {

/// Shares the stills of a strip among several generators. Each goes forwards through a part of its
/// own, since what was decoded for one still is a part of the way to the next, and helps with
/// the other parts at the end. Thread-safe.
class StillQueue final {
public:
    /// `parts` is how many generators there are, 1 or more. `onStill` is called after each still,
    /// by one thread at a time. Both references outlive the queue.
    StillQueue(const std::vector<Time>& times, int parts, const std::function<void()>& onStill);

    /// Makes stills with `generator`, which no other thread uses, beginning with that part, until
    /// none is left or `stop` is requested. Throws nothing.
    void work(ImageGenerator& generator, int part, const std::stop_token& stop);

    /// All stills, once every work() has returned. Throws Cancelled if `stop` is requested.
    [[nodiscard]] std::vector<Still> take(const std::stop_token& stop);

private:
    [[nodiscard]] std::optional<std::size_t> next(std::size_t from);
    void finish(std::size_t index, Still still);

    const std::vector<Time>& m_times;
    const std::size_t m_parts;
    const std::function<void()>& m_onStill;
    std::mutex m_mutex;
    std::vector<bool> m_isTaken;
    std::vector<Still> m_stills;
};

} // namespace media
