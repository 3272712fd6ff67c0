#include "Media/Player.h"

#include "Media/Playback/PlayerPrivate.h"

namespace media {

namespace {

using playback::SteadyTime;

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

} // namespace

Player::Player(Executor executor, std::unique_ptr<playback::AudioOutput> output)
    : d(std::make_shared<Private>(std::move(executor), std::move(output))) {
    d->start();
}

Player::~Player() {
    d->assertOwner();
    d->close();
}

void Player::replaceCurrentItem(std::shared_ptr<const PlayerItem> item) {
    d->assertOwner();
    d->replaceCurrentItem(std::move(item));
}

std::shared_ptr<const PlayerItem> Player::currentItem() const {
    d->assertOwner();
    return d->state()->item();
}

void Player::play() {
    d->assertOwner();
    d->setPlaying(true);
}

void Player::pause() {
    d->assertOwner();
    d->setPlaying(false);
}

float Player::rate() const {
    d->assertOwner();
    return d->state()->isPlaying() ? 1.0F : 0.0F;
}

void Player::seek(Time time, Time toleranceBefore, Time toleranceAfter,
                  std::function<void(bool finished)> done) {
    d->assertOwner();
    d->seek(time, toleranceBefore, toleranceAfter, std::move(done));
}

void Player::step(int count) {
    d->assertOwner();
    d->step(count);
}

Time Player::currentTime() const {
    d->assertOwner();
    return d->state()->time(now());
}

void Player::setMuted(bool muted) {
    d->assertOwner();
    d->isMuted = muted;
    d->sound().setMuted(muted);
}

bool Player::isMuted() const {
    d->assertOwner();
    return d->isMuted;
}

void Player::setVideoSink(VideoSink* sink) {
    d->assertOwner();
    d->setVideoSink(sink);
}

void Player::setPreviewSize(int pixelWidth, int pixelHeight) {
    d->assertOwner();
    d->state()->setPreviewSize({std::max(pixelWidth, 0), std::max(pixelHeight, 0)});
}

void Player::setPointsOfInterest(const std::vector<Time>& times) {
    d->assertOwner();
    d->state()->setPointsOfInterest(times);
}

Player::Token Player::addPeriodicTimeObserver(Time interval, std::function<void(Time)> handler) {
    d->assertOwner();
    return d->addObserver(interval, std::move(handler));
}

void Player::removeTimeObserver(Token token) {
    d->assertOwner();
    d->removeObserver(token);
}

void Player::setRateHandler(std::function<void(float rate)> handler) {
    d->assertOwner();
    d->rateHandler = std::move(handler);
}

void Player::setEndHandler(std::function<void(const std::shared_ptr<const PlayerItem>&)> handler) {
    d->assertOwner();
    d->endHandler = std::move(handler);
}

Player::Statistics Player::statistics() const {
    d->assertOwner();
    return d->state()->statistics();
}

} // namespace media
