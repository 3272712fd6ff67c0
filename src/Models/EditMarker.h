#pragma once

#include <array>

namespace brisklet {

/// The times of an edit that the user moves along the timeline.
enum class EditMarker { trimStart, playhead, trimEnd };

/// All of them, in the order of the enumerators and of the tab key.
inline constexpr std::array kEditMarkers{EditMarker::trimStart, EditMarker::playhead,
                                         EditMarker::trimEnd};

} // namespace brisklet
