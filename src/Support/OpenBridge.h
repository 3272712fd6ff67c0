#pragma once

#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace brisklet {

/// What the bridge can put a file into: the model of one editing window. Main thread.
class OpenTarget {
public:
    OpenTarget() = default;
    OpenTarget(const OpenTarget&) = delete;
    OpenTarget& operator=(const OpenTarget&) = delete;
    virtual ~OpenTarget() = default;

    /// Whether the window has no video and is not loading one.
    [[nodiscard]] virtual bool isEmpty() const = 0;
    /// Starts loading and returns; from then on isEmpty() is false, unless the load fails.
    virtual void load(const QUrl& url) = 0;
};

/// Routes files from outside (command line, later starts of the program, the desktop) to windows:
/// into the oldest empty one, otherwise into a new one. Each file ends up in exactly one window, in
/// the order of the calls. A namespace of static members; main thread.
class OpenBridge final {
public:
    OpenBridge() = delete;

    /// Opens one editor window, which registers its model and takes a pending file. Set when the
    /// application opens a window, or can open one; while it is none, files wait.
    static std::function<void()> requestWindow;

    /// Records a window's model, once. The bridge keeps no model alive.
    static void registerState(const std::shared_ptr<OpenTarget>& state);

    /// Forgets the model of a window that closes: it may live on for a moment, and no file must go
    /// into it any more. Harmless for one that is not recorded.
    static void unregisterState(const OpenTarget& state);

    /// Takes the file that has waited longest, for a window that has just appeared. Requests
    /// another window if more files wait.
    static std::optional<QUrl> takePending();

    /// Loads one file into an empty window; without one, queues it and requests a window.
    static void open(const QUrl& url);

private:
    static std::vector<QUrl>& pending();
    static std::vector<std::weak_ptr<OpenTarget>>& windows();
};

} // namespace brisklet
