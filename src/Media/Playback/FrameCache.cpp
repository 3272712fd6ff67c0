#include "Media/Playback/FrameCache.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace media::playback {

namespace {

/// A frame this many times nearer to a point of interest than another to the playhead is worth as
/// much.
constexpr double kPointWeight = 4;

/// Only a number; nothing else depends on its order.
std::atomic<std::size_t> cacheCount = 0;

double between(std::int64_t a, std::int64_t b) {
    return std::abs(static_cast<double>(a) - static_cast<double>(b));
}

} // namespace

FrameCache::FrameCache(std::size_t capacityBytes) : m_capacityBytes(capacityBytes) {
    cacheCount.fetch_add(1, std::memory_order_relaxed);
}

FrameCache::~FrameCache() {
    cacheCount.fetch_sub(1, std::memory_order_relaxed);
}

std::size_t FrameCache::capacityBytes() const {
    return std::min(m_capacityBytes, kBytesOfAll / cacheCount.load(std::memory_order_relaxed));
}

double FrameCache::State::distance(std::int64_t ticks) const {
    double least = between(ticks, focus);
    for (const std::int64_t point : points)
        least = std::min(least, kPointWeight * between(ticks, point));
    return least;
}

const CachedFrame* FrameCache::State::at(std::int64_t ticks) const {
    const auto after = frames.upper_bound(ticks);
    if (after == frames.begin())
        return nullptr;
    const CachedFrame& frame = std::prev(after)->second;
    return frame.holds(ticks) ? &frame : nullptr;
}

const CachedFrame* FrameCache::State::at(std::int64_t ticks, ImageSize size) const {
    const CachedFrame* frame = at(ticks);
    return frame && frame->size() == size ? frame : nullptr;
}

FrameCache::Frames::iterator FrameCache::State::remove(Frames::iterator frame) {
    bytes -= frame->second.picture->byteCount();
    return frames.erase(frame);
}

void FrameCache::begin(const void* source) {
    Frames forgotten;
    const auto state = m_state.lock();
    std::swap(state->frames, forgotten);
    state->bytes = 0;
    state->focus = 0;
    state->points.clear();
    state->source = source;
}

void FrameCache::insert(const void* source, CachedFrame frame) {
    if (frame.begin >= frame.end)
        return;
    // Freed when the lock is given up.
    std::vector<PreviewPicturePtr> gone;
    const auto state = m_state.lock();
    if (state->source != source)
        return;
    const auto remove = [&](Frames::iterator each) {
        gone.push_back(each->second.picture);
        return state->remove(each);
    };
    auto each = state->frames.upper_bound(frame.begin);
    if (each != state->frames.begin() && std::prev(each)->second.end > frame.begin)
        --each;
    while (each != state->frames.end() && each->first < frame.end)
        each = remove(each);
    const std::int64_t begin = frame.begin;
    state->bytes += frame.picture->byteCount();
    state->frames.emplace(begin, std::move(frame));
    const std::size_t capacity = capacityBytes();
    while (state->bytes > capacity && state->frames.size() > 1) {
        auto farthest = state->frames.end();
        double distance = -1;
        for (auto it = state->frames.begin(); it != state->frames.end(); ++it) {
            // The first frame's beginning is endless; its end is as near.
            const double its =
                state->distance(it->first == CachedFrame::kBeginning ? it->second.end : it->first);
            if (it->first != begin && its > distance) {
                distance = its;
                farthest = it;
            }
        }
        remove(farthest);
    }
}

void FrameCache::setFocus(std::int64_t ticks) {
    m_state.lock()->focus = ticks;
}

void FrameCache::setPointsOfInterest(std::vector<std::int64_t> ticks) {
    m_state.lock()->points = std::move(ticks);
}

std::vector<std::int64_t> FrameCache::pointsOfInterest() const {
    return m_state.lock()->points;
}

std::optional<CachedFrame> FrameCache::find(std::int64_t ticks, ImageSize size) const {
    const auto state = m_state.lock();
    const CachedFrame* frame = state->at(ticks, size);
    return frame ? std::optional(*frame) : std::nullopt;
}

std::optional<CachedFrame> FrameCache::nearest(std::int64_t ticks) const {
    const auto state = m_state.lock();
    const auto after = state->frames.upper_bound(ticks);
    if (after == state->frames.begin())
        return after == state->frames.end() ? std::nullopt : std::optional(after->second);
    const CachedFrame& before = std::prev(after)->second;
    if (after == state->frames.end() || before.holds(ticks))
        return before;
    return between(after->first, ticks) < between(before.end, ticks) ? after->second : before;
}

std::int64_t FrameCache::coveredUntil(std::int64_t ticks, ImageSize size) const {
    const auto state = m_state.lock();
    while (ticks != CachedFrame::kForever) {
        const CachedFrame* frame = state->at(ticks, size);
        if (!frame)
            break;
        ticks = frame->end;
    }
    return ticks;
}

std::int64_t FrameCache::coveredFrom(std::int64_t ticks, ImageSize size) const {
    const auto state = m_state.lock();
    const CachedFrame* frame = state->at(ticks, size);
    if (!frame)
        return ticks + 1;
    while (frame->begin != CachedFrame::kBeginning) {
        const CachedFrame* before = state->at(frame->begin - 1, size);
        if (!before)
            break;
        frame = before;
    }
    return frame->begin;
}

std::size_t FrameCache::byteCount() const {
    return m_state.lock()->bytes;
}

} // namespace media::playback
