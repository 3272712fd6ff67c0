#include "Views/Timeline/TimelineEdits.h"

#include "Media/Player.h"
#include "Models/EditState.h"
#include "Support/TimeFormatting.h"

#include <algorithm>
#include <cmath>

namespace brisklet::timeline {

namespace {

/// The longest time that is shown, seconds.
constexpr double kLongestShown = 1e9;
constexpr double kUsualFrameDuration = 1.0 / 30;

} // namespace

TimelineGeometry geometryOf(const EditState& state, double width, double stripHeight,
                            double handleWidth) {
    return {.duration = state.duration(),
            .trimStart = state.trimStart(),
            .trimEnd = state.trimEnd(),
            .currentTime = state.currentTime(),
            .width = width,
            .stripHeight = stripHeight,
            .handleWidth = handleWidth};
}

void moveEdge(EditState& state, HandleEdge edge, double time) {
    const TimelineGeometry geometry = geometryOf(state, 0, 0, 0);
    double moved = 0;
    if (edge == HandleEdge::trailing) {
        moved = geometry.clampedEnd(time);
        if (moved != state.trimEnd())
            state.setTrimEnd(moved);
    } else {
        moved = geometry.clampedStart(time);
        if (moved != state.trimStart())
            state.setTrimStart(moved);
    }
    state.playerController().player()->pause();
    state.seek(moved);
}

DragStart dragStart(EditState& state) {
    const media::Player& player = *state.playerController().player();
    return {.item = player.currentItem(),
            .trimStart = state.trimStart(),
            .trimEnd = state.trimEnd(),
            .currentTime = state.currentTime(),
            .isPlaying = player.rate() != 0.0F};
}

void takeBack(EditState& state, const DragStart& start, Dragged dragged) {
    media::Player& player = *state.playerController().player();
    if (player.currentItem() != start.item)
        return;
    if (dragged == Dragged::edge) {
        state.setTrimStart(start.trimStart);
        state.setTrimEnd(start.trimEnd);
    }
    state.seek(start.currentTime);
    if (start.isPlaying)
        player.play();
}

double frameDuration(EditState& state) {
    const auto item = state.playerController().player()->currentItem();
    if (!item)
        return kUsualFrameDuration;
    const auto tracks = item->asset()->tracks(media::MediaType::video);
    if (tracks.empty())
        return kUsualFrameDuration;
    const auto rate = static_cast<double>(tracks.front().nominalFrameRate);
    return rate > 0 && std::isfinite(rate) ? 1 / rate : kUsualFrameDuration;
}

QString shownTime(double seconds) {
    return formatTime(std::min(seconds, kLongestShown));
}

} // namespace brisklet::timeline
