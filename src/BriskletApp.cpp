#include "BriskletApp.h"

#include "Models/EditState.h"
#include "Platform/FileDialogPanels.h"
#include "Views/EditorWindow.h"

#include <memory>

namespace brisklet {

void BriskletApp::openWindows(const std::vector<QUrl>& files) {
    for (const QUrl& file : files)
        openWindow(file);
    if (files.empty())
        openWindow();
}

EditorWindow* BriskletApp::openWindow(const std::optional<QUrl>& file) {
    const auto state = std::make_shared<EditState>();
    auto* window = new EditorWindow(state);
    state->setFilePanels(std::make_shared<FileDialogPanels>(window));
    if (file)
        window->loadWhenShown(*file);
    window->show();
    return window;
}

} // namespace brisklet
