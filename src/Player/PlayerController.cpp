#include "Player/PlayerController.h"

#include "Support/MainThread.h"

#include <QtGlobal>

namespace brisklet {

namespace {

constexpr media::Time kTickInterval{1, 30};

/// Calls a copy: a callback may replace itself, or end the object that holds it.
template<typename Callback, typename... Arguments>
void call(Callback callback, Arguments... arguments) {
    verifyMainThread();
    if (callback)
        callback(arguments...);
}

} // namespace

PlayerController::~PlayerController() {
    if (!m_player)
        return;
    m_player->removeTimeObserver(m_timeObserver);
    m_player->setRateHandler({});
    m_player->setEndHandler({});
    // A view may keep the player a little longer; no sound must come from it.
    m_player->pause();
}

const std::shared_ptr<media::Player>& PlayerController::player() {
    if (!m_player)
        makePlayer();
    return m_player;
}

void PlayerController::makePlayer() {
    m_player = media::Player::make(postToMainThread);
    m_timeObserver =
        m_player->addPeriodicTimeObserver(kTickInterval, [this](media::Time time) { tick(time); });
    m_player->setRateHandler([this](float rate) { rateChanged(rate); });
    m_player->setEndHandler(
        [this](const std::shared_ptr<const media::PlayerItem>& item) { itemEnded(item); });
}

void PlayerController::step(int count) {
    const std::shared_ptr<media::Player>& stepped = player();
    stepped->pause();
    stepped->step(count);
    tick(stepped->currentTime());
}

void PlayerController::tick(media::Time time) const {
    call(onTick, time.seconds());
}

void PlayerController::rateChanged(float rate) const {
    call(onPlayingChange, rate != 0.0F);
}

void PlayerController::itemEnded(const std::shared_ptr<const media::PlayerItem>& item) const {
    // The end of an item that has been replaced meanwhile is not the end of the current one.
    if (item == m_player->currentItem())
        call(onPlayedToEnd);
}

} // namespace brisklet
