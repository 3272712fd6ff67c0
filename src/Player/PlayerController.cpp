#include "Player/PlayerController.h"

#include "Support/MainThread.h"

#include <QtGlobal>

namespace brisklet {

namespace {

constexpr media::Time kTickInterval{1, 30};

/// Calls a copy: a callback may replace itself, or end the object that holds it.
template<typename Callback, typename... Arguments>
void call(Callback callback, Arguments... arguments) {
    Q_ASSERT(isMainThread());
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
    // A view may hold the player a little longer; it must not be heard meanwhile.
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

void PlayerController::tick(media::Time time) const {
    call(onTick, time.seconds());
}

void PlayerController::rateChanged(float rate) const {
    call(onPlayingChange, rate != 0.0F);
}

void PlayerController::itemEnded(const std::shared_ptr<const media::PlayerItem>& item) const {
    // An item that was replaced meanwhile is no end of what is shown now.
    if (item == m_player->currentItem())
        call(onPlayedToEnd);
}

} // namespace brisklet
