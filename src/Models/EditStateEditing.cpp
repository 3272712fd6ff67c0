#include "Models/EditState.h"

#include <cmath>

namespace brisklet {

namespace {

/// The runs of EditHistory: keys on one end of the range, on one handle of the crop, on the crop.
constexpr int runOf(EditMarker marker) {
    return 1 + static_cast<int>(marker);
}

constexpr int kCropRun = 1 + static_cast<int>(kEditMarkers.size());

constexpr int runOf(CropHandle handle) {
    return kCropRun + 1 + static_cast<int>(handle);
}

} // namespace

void EditState::setTrimStartToPlayhead() {
    m_trimStart = trimRange().clampedStart(m_currentTime);
    record(EditStep::trimStart);
}

void EditState::setTrimEndToPlayhead() {
    m_trimEnd = trimRange().clampedEnd(m_currentTime);
    record(EditStep::trimEnd);
}

double EditState::time(EditMarker marker) const {
    switch (marker) {
    case EditMarker::trimStart:
        return m_trimStart;
    case EditMarker::playhead:
        return m_currentTime;
    case EditMarker::trimEnd:
        return m_trimEnd;
    }
    return 0;
}

double EditState::earliest(EditMarker marker) const {
    return marker == EditMarker::trimEnd ? trimRange().earliestEnd() : 0;
}

double EditState::latest(EditMarker marker) const {
    return marker == EditMarker::trimStart ? trimRange().latestStart() : m_duration;
}

void EditState::moveMarker(EditMarker marker, double to) {
    if (std::isnan(to))
        return;
    switch (marker) {
    case EditMarker::trimStart:
        m_trimStart = trimRange().clampedStart(to);
        record(EditStep::trimStart, runOf(marker));
        break;
    case EditMarker::playhead:
        m_history.endRun();
        break;
    case EditMarker::trimEnd:
        m_trimEnd = trimRange().clampedEnd(to);
        record(EditStep::trimEnd, runOf(marker));
        break;
    }
    if (marker != EditMarker::playhead)
        m_playerController.player()->pause();
    seek(marker == EditMarker::playhead ? to : time(marker));
    Q_EMIT markerMoved(marker);
}

void EditState::stepMarker(EditMarker marker, int frames) {
    if (marker == EditMarker::playhead)
        stepFrames(frames);
    else
        moveMarker(marker, time(marker) + frames * m_video.frameDuration);
}

void EditState::goToRangeEnd(EditMarker end) {
    const auto ticks = [](double seconds) {
        return media::Time::fromSeconds(seconds, media::kComparisonTimescale).ticks();
    };
    const bool isThere = ticks(m_currentTime) == ticks(time(end));
    const double endOfFile = end == EditMarker::trimStart ? 0.0 : m_duration.value();
    moveMarker(EditMarker::playhead, isThere ? endOfFile : time(end));
}

EditState::DragOrigin EditState::dragOrigin(EditMarker marker) {
    return {.marker = marker,
            .video = m_video.asset,
            .trimStart = m_trimStart,
            .trimEnd = m_trimEnd,
            .currentTime = m_currentTime,
            // isPlaying() follows the player a moment later.
            .isPlaying = m_playerController.player()->rate() != 0.0F};
}

void EditState::takeBackDrag(const DragOrigin& origin) {
    if (m_video.asset != origin.video)
        return;
    if (origin.marker != EditMarker::playhead) {
        m_trimStart = origin.trimStart;
        m_trimEnd = origin.trimEnd;
        record(origin.marker == EditMarker::trimStart ? EditStep::trimStart : EditStep::trimEnd);
    }
    seek(origin.currentTime);
    if (origin.isPlaying && !isVideoLost())
        m_playerController.player()->play();
}

void EditState::toggleCrop() {
    setCropRect(cropRect() ? std::nullopt : std::optional(crop::kInitial));
}

void EditState::moveCrop(const media::Rect& start, media::Point by) {
    m_cropRect = crop::moved(start, by);
    record(EditStep::crop, kCropRun);
}

void EditState::resizeCrop(const media::Rect& start, CropHandle handle, media::Point by) {
    m_cropRect = crop::resized(start, handle, by);
    record(EditStep::crop, runOf(handle));
}

void EditState::rotateLeft() {
    m_rotation = (m_rotation + 270) % 360;
    if (const auto& before = cropRect())
        m_cropRect = crop::turnedLeft(*before);
    record(EditStep::rotate);
}

} // namespace brisklet
