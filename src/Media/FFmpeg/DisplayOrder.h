#pragma once

#include "Media/FFmpeg/CodedPictures.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace media::ffmpeg {

/// Puts the pictures of a bitstream, which come in the order in which they are decoded, into the
/// order in which they are shown, one after the other. Counts in halves of a frame. Use from one
/// thread at a time.
class DisplayOrder {
public:
    struct Place {
        std::int64_t decodedAt = 0;
        /// None of a picture that is not shown.
        std::optional<std::int64_t> shownAt;
        int halves = 0;
    };

    /// The next picture; its number, from 0.
    std::size_t add(const CodedPicture& picture);
    /// The picture added last is shown for so much longer.
    void extendLast(int halves);

    /// The places of all pictures, by their numbers. To be called once, after the last.
    [[nodiscard]] std::vector<Place> finish();

    /// After finish(): by how much some picture is decoded later than it is shown, and when the one
    /// shown last ends.
    [[nodiscard]] std::int64_t delay() const { return m_delay; }

    [[nodiscard]] std::int64_t end() const { return m_shown; }

private:
    void addNumbered(std::size_t picture, std::int64_t number, bool beginsSequence);
    void addUnnumbered(std::size_t picture, bool isBetween);
    [[nodiscard]] bool isOutOfReach(std::int64_t number);
    void endSequence();
    void show(std::size_t picture);

    std::vector<Place> m_places;
    std::int64_t m_shown = 0;
    std::int64_t m_delay = 0;
    /// The numbered pictures of the sequence, and the largest of their numbers.
    std::vector<std::pair<std::int64_t, std::size_t>> m_sequence;
    std::multiset<std::int64_t> m_largest;
    /// The unnumbered picture that is shown when the next one that is not between others comes.
    std::optional<std::size_t> m_waiting;
};

} // namespace media::ffmpeg
