#pragma once

#include "Media/Playback/Transport.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

namespace media::playback {

/// What a player's threads report to its owner.
struct PlaybackEvent {
    enum class Kind {
        /// An observer's boundary was reached.
        tick,
        /// A seek, step or new item has arrived at its frame.
        jump,
        /// The item played to its end.
        end,
    };
    Kind kind = Kind::tick;
    std::uint64_t generation = 0;
    /// end: its number.
    std::uint64_t endCount = 0;
};

/// Hands each frame to the sink: after a jump as soon as the cache has it, while playing when the
/// clock comes to it. Reports the boundaries of the time observers and the end of the item. Lives
/// on one thread of its own: the one that calls the sink.
class Presenter {
public:
    using Report = std::function<void(const PlaybackEvent&)>;

    /// `report` is called on the presenter's thread, with no lock held.
    Presenter(Playback& playback, Report report);

    void work(const std::stop_token& stop);

private:
    using Access = Guarded<Transport>::Access;

    /// What one look at the transport asks for.
    struct Round {
        std::optional<TimedImage> picture;
        std::vector<PlaybackEvent> events;

        [[nodiscard]] bool isEmpty() const { return !picture && events.empty(); }
    };

    /// A frame of the cache that is to be shown at once.
    struct Find {
        enum class Purpose { seek, step, redraw, substitute };
        Purpose purpose = Purpose::seek;
        std::uint64_t generation = 0;
        CachedFrame frame;
    };

    [[nodiscard]] std::optional<Find> find(Transport& transport, SteadyTime now) const;
    [[nodiscard]] std::optional<CachedFrame> findSought(Transport& transport) const;
    [[nodiscard]] std::optional<CachedFrame> findSubstitute(const Transport& transport) const;
    [[nodiscard]] std::optional<CachedFrame> findStep(Transport& transport) const;
    void prepare(Access& access, const Find& find);
    static void arrive(Transport& transport, const Find& find);

    static Round look(Transport& transport, SteadyTime now);
    static void takeFrame(Transport& transport, SteadyTime now, Round& round);
    static void jump(Transport& transport, SteadyTime now, Round& round);
    static void takeDueFrames(Transport& transport, SteadyTime now, Round& round);
    static void tick(Transport& transport, SteadyTime now, Round& round);
    static void finish(Transport& transport, SteadyTime now, Round& round);
    [[nodiscard]] static SteadyTime nextLook(const Transport& transport, SteadyTime now);
    void deliver(Access& access, const Round& round);

    Playback& m_playback;
    Report m_report;
};

} // namespace media::playback
