#include "Media/Pictures/StillQueue.h"

#include "Media/Error.h"

#include <algorithm>
#include <utility>

namespace media {

StillQueue::StillQueue(const std::vector<Time>& times, int parts,
                       const std::function<void()>& onStill)
    : m_times(times),
      m_parts(static_cast<std::size_t>(std::max(parts, 1))),
      m_onStill(onStill),
      m_isTaken(times.size()),
      m_stills(times.size()) {}

void StillQueue::work(ImageGenerator& generator, int part, const std::stop_token& stop) {
    auto index = next(m_times.size() * static_cast<std::size_t>(part) / m_parts);
    while (index && !stop.stop_requested()) {
        Still still;
        try {
            still.picture = generator.image(m_times[*index], stop);
        } catch (...) {
            still.failure = std::current_exception();
        }
        finish(*index, std::move(still));
        index = next(*index + 1);
    }
}

std::vector<Still> StillQueue::take(const std::stop_token& stop) {
    if (stop.stop_requested())
        throw Cancelled();
    return std::move(m_stills);
}

std::optional<std::size_t> StillQueue::next(std::size_t from) {
    const std::lock_guard lock(m_mutex);
    const auto start = m_isTaken.begin() + static_cast<std::ptrdiff_t>(from);
    auto free = std::find(start, m_isTaken.end(), false);
    if (free == m_isTaken.end())
        free = std::find(m_isTaken.begin(), start, false);
    if (free == m_isTaken.end() || *free)
        return std::nullopt;
    *free = true;
    return static_cast<std::size_t>(free - m_isTaken.begin());
}

void StillQueue::finish(std::size_t index, Still still) {
    const std::lock_guard lock(m_mutex);
    m_stills[index] = std::move(still);
    if (m_onStill)
        m_onStill();
}

} // namespace media
