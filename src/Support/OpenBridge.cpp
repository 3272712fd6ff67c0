#include "Support/OpenBridge.h"

#include "Support/MainThread.h"

#include <algorithm>
#include <utility>

namespace brisklet {

namespace {

/// Calls a copy: opening a window assigns OpenBridge::requestWindow.
// NOLINTNEXTLINE(performance-unnecessary-value-param): it has to be one.
void callRequest(std::function<void()> request) {
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
    verifyMainThread();
    auto& states = windows();
    std::erase_if(states, [](const auto& record) { return record.expired(); });
    const bool isKnown =
        std::ranges::any_of(states, [&](const auto& record) { return record.lock() == state; });
    if (!isKnown)
        states.push_back(state);
}

void OpenBridge::unregisterState(const OpenTarget& state) {
    verifyMainThread();
    std::erase_if(windows(), [&](const auto& record) { return record.lock().get() == &state; });
}

std::optional<QUrl> OpenBridge::takePending() {
    verifyMainThread();
    auto& files = pending();
    if (files.empty())
        return std::nullopt;
    QUrl first = std::move(files.front());
    files.erase(files.begin());
    if (!files.empty())
        callRequest(requestWindow);
    return first;
}

void OpenBridge::open(const QUrl& url) {
    verifyMainThread();
    for (const auto& record : windows()) {
        // A window that is still loading is not empty: a second file would replace the first.
        if (const auto state = record.lock(); state && state->isEmpty()) {
            state->load(url);
            return;
        }
    }
    pending().push_back(url);
    callRequest(requestWindow);
}

} // namespace brisklet
