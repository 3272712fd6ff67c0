#pragma once

#include "Media/Player.h"

#include <memory>
#include <vector>

namespace media {

namespace playback {
class AudioOutput;
}

/// The player that the engine makes. Checks that it is called on its owner's thread, and forwards
/// to its Private, which outlives it where a thread is blocked by a disk that does not answer.
class ThreadedPlayer final : public Player {
public:
    /// Sounds on `output`, which is used and released on a thread of the player's own.
    ThreadedPlayer(Executor executor, std::unique_ptr<playback::AudioOutput> output);
    ~ThreadedPlayer() override;

    void replaceCurrentItem(std::shared_ptr<const PlayerItem> item) override;
    [[nodiscard]] std::shared_ptr<const PlayerItem> currentItem() const override;
    void play() override;
    void pause() override;
    [[nodiscard]] float rate() const override;
    void seek(Time time, Time toleranceBefore, Time toleranceAfter,
              std::function<void(bool finished)> done = {}) override;
    void step(int count) override;
    [[nodiscard]] Time currentTime() const override;
    void setMuted(bool muted) override;
    [[nodiscard]] bool isMuted() const override;
    void setVideoSink(VideoSink* sink) override;
    void setPreviewSize(int pixelWidth, int pixelHeight) override;
    void setPointsOfInterest(const std::vector<Time>& times) override;
    Token addPeriodicTimeObserver(Time interval, std::function<void(Time)> handler) override;
    void removeTimeObserver(Token token) override;
    void setRateHandler(std::function<void(float rate)> handler) override;
    void
    setEndHandler(std::function<void(const std::shared_ptr<const PlayerItem>&)> handler) override;
    [[nodiscard]] Statistics statistics() const override;

private:
    class Private;
    std::shared_ptr<Private> d;
};

} // namespace media
