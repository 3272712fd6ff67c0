#pragma once

#include "Media/Pictures/ImageSize.h"
#include "Media/Pictures/PreviewPicture.h"
#include "Media/Threading/Guarded.h"
#include "Media/Ticks.h"
#include "Media/Time.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <vector>

namespace media::playback {

/// A frame at preview size.
struct CachedFrame {
    /// The ticks for which it is known to be "the frame at t". The first frame of a track stands
    /// for everything before it (Ticks::beginning()), the last one for all after it
    /// (Ticks::forever()).
    TickRange range;
    /// Its presentation time.
    Time time;
    PreviewPicturePtr picture;

    [[nodiscard]] ImageSize size() const {
        return {picture->format().width, picture->format().height};
    }
};

/// Where a playhead is likely to go.
enum class Heading {
    anywhere,
    /// The frames after it are worth less.
    backward,
    /// It goes on back, as with a held key: the frames after it are worth next to nothing.
    straightBack,
};

/// The latest decoded frames of one player, bounded in bytes. Evicts the frame that is farthest
/// from the playhead and the few points of interest; a point of interest counts for less than the
/// playhead, and so does the side of the playhead that a movement backward leaves behind. The
/// frames at the points of interest and at the last places of rest are not evicted, as long as they
/// take no more than a quarter of the bound. Frames of a size that is no longer wanted stay until
/// they are replaced or evicted, since they are better than none. Usable from any thread.
class FrameCache {
public:
    static constexpr std::size_t kDefaultBytes = std::size_t{192} << 20;
    /// What the caches of all players together may hold; each takes an equal part at most.
    static constexpr std::size_t kBytesOfAll = std::size_t{800} << 20;
    static constexpr std::size_t kPlacesOfRest = 5;

    explicit FrameCache(std::size_t capacityBytes = kDefaultBytes);
    FrameCache(const FrameCache&) = delete;
    FrameCache& operator=(const FrameCache&) = delete;
    ~FrameCache();

    /// Forgets everything, and takes frames of `source` only from now on (any address that stands
    /// for one).
    void begin(const void* source);
    /// Keeps a frame, in place of those that it overlaps; nothing if `source` has been replaced.
    /// The frame itself stays even if it alone is beyond the bound.
    void insert(const void* source, CachedFrame frame);

    /// The playhead, and where it is likely to go.
    void setFocus(Ticks ticks, Heading heading = Heading::anywhere);
    void setPointsOfInterest(std::vector<Ticks> ticks);
    [[nodiscard]] std::vector<Ticks> pointsOfInterest() const;

    /// The playhead has rested at this tick. The last kPlacesOfRest of them count.
    void addPlaceOfRest(Ticks ticks);

    /// The frame at `ticks` in this size.
    [[nodiscard]] std::optional<CachedFrame> find(Ticks ticks, ImageSize size) const;
    /// The frame that lies nearest to `ticks`, in whatever size.
    [[nodiscard]] std::optional<CachedFrame> nearest(Ticks ticks) const;

    /// From `ticks` on frames of this size follow one another without a gap up to the tick
    /// returned, at which there is none (forever(): up to the end). `ticks` itself where there is
    /// none at all.
    [[nodiscard]] Ticks coveredUntil(Ticks ticks, ImageSize size) const;
    /// The same backward: the earliest tick from which frames follow one another up to `ticks`
    /// (beginning(): the beginning); `ticks` + 1 where there is none at `ticks`.
    [[nodiscard]] Ticks coveredFrom(Ticks ticks, ImageSize size) const;

    /// A frame of this size at `ticks` would take the place of none that is worth more, nor of
    /// those that lead up to it without a gap.
    [[nodiscard]] bool hasRoomAt(Ticks ticks, ImageSize size) const;

    [[nodiscard]] std::size_t byteCount() const;
    /// The bound in force now, which depends on how many players there are.
    [[nodiscard]] std::size_t capacityBytes() const;
    /// How many frames of this size it holds.
    [[nodiscard]] double capacityFrames(ImageSize size) const;

private:
    using Frames = std::map<Ticks, CachedFrame>;

    struct State {
        const void* source = nullptr;
        Frames frames;
        std::size_t bytes = 0;
        Ticks focus;
        Heading heading = Heading::anywhere;
        std::vector<Ticks> points;
        /// The latest first.
        std::vector<Ticks> placesOfRest;

        [[nodiscard]] double distanceTo(Ticks ticks) const;
        [[nodiscard]] double distanceTo(const CachedFrame& frame) const;
        [[nodiscard]] const CachedFrame* at(Ticks ticks) const;
        [[nodiscard]] const CachedFrame* at(Ticks ticks, ImageSize size) const;
        [[nodiscard]] Ticks coveredFrom(Ticks ticks, ImageSize size) const;
        /// Where the frames begin that are not to go.
        [[nodiscard]] std::vector<Ticks> lasting(std::size_t mostBytes) const;
        /// The frame that is worth least, of all but those that begin at `lasting`; end() for none.
        [[nodiscard]] Frames::const_iterator farthest(const std::vector<Ticks>& lasting) const;
        Frames::iterator remove(Frames::const_iterator frame);
    };

    const std::size_t m_capacityBytes;
    mutable Guarded<State> m_state;
};

} // namespace media::playback
