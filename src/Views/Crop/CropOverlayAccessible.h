#pragma once

namespace brisklet {

/// Has assistive technology read the size and place of the crop. Once for the program; further
/// calls do nothing. Main thread.
void installCropOverlayAccessibility();

} // namespace brisklet
