#include "Models/EditState.h"

#include "Support/MainThread.h"
#include "Support/PlaybackSettings.h"

#include <algorithm>
#include <chrono>

namespace brisklet {

namespace {

/// Within this distance of the trim end, playing starts over from the trim start: it would stop
/// again at once. Seconds.
constexpr double kRestartMargin = 0.05;
/// The filmstrip takes processor time from the picture: it waits until that has been handed to the
/// view and painted, which is at the next refresh of the screen.
constexpr std::chrono::milliseconds kTimeToPaint(30);
constexpr media::Time kExactly{0, media::kComparisonTimescale};

} // namespace

EditState::EditState() {
    // The controller calls nothing once it is destroyed, which is before the rest of the model.
    // Each callback keeps the model alive while it runs, since an observer of what it changes may
    // drop the last reference.
    m_playerController.onTick = [this](double time) {
        if (const auto self = weak_from_this().lock())
            self->tick(time);
    };
    m_playerController.onPlayingChange = [this](bool playing) {
        if (const auto self = weak_from_this().lock())
            self->m_isPlaying = playing;
    };
    m_playerController.onPlayedToEnd = [this] {
        if (const auto self = weak_from_this().lock())
            self->playedToEnd();
    };
    m_stripDelay.setSingleShot(true);
    connect(&m_stripDelay, &QTimer::timeout, this, &EditState::makeFilmstrip);
    connect(this, &EditState::trimStartChanged, this, &EditState::announceTrim);
    connect(this, &EditState::trimEndChanged, this, &EditState::announceTrim);
}

EditState::~EditState() {
    verifyMainThread();
    m_loads.request_stop();
    m_strip.request_stop();
}

media::Size EditState::rotatedDisplaySize() const {
    const media::Size size = m_displaySize;
    return m_rotation % 180 == 0 ? size : media::Size{size.height, size.width};
}

Edit EditState::edit() const {
    return {.trimStart = m_trimStart,
            .trimEnd = m_trimEnd,
            .cropRect = cropRect(),
            .rotation = m_rotation,
            .isMuted = m_isMuted};
}

std::optional<KeptEdit> EditState::unfinishedEdit() const {
    const Edit now = edit();
    if (!videoURL() || now == Edit{.trimEnd = m_duration} || now == m_exportedEdit)
        return std::nullopt;
    return editToKeep();
}

KeptEdit EditState::editToKeep() const {
    return {.id = m_editId,
            .file = m_video.asset->path(),
            .identity = m_video.identity,
            .duration = m_duration,
            .edit = edit(),
            .playhead = m_currentTime};
}

void EditState::record(EditStep step, int run) {
    verifyMainThread();
    if (!videoURL())
        return;
    m_history.record(step, edit(), run);
    Q_EMIT editChanged();
}

void EditState::restore(const Edit& edit) {
    m_trimStart = edit.trimStart;
    m_trimEnd = edit.trimEnd;
    m_rotation = edit.rotation;
    m_cropRect = edit.cropRect;
    applyMuted(edit.isMuted);
    Q_EMIT editChanged();
}

Edit EditState::fitted(const Edit& edit) const {
    Edit result = edit;
    result.trimEnd = std::clamp(edit.trimEnd, 0.0, duration());
    if (!(result.trimStart < result.trimEnd))
        result.trimStart = TrimRange{m_duration, 0, result.trimEnd}.clampedStart(edit.trimStart);
    return result;
}

void EditState::setTrimStart(double seconds) {
    m_trimStart = seconds;
    record(EditStep::trimStart);
}

void EditState::setTrimEnd(double seconds) {
    m_trimEnd = seconds;
    record(EditStep::trimEnd);
}

void EditState::setCropRect(const std::optional<media::Rect>& cropRect) {
    m_cropRect = cropRect;
    record(cropRect ? EditStep::crop : EditStep::removeCrop);
}

void EditState::setMuted(bool muted) {
    applyMuted(muted);
    record(muted ? EditStep::mute : EditStep::unmute);
}

void EditState::applyMuted(bool muted) {
    m_isMuted = muted;
    m_playerController.player()->setMuted(muted);
}

/// The player prepares frames around the trim ends: dragging them and looping seek there.
void EditState::announceTrim() {
    const auto time = [](double seconds) {
        return media::Time::fromSeconds(seconds, media::kComparisonTimescale);
    };
    m_playerController.player()->setPointsOfInterest({time(m_trimStart), time(m_trimEnd)});
}

void EditState::tick(double time) {
    // The first after a load comes with the picture.
    if (m_stripDelay.isActive() && m_stripDelay.intervalAsDuration() > kTimeToPaint)
        m_stripDelay.start(kTimeToPaint);
    m_currentTime = time;
    if (!m_isPlaying || !(time >= m_trimEnd))
        return;
    if (PlaybackSettings::shared().isLoopEnabled()) {
        seekPlayer(m_trimStart);
        return;
    }
    m_playerController.player()->pause();
    seekPlayer(m_trimEnd);
}

void EditState::playedToEnd() {
    if (!PlaybackSettings::shared().isLoopEnabled())
        return;
    seekPlayer(m_trimStart);
    m_playerController.player()->play();
}

void EditState::togglePlayback() {
    verifyMainThread();
    m_history.endRun();
    if (offerIfLost())
        return;
    media::Player& player = *m_playerController.player();
    if (m_isPlaying) {
        player.pause();
        return;
    }
    if (m_currentTime >= m_trimEnd - kRestartMargin || m_currentTime < m_trimStart)
        seekPlayer(m_trimStart);
    player.play();
}

void EditState::seek(double to) {
    // NaN fails both comparisons and passes through.
    double time = to <= 0 ? 0 : to;
    if (m_duration < time)
        time = m_duration;
    m_currentTime = time;
    seekPlayer(time);
}

void EditState::seekPlayer(double to) {
    verifyMainThread();
    m_playerController.player()->seek(media::Time::fromSeconds(to, media::kComparisonTimescale),
                                      kExactly, kExactly);
}

void EditState::stepFrames(int count) {
    m_history.endRun();
    if (!videoURL() || offerIfLost())
        return;
    m_playerController.step(count);
    Q_EMIT markerMoved(EditMarker::playhead);
}

} // namespace brisklet
