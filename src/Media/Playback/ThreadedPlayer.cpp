#include "Media/Playback/ThreadedPlayer.h"

#include "Media/Playback/PlayerPrivate.h"

namespace media {

namespace {

using playback::SteadyTime;

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

} // namespace

ThreadedPlayer::ThreadedPlayer(Executor executor, std::unique_ptr<playback::AudioOutput> output)
    : d(std::make_shared<Private>(std::move(executor), std::move(output))) {
    d->start();
}

ThreadedPlayer::~ThreadedPlayer() {
    d->assertOwner();
    d->close();
}

void ThreadedPlayer::replaceCurrentItem(std::shared_ptr<const PlayerItem> item) {
    d->assertOwner();
    d->replaceCurrentItem(std::move(item));
}

std::shared_ptr<const PlayerItem> ThreadedPlayer::currentItem() const {
    d->assertOwner();
    return d->state()->item();
}

void ThreadedPlayer::play() {
    d->assertOwner();
    d->setPlaying(true);
}

void ThreadedPlayer::pause() {
    d->assertOwner();
    d->setPlaying(false);
}

float ThreadedPlayer::rate() const {
    d->assertOwner();
    return d->state()->isPlaying() ? 1.0F : 0.0F;
}

void ThreadedPlayer::seek(Time time, Time toleranceBefore, Time toleranceAfter,
                          std::function<void(bool finished)> done) {
    d->assertOwner();
    d->seek(time, toleranceBefore, toleranceAfter, std::move(done));
}

void ThreadedPlayer::step(int count) {
    d->assertOwner();
    d->step(count);
}

Time ThreadedPlayer::currentTime() const {
    d->assertOwner();
    return d->state()->time(now());
}

void ThreadedPlayer::setMuted(bool muted) {
    d->assertOwner();
    d->isMuted = muted;
    d->sound().setMuted(muted);
}

bool ThreadedPlayer::isMuted() const {
    d->assertOwner();
    return d->isMuted;
}

void ThreadedPlayer::setVideoSink(VideoSink* sink) {
    d->assertOwner();
    d->setVideoSink(sink);
}

void ThreadedPlayer::setPreviewSize(int pixelWidth, int pixelHeight) {
    d->assertOwner();
    d->state()->setPreviewSize({std::max(pixelWidth, 0), std::max(pixelHeight, 0)});
}

void ThreadedPlayer::setPointsOfInterest(const std::vector<Time>& times) {
    d->assertOwner();
    d->state()->setPointsOfInterest(times);
}

Player::Token ThreadedPlayer::addPeriodicTimeObserver(Time interval,
                                                      std::function<void(Time)> handler) {
    d->assertOwner();
    return d->addObserver(interval, std::move(handler));
}

void ThreadedPlayer::removeTimeObserver(Token token) {
    d->assertOwner();
    d->removeObserver(token);
}

void ThreadedPlayer::setRateHandler(std::function<void(float rate)> handler) {
    d->assertOwner();
    d->rateHandler = std::move(handler);
}

void ThreadedPlayer::setEndHandler(
    std::function<void(const std::shared_ptr<const PlayerItem>&)> handler) {
    d->assertOwner();
    d->endHandler = std::move(handler);
}

Player::Statistics ThreadedPlayer::statistics() const {
    d->assertOwner();
    return d->state()->statistics();
}

} // namespace media
