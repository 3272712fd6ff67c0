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

    /// Whether the window shows no video and none is on its way into it.
    [[nodiscard]] virtual bool isEmpty() const = 0;
    /// Starts loading and returns; isEmpty() is false from here until the load has failed.
    virtual void load(const QUrl& url) = 0;
};

/// Routes files that come from outside (command line, other starts of the program, the desktop) to
/// windows: into the oldest empty one, else into a new one. Each file ends in exactly one window,
/// in the order of the calls. A namespace of static members; main thread.
class OpenBridge final {
public:
    OpenBridge() = delete;

    /// Opens one editor window, which registers its model and takes a pending file. Set by each
    /// window that appears and by the application; none means that files wait.
    static std::function<void()> requestWindow;

    /// Records a window's model, once. The bridge keeps no model alive.
    static void registerState(const std::shared_ptr<OpenTarget>& state);

    /// Forgets the model of a window that closes: it may live on for a moment, and no file must go
    /// into it any more. Harmless for one that is not recorded.
    static void unregisterState(const OpenTarget& state);

    /// The file that has waited longest, for a window that has just appeared; asks for another
    /// window where more files wait.
    static std::optional<QUrl> takePending();

    /// Puts one file into a window, now or when there is one.
    static void open(const QUrl& url);

private:
    static std::vector<QUrl>& pending();
    static std::vector<std::weak_ptr<OpenTarget>>& windows();
};

} // namespace brisklet
