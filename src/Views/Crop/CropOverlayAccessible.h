#pragma once

namespace brisklet {

/// Makes assistive technology read the size and position of the crop. Once for the program; further
/// calls do nothing. Main thread.
void installCropOverlayAccessibility();

} // namespace brisklet
