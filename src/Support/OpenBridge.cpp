#include "Support/OpenBridge.h"

#include <algorithm>
#include <utility>

namespace brisklet {

namespace {

/// Calls a copy: the window that appears puts a function of its own in the place of this one.
void askForWindow(std::function<void()> request) {
    if (request)
        request();
}

} // namespace

std::function<void()> OpenBridge::requestWindow;

std::vector<QUrl>& OpenBridge::pending() {
    static std::vector<QUrl> files;
    return files;
}

std::vector<std::weak_ptr<OpenTarget>>& OpenBridge::windows() {
    static std::vector<std::weak_ptr<OpenTarget>> states;
    return states;
}

void OpenBridge::registerState(const std::shared_ptr<OpenTarget>& state) {
    auto& states = windows();
    std::erase_if(states, [](const auto& record) { return record.expired(); });
    const bool isKnown =
        std::ranges::any_of(states, [&](const auto& record) { return record.lock() == state; });
    if (!isKnown)
        states.push_back(state);
}

void OpenBridge::unregisterState(const OpenTarget& state) {
    std::erase_if(windows(), [&](const auto& record) { return record.lock().get() == &state; });
}

std::optional<QUrl> OpenBridge::takePending() {
    auto& files = pending();
    if (files.empty())
        return std::nullopt;
    QUrl first = std::move(files.front());
    files.erase(files.begin());
    if (!files.empty())
        askForWindow(requestWindow);
    return first;
}

void OpenBridge::open(const QUrl& url) {
    for (const auto& record : windows()) {
        // A window that is still loading counts as taken: a second file sent to it would push the
        // first one out.
        if (const auto state = record.lock(); state && state->isEmpty()) {
            state->load(url);
            return;
        }
    }
    pending().push_back(url);
    askForWindow(requestWindow);
}

} // namespace brisklet
