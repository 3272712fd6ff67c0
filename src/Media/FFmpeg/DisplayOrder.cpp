#include "Media/FFmpeg/DisplayOrder.h"

#include <algorithm>

namespace media::ffmpeg {

namespace {

/// No decoder keeps more pictures than that, so none is shown after more that are decoded after it.
constexpr std::size_t kMostKept = 16;

} // namespace

std::size_t DisplayOrder::add(const CodedPicture& picture) {
    const std::size_t index = m_places.size();
    const std::int64_t decodedAt =
        m_places.empty() ? 0 : m_places.back().decodedAt + m_places.back().halves;
    m_places.push_back({decodedAt, std::nullopt, picture.halves});
    if (!picture.isShown)
        return index;
    if (picture.number)
        addNumbered(index, *picture.number, picture.beginsSequence);
    else
        addUnnumbered(index, picture.isBetween);
    return index;
}

void DisplayOrder::extendLast(int halves) {
    m_places.back().halves += halves;
}

std::vector<DisplayOrder::Place> DisplayOrder::finish() {
    endSequence();
    if (m_waiting)
        show(*m_waiting);
    return std::move(m_places);
}

void DisplayOrder::addNumbered(std::size_t picture, std::int64_t number, bool beginsSequence) {
    if (beginsSequence || isOutOfReach(number))
        endSequence();
    m_sequence.emplace_back(number, picture);
    m_largest.insert(number);
    if (m_largest.size() > kMostKept + 1)
        m_largest.erase(m_largest.begin());
}

/// Numbers may begin anew without any other sign.
bool DisplayOrder::isOutOfReach(std::int64_t number) {
    return m_largest.size() > kMostKept && number < *m_largest.begin();
}

void DisplayOrder::endSequence() {
    std::ranges::stable_sort(m_sequence, {}, &std::pair<std::int64_t, std::size_t>::first);
    for (const auto& [number, picture] : m_sequence)
        show(picture);
    m_sequence.clear();
    m_largest.clear();
}

void DisplayOrder::addUnnumbered(std::size_t picture, bool isBetween) {
    if (isBetween) {
        show(picture);
        return;
    }
    if (m_waiting)
        show(*m_waiting);
    m_waiting = picture;
}

void DisplayOrder::show(std::size_t picture) {
    Place& place = m_places[picture];
    place.shownAt = m_shown;
    m_delay = std::max(m_delay, place.decodedAt - m_shown);
    m_shown += place.halves;
}

} // namespace media::ffmpeg
