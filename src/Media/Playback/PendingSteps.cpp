#include "Media/Playback/PendingSteps.h"

#include <utility>

namespace media::playback {

void PendingSteps::push(int count) {
    m_counts.push_back(count);
    m_backwardCount = count < 0 ? m_backwardCount + 1 : 0;
}

void PendingSteps::clear() {
    m_backwardCount = 0;
    m_counts.clear();
    m_walk.reset();
}

std::optional<Ticks> PendingSteps::next(const Walk& walk) {
    if (walk.framesLeft > 0)
        return walk.range.end == Ticks::forever() ? std::nullopt : std::optional(walk.range.end);
    return walk.range.begin == Ticks::beginning() ? std::nullopt
                                                  : std::optional(walk.range.begin - Ticks(1));
}

Heading PendingSteps::heading(const Walk& walk) const {
    if (walk.framesLeft > 0)
        return Heading::anywhere;
    return m_backwardCount > kFew ? Heading::straightBack : Heading::backward;
}

std::optional<CachedFrame> PendingSteps::advance(FrameCache& cache, ImageSize size,
                                                 const RenderedFrame& shown) {
    while (!m_counts.empty()) {
        if (!m_walk)
            m_walk = Walk{m_counts.front(), shown.range, shown.time, std::nullopt};
        Walk& walk = *m_walk;
        while (walk.framesLeft != 0 && shown.image) {
            const std::optional<Ticks> ticks = next(walk);
            if (!ticks)
                break;
            cache.setFocus(*ticks, heading(walk));
            auto frame = cache.find(*ticks, size);
            if (!frame)
                return std::nullopt;
            walk.range = frame->range;
            // The same frame may be known for more ticks by now: where the one after it does not
            // decode, or where those before it had been left out.
            if (std::exchange(walk.time, frame->time) == frame->time)
                continue;
            walk.frame = std::move(frame);
            walk.framesLeft += walk.framesLeft > 0 ? -1 : 1;
        }
        if (walk.frame)
            return walk.frame;
        arrive();
    }
    return std::nullopt;
}

std::optional<Ticks> PendingSteps::nextTicks() const {
    return m_walk && m_walk->framesLeft != 0 ? next(*m_walk) : std::nullopt;
}

void PendingSteps::arrive() {
    m_counts.pop_front();
    m_walk.reset();
}

void PendingSteps::giveUpRest() {
    if (m_walk)
        m_walk->framesLeft = 0;
}

} // namespace media::playback
