#pragma once

#include "Media/Playback/AudioOutput.h"
#include "Media/Playback/SharedPlayback.h"
#include "Media/Playback/SoundQueue.h"
#include "Media/Playback/SoundReader.h"
#include "Media/Playback/SoundRun.h"

#include <memory>
#include <optional>
#include <span>
#include <stop_token>

namespace media::playback {

/// Plays the item's audio and drives the player's clock: by the position of the audio device, or by
/// the steady clock where there is no device, where it fails or where the item is silent. Lives on
/// one thread of its own, which owns the reader and the device; no other thread is ever blocked by
/// the device.
///
/// Each run of the clock is prepared (the reader is moved, the queue filled), placed (the
/// queue is made audible, once the picture is there) and then driven (each position heard corrects
/// the clock). Where the clock runs already, because the device came late, a run is placed so
/// that it falls in with the clock.
class SoundThread {
public:
    SoundThread(SharedPlayback& shared, std::unique_ptr<AudioOutput> output);

    void run(const std::stop_token& stop);

    /// Any thread. Applies from the device's next pull on.
    void setMuted(bool muted) { m_queue.setMuted(muted); }

private:
    using Pause = std::chrono::milliseconds;

    bool takeRun();
    void beginRun();
    Pause idle();
    Pause serve();

    void openReader();
    void prepare(Time at);
    void fill();
    bool writeBlock();
    void place();
    void placeIntoRunningClock();
    bool openOutput();
    void closeOutput();
    void giveUpOutput();
    void drive();
    [[nodiscard]] bool hasStalled(std::uint64_t heard, SteadyTime time);
    void runSteadily();

    [[nodiscard]] bool isClockRunning() { return m_shared.lock()->isClockRunning(); }

    [[nodiscard]] Time clockTime();

    SharedPlayback& m_shared;
    SoundQueue m_queue;
    std::unique_ptr<AudioOutput> m_output;
    SoundRun m_run;

    std::shared_ptr<const PlayerItem> m_item;
    /// Null where the item has no sound that can be decoded.
    std::unique_ptr<SoundReader> m_reader;
    /// What is left of the block read last; the reader’s.
    std::span<const float> m_block;
    bool m_isAtEnd = false;

    /// The item's time of the queue's first frame.
    Time m_start;
    bool m_isPlaced = false;
    /// The clock follows the device (or was followed when the run was placed).
    bool m_isDriving = false;
    /// The clock has left what is queued behind.
    bool m_isStale = false;

    bool m_isOpen = false;
    SteadyTime m_closeAt;
    SteadyTime m_retryAt;
    Pause m_retryDelay;
    std::uint64_t m_lastHeard = 0;
    SteadyTime m_lastMoved;
};

} // namespace media::playback
