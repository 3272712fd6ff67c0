#include "Media/Playback/FrameCache.h"

#include <algorithm>
#include <atomic>

namespace media::playback {

namespace {

/// A frame this many times nearer to a point of interest than another to the playhead is worth as
/// much.
constexpr double kPointWeight = 4;
/// The same of a frame that a playhead has left behind which moves backward, or straight back.
constexpr double kLeftBehindWeight = 4;
constexpr double kLeftForGoodWeight = 16;
/// The part of the bound that frames of single places may take: the rest is for the neighbourhood
/// of the playhead.
constexpr std::size_t kPartOfPlaces = 4;

/// Most sources have chroma for every fourth pixel.
std::size_t usualBytes(ImageSize size) {
    const auto pixels =
        static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    return std::max<std::size_t>(pixels + pixels / 2, 1);
}

/// Only a number; nothing else depends on its order.
std::atomic<std::size_t> cacheCount = 0;

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

double FrameCache::State::distanceTo(Ticks ticks) const {
    double least = distance(ticks, focus);
    if (heading != Heading::anywhere && ticks > focus)
        least *= heading == Heading::backward ? kLeftBehindWeight : kLeftForGoodWeight;
    for (const Ticks point : points)
        least = std::min(least, kPointWeight * distance(ticks, point));
    return least;
}

/// The first frame's beginning is endless; its end is as near.
double FrameCache::State::distanceTo(const CachedFrame& frame) const {
    return distanceTo(frame.range.begin == Ticks::beginning() ? frame.range.end
                                                              : frame.range.begin);
}

const CachedFrame* FrameCache::State::at(Ticks ticks) const {
    const auto after = frames.upper_bound(ticks);
    if (after == frames.begin())
        return nullptr;
    const CachedFrame& frame = std::prev(after)->second;
    return frame.range.holds(ticks) ? &frame : nullptr;
}

const CachedFrame* FrameCache::State::at(Ticks ticks, ImageSize size) const {
    const CachedFrame* frame = at(ticks);
    return frame && frame->size() == size ? frame : nullptr;
}

Ticks FrameCache::State::coveredFrom(Ticks ticks, ImageSize size) const {
    const CachedFrame* frame = at(ticks, size);
    if (!frame)
        return ticks + Ticks(1);
    while (frame->range.begin != Ticks::beginning()) {
        const CachedFrame* before = at(frame->range.begin - Ticks(1), size);
        if (!before)
            break;
        frame = before;
    }
    return frame->range.begin;
}

std::vector<Ticks> FrameCache::State::lasting(std::size_t mostBytes) const {
    std::vector<Ticks> begins;
    std::size_t sum = 0;
    for (const auto& places : {points, placesOfRest}) {
        for (const Ticks place : places) {
            const CachedFrame* frame = at(place);
            if (!frame || std::ranges::find(begins, frame->range.begin) != begins.end())
                continue;
            sum += frame->picture->byteCount();
            if (sum > mostBytes)
                return begins;
            begins.push_back(frame->range.begin);
        }
    }
    return begins;
}

FrameCache::Frames::const_iterator
FrameCache::State::farthest(const std::vector<Ticks>& lasting) const {
    auto farthest = frames.end();
    double most = -1;
    for (auto it = frames.begin(); it != frames.end(); ++it) {
        const double its = distanceTo(it->second);
        if (its > most && std::ranges::find(lasting, it->first) == lasting.end()) {
            most = its;
            farthest = it;
        }
    }
    return farthest;
}

FrameCache::Frames::iterator FrameCache::State::remove(Frames::const_iterator frame) {
    bytes -= frame->second.picture->byteCount();
    return frames.erase(frame);
}

void FrameCache::begin(const void* source) {
    Frames forgotten;
    const auto state = m_state.lock();
    std::swap(state->frames, forgotten);
    state->bytes = 0;
    state->focus = Ticks();
    state->heading = Heading::anywhere;
    state->points.clear();
    state->placesOfRest.clear();
    state->source = source;
}

void FrameCache::insert(const void* source, CachedFrame frame) {
    if (frame.range.isEmpty())
        return;
    // Freed when the lock is given up.
    std::vector<PreviewPicturePtr> gone;
    const auto state = m_state.lock();
    if (state->source != source)
        return;
    const auto remove = [&](Frames::const_iterator each) {
        gone.push_back(each->second.picture);
        return state->remove(each);
    };
    auto each = state->frames.upper_bound(frame.range.begin);
    if (each != state->frames.begin() && std::prev(each)->second.range.end > frame.range.begin)
        --each;
    while (each != state->frames.end() && each->first < frame.range.end)
        each = remove(each);
    const Ticks begin = frame.range.begin;
    state->bytes += frame.picture->byteCount();
    state->frames.emplace(begin, std::move(frame));
    const std::size_t capacity = capacityBytes();
    std::vector<Ticks> lasting;
    if (state->bytes > capacity)
        lasting = state->lasting(capacity / kPartOfPlaces);
    lasting.push_back(begin);
    while (state->bytes > capacity) {
        const auto farthest = state->farthest(lasting);
        if (farthest == state->frames.end())
            break;
        remove(farthest);
    }
}

void FrameCache::setFocus(Ticks ticks, Heading heading) {
    const auto state = m_state.lock();
    state->focus = ticks;
    state->heading = heading;
}

void FrameCache::setPointsOfInterest(std::vector<Ticks> ticks) {
    m_state.lock()->points = std::move(ticks);
}

void FrameCache::addPlaceOfRest(Ticks ticks) {
    const auto state = m_state.lock();
    std::vector<Ticks>& places = state->placesOfRest;
    const CachedFrame* frame = state->at(ticks);
    std::erase_if(places, [&](Ticks place) {
        return place == ticks || (frame && frame->range.holds(place));
    });
    places.insert(places.begin(), ticks);
    if (places.size() > kPlacesOfRest)
        places.pop_back();
}

std::vector<Ticks> FrameCache::pointsOfInterest() const {
    return m_state.lock()->points;
}

std::optional<CachedFrame> FrameCache::find(Ticks ticks, ImageSize size) const {
    const auto state = m_state.lock();
    const CachedFrame* frame = state->at(ticks, size);
    return frame ? std::optional(*frame) : std::nullopt;
}

std::optional<CachedFrame> FrameCache::nearest(Ticks ticks) const {
    const auto state = m_state.lock();
    const auto after = state->frames.upper_bound(ticks);
    if (after == state->frames.begin())
        return after == state->frames.end() ? std::nullopt : std::optional(after->second);
    const CachedFrame& before = std::prev(after)->second;
    if (after == state->frames.end() || before.range.holds(ticks))
        return before;
    return distance(after->first, ticks) < distance(before.range.end, ticks) ? after->second
                                                                             : before;
}

Ticks FrameCache::coveredUntil(Ticks ticks, ImageSize size) const {
    const auto state = m_state.lock();
    while (ticks != Ticks::forever()) {
        const CachedFrame* frame = state->at(ticks, size);
        if (!frame)
            break;
        ticks = frame->range.end;
    }
    return ticks;
}

Ticks FrameCache::coveredFrom(Ticks ticks, ImageSize size) const {
    return m_state.lock()->coveredFrom(ticks, size);
}

bool FrameCache::hasRoomAt(Ticks ticks, ImageSize size) const {
    const auto state = m_state.lock();
    const std::size_t capacity = capacityBytes();
    if (state->bytes + usualBytes(size) <= capacity)
        return true;
    const auto farthest = state->farthest(state->lasting(capacity / kPartOfPlaces));
    if (farthest == state->frames.end() ||
        state->distanceTo(farthest->second) <= state->distanceTo(ticks))
        return false;
    const Ticks run = state->coveredFrom(ticks - Ticks(1), size);
    return farthest->first < run || farthest->first > ticks;
}

double FrameCache::capacityFrames(ImageSize size) const {
    return static_cast<double>(capacityBytes()) / static_cast<double>(usualBytes(size));
}

std::size_t FrameCache::byteCount() const {
    return m_state.lock()->bytes;
}

} // namespace media::playback
