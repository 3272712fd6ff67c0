#pragma once

#include "Media/Playback/DecoderShare.h"
#include "Media/Playback/Foresight.h"
#include "Media/Playback/FrameSource.h"
#include "Media/Playback/Transport.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace media::playback {

/// Decodes what a player shows into its cache, frame by frame, and looks after each what is most
/// urgent: the frame of a seek or step, then the one on show in a new size, then the frames ahead
/// of the clock while playing; with nothing of that to do, what will likely be asked for next.
/// Lives on one thread of its own, which owns the source.
class VideoPlayback {
public:
    explicit VideoPlayback(Playback& playback)
        : m_playback(playback),
          m_share([&playback] { playback.transport.lock()->videoWake.raise(); }) {}

    void work(const std::stop_token& stop);

private:
    using Access = Guarded<Transport>::Access;

    /// One piece of work, with what it needs of the transport.
    struct Job {
        enum class Kind {
            open,
            seek,
            near,
            step,
            redraw,
            queue,
            ahead,
            prepare,
            keepPassed,
            foresee,
            letDecoderGo
        };
        Kind kind = Kind::open;
        std::uint64_t generation = 0;
        std::shared_ptr<const PlayerItem> item;
        PreviewSize previewSize;
        ImageSize imageSize;
        /// The frame to decode; of near the window.
        SeekRequest target;
        int direction = 0;
        /// The clock's time in ticks.
        std::int64_t now = 0;
        /// queue: the frame.
        std::optional<CachedFrame> frame;
        /// foresee: around what, and the item's end.
        std::int64_t focus = 0;
        std::int64_t lastTicks = 0;
        std::stop_token stop;
    };

    std::optional<Job> takeJob(Transport& transport);
    bool chooseSeek(Transport& transport, Job& job) const;
    bool chooseStep(Transport& transport, Job& job) const;
    bool chooseRedraw(Transport& transport, Job& job) const;
    bool choosePlaying(const Transport& transport, Job& job) const;
    bool chooseIdle(const Transport& transport, Job& job);
    [[nodiscard]] bool isForesightDue(const Transport& transport, SteadyTime now) const;
    [[nodiscard]] SteadyTime nextLook(const Transport& transport) const;

    void perform(const Job& job);
    void open(const Job& job);
    void giveUp(const Job& job);
    void seek(const Job& job);
    void seekNear(const Job& job);
    void fail(const Job& job);
    void redraw(const Job& job);
    void queue(const Job& job);
    void decodeAhead(const Job& job);
    void prepare(const Job& job);
    void foresee(const Job& job);

    [[nodiscard]] std::int64_t margin(const Job& job) const;
    void showProgress(const Job& job);
    [[nodiscard]] bool isTooLate(std::int64_t end, const Job& job) const;
    void pushUpcoming(const Job& job, const CachedFrame& frame, bool isFromCache);
    void passOver(const Job& job, std::int64_t end);

    Playback& m_playback;
    std::shared_ptr<const PlayerItem> m_item;
    DecoderShare m_share;
    /// null where there is no picture, or none that can be decoded.
    std::unique_ptr<FrameSource> m_source;
    double m_frameTicks = 0;
    /// When the last frame was decoded ahead and kept.
    SteadyTime m_lastKept;
    /// Where frames were decoded ahead last; where playing stops one is owed.
    std::uint64_t m_rollingGeneration = 0;
    /// A frame that cannot be decoded in the size wanted now.
    std::optional<std::int64_t> m_notRedrawn;

    /// A state of things for which frames are foreseen.
    struct Prospect {
        std::uint64_t generation = 0;
        std::uint64_t interests = 0;
        std::int64_t focus = 0;
        ImageSize size;
        friend bool operator==(const Prospect&, const Prospect&) = default;
    };

    static Prospect prospectOf(const Transport& transport);

    std::optional<FillRange> m_fill;
    Prospect m_prospect;
    /// How many frames more may be decoded for it, so that it comes to an end in any case.
    int m_framesToForesee = 0;
};

} // namespace media::playback
