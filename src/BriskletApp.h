#pragma once

#include <QUrl>

#include <optional>
#include <vector>

namespace brisklet {

class EditorWindow;

/// Puts the program together: windows, each with a model of its own and panels to ask for files.
/// Needs a QApplication. Main thread.
class BriskletApp final {
public:
    /// One window for each file, or one empty window without files.
    static void openWindows(const std::vector<QUrl>& files);

    /// Shows a window, which then loads `file`, if any. It deletes itself when it is closed.
    static EditorWindow* openWindow(const std::optional<QUrl>& file = std::nullopt);
};

} // namespace brisklet
