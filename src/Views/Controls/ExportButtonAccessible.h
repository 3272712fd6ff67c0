#pragma once

namespace brisklet {

/// Makes assistive technology hear that an ExportButton has a menu, and lets it press the button or
/// open the menu. Once for the program; further calls do nothing. Main thread.
void installExportButtonAccessibility();

} // namespace brisklet
