#pragma once

#include "Media/Playback/Presentation.h"
#include "Media/Playback/SharedPlayback.h"

#include <functional>
#include <stop_token>

namespace media::playback {

/// Hands each frame to the sink: after a jump as soon as the cache has it, while playing when the
/// clock comes to it. Reports the boundaries of the time observers and the end of the item. Lives
/// on one thread of its own: the one that calls the sink.
class PresentingThread {
public:
    using Report = std::function<void(const PlaybackEvent&)>;

    /// `report` is called on this thread, with no lock held.
    PresentingThread(SharedPlayback& shared, Report report);

    void run(const std::stop_token& stop);

private:
    /// Does what `what` says; what to do next.
    Presentation perform(const SteadyTime& until, const std::stop_token& stop);
    Presentation perform(const FrameToShow& frame, const std::stop_token& stop);
    Presentation perform(const Delivery& delivery, const std::stop_token& stop);

    SharedPlayback& m_shared;
    Report m_report;
};

} // namespace media::playback
