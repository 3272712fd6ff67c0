#pragma once

#include "Media/Player.h"

#include <memory>
#include <utility>

namespace testsupport {

/// A real player that plays losable assets too.
class LosablePlayer final : public media::Player {
public:
    explicit LosablePlayer(std::shared_ptr<media::Player> real) : m_real(std::move(real)) {}

    void replaceCurrentItem(std::shared_ptr<const media::PlayerItem> item) override;

    [[nodiscard]] std::shared_ptr<const media::PlayerItem> currentItem() const override {
        return m_real->currentItem();
    }

    void play() override { m_real->play(); }

    void pause() override { m_real->pause(); }

    [[nodiscard]] float rate() const override { return m_real->rate(); }

    void seek(media::Time time, media::Time toleranceBefore, media::Time toleranceAfter,
              std::function<void(bool finished)> done) override {
        m_real->seek(time, toleranceBefore, toleranceAfter, std::move(done));
    }

    void step(int count) override { m_real->step(count); }

    [[nodiscard]] media::Time currentTime() const override { return m_real->currentTime(); }

    void setMuted(bool muted) override { m_real->setMuted(muted); }

    [[nodiscard]] bool isMuted() const override { return m_real->isMuted(); }

    void setVideoSink(media::VideoSink* sink) override { m_real->setVideoSink(sink); }

    void setPreviewSize(int pixelWidth, int pixelHeight) override {
        m_real->setPreviewSize(pixelWidth, pixelHeight);
    }

    void setPointsOfInterest(const std::vector<media::Time>& times) override {
        m_real->setPointsOfInterest(times);
    }

    Token addPeriodicTimeObserver(media::Time interval,
                                  std::function<void(media::Time)> handler) override {
        return m_real->addPeriodicTimeObserver(interval, std::move(handler));
    }

    void removeTimeObserver(Token token) override { m_real->removeTimeObserver(token); }

    void setRateHandler(std::function<void(float rate)> handler) override {
        m_real->setRateHandler(std::move(handler));
    }

    void setEndHandler(
        std::function<void(const std::shared_ptr<const media::PlayerItem>&)> handler) override {
        m_real->setEndHandler(std::move(handler));
    }

    [[nodiscard]] Statistics statistics() const override { return m_real->statistics(); }

private:
    std::shared_ptr<media::Player> m_real;
};

} // namespace testsupport
