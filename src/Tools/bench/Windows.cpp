#include "BriskletApp.h"
#include "Media/Player.h"
#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Tools/bench/Benchmarks.h"
#include "Tools/bench/Waiting.h"
#include "Views/PlayerLayerView.h"
#include "WindowRootView.h"

#include <QApplication>
#include <QTimer>

#include <sys/resource.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <memory>
#include <optional>

namespace brisklet::bench {

namespace {

constexpr media::Time kTickInterval{1, 30};
/// The most that an idle player decodes ahead.
constexpr double kReadAheadSeconds = 2.1;

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double cpuSeconds(clockid_t clock = CLOCK_PROCESS_CPUTIME_ID) {
    timespec time = {};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// A window of the program, shown and painted.
class ShownWindow {
public:
    explicit ShownWindow(BriskletApp& app) : m_window(app.openWindow()) {
        bool isPainted = false;
        const PaintWatch watch(*m_window, [&] { isPainted = true; });
        waitUntil([&] { return isPainted; });
    }

    [[nodiscard]] EditState& state() const { return *m_window->state(); }

    [[nodiscard]] QWidget& view() const { return *m_window->findChild<PlayerLayerView*>(); }

    /// The player behind the picture, for observers and figures; null before a file is open.
    [[nodiscard]] std::shared_ptr<media::Player> player() const {
        return m_window->findChild<PlayerLayerView*>()->player();
    }

    /// The picture in device pixels; empty before there is one.
    [[nodiscard]] QSize pictureSize() const {
        const auto* view = m_window->findChild<PlayerLayerView*>();
        return (view->videoRect().size() * view->devicePixelRatio()).toSize();
    }

    /// Opens the file and waits for its first frame; returns how long that took, milliseconds.
    double open(const std::filesystem::path& source) {
        auto* view = m_window->findChild<PlayerLayerView*>();
        const auto start = Clock::now();
        std::optional<double> duration;
        const PaintWatch watch(*view, [&] {
            if (!duration && !view->videoRect().isEmpty())
                duration = millisecondsSince(start);
        });
        state().load(urlOf(source));
        waitUntil([&] { return duration || state().errorMessage(); });
        if (!duration)
            throw BenchmarkError(state().errorMessage()->toStdString());
        return *duration;
    }

    /// Waits for the filmstrip, so that making it is not measured too.
    void finishFilmstrip() const {
        waitUntil([&] { return !state().thumbnails().isEmpty(); });
    }

private:
    WindowRootView* m_window;
};

} // namespace

namespace {

/// Measures the longest time that the event loop was blocked.
class Watchdog {
public:
    Watchdog() {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(std::chrono::milliseconds(1));
        look();
        m_longest = m_longestOwn = 0;
    }

    /// Milliseconds.
    [[nodiscard]] double longest() const { return m_longest; }

    [[nodiscard]] double longestOwn() const { return m_longestOwn; }

private:
    void look() {
        const auto now = Clock::now();
        const double own = cpuSeconds(CLOCK_THREAD_CPUTIME_ID);
        m_longest =
            std::max(m_longest, std::chrono::duration<double, std::milli>(now - m_last).count());
        m_longestOwn = std::max(m_longestOwn, (own - m_lastOwn) * 1000);
        m_last = now;
        m_lastOwn = own;
    }

    QTimer m_timer;
    Clock::time_point m_last = Clock::now();
    double m_lastOwn = 0;
    double m_longest = 0;
    double m_longestOwn = 0;
};

/// Calls a function with each time (seconds) that a paused player jumps to, for as long as it
/// lives.
class JumpObserver {
public:
    JumpObserver(media::Player& player, const std::function<void(double time)>& onJump)
        : m_player(player),
          m_token(player.addPeriodicTimeObserver(
              kTickInterval, [onJump](media::Time time) { onJump(time.seconds()); })) {}

    JumpObserver(const JumpObserver&) = delete;
    JumpObserver& operator=(const JumpObserver&) = delete;

    ~JumpObserver() { m_player.removeTimeObserver(m_token); }

private:
    media::Player& m_player;
    media::Player::Token m_token;
};

/// Measures how long a view is not painted, for as long as it lives.
class StillWatch final : public QObject {
public:
    explicit StillWatch(QWidget& view) : m_last(Clock::now()) { view.installEventFilter(this); }

    bool eventFilter(QObject* /*view*/, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            note();
        return false;
    }

    /// Milliseconds.
    [[nodiscard]] double longestStill() const { return m_longest; }

private:
    void note() {
        m_longest = std::max(m_longest, millisecondsSince(m_last));
        m_last = Clock::now();
    }

    Clock::time_point m_last;
    double m_longest = 0;
};

double peakMiB() {
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

/// Seeks to all the times, 60 each second, and waits for the exact frame of the last.
DragFigures dragIn(ShownWindow& window, const std::vector<double>& times) {
    DragFigures figures;
    double lastExact = -1;
    const JumpObserver observer(*window.player(), [&](double time) {
        ++figures.exact;
        lastExact = time;
    });
    const Watchdog watchdog;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (figures.seeks < times.size())
            window.state().seek(times[figures.seeks++]);
    });
    timer.start(std::chrono::milliseconds(16));
    waitUntil([&] { return figures.seeks == times.size(); });
    // The last seek is always shown exactly: no later one replaces it.
    const double last = window.player()->currentTime().seconds();
    waitUntil([&] { return figures.exact > 0 && lastExact == last; });
    figures.longestBlock = watchdog.longest();
    figures.longestOwnBlock = watchdog.longestOwn();
    figures.peakMiB = peakMiB();
    return figures;
}

/// Runs the event loop for that long.
void rest(std::chrono::seconds duration) {
    const auto end = Clock::now() + duration;
    waitUntil([&] { return Clock::now() >= end; });
}

} // namespace

DragFigures drag(const std::filesystem::path& source, const std::vector<double>& times) {
    BriskletApp app;
    ShownWindow window(app);
    window.open(source);
    window.finishFilmstrip();
    return dragIn(window, times);
}

WindowsFigures windows(const std::vector<std::filesystem::path>& sources,
                       const std::vector<double>& times) {
    // Frames that are read ahead after the last drag, in all windows, count too.
    constexpr std::chrono::seconds kRest{10};
    BriskletApp app;
    WindowsFigures figures;
    std::vector<ShownWindow> windows;
    windows.reserve(sources.size());
    for (const std::filesystem::path& source : sources) {
        windows.emplace_back(app).open(source);
        windows.back().finishFilmstrip();
    }
    figures.openedMiB = peakMiB();
    for (ShownWindow& window : windows)
        figures.exact += dragIn(window, times).exact;
    rest(kRest);
    figures.windows = windows.size();
    figures.peakMiB = peakMiB();
    return figures;
}

double open(const std::filesystem::path& source) {
    BriskletApp app;
    return ShownWindow(app).open(source);
}

PlayFigures play(const std::filesystem::path& source, double seconds) {
    BriskletApp app;
    ShownWindow window(app);
    window.open(source);
    window.finishFilmstrip();

    const media::Player& player = *window.player();
    bool hasStarted = false;
    const auto playFor = [&](double duration) {
        const auto end = Clock::now() + std::chrono::duration<double>(duration);
        waitUntil([&] {
            hasStarted = hasStarted || window.state().isPlaying();
            return Clock::now() >= end || (hasStarted && !window.state().isPlaying());
        });
    };
    window.state().togglePlayback();
    playFor(kReadAheadSeconds);
    const StillWatch watch(window.view());
    const auto before = player.statistics();
    const double cpuBefore = cpuSeconds();
    playFor(seconds);
    const auto after = player.statistics();
    const double cpuAfter = cpuSeconds();
    if (window.state().isPlaying())
        window.state().togglePlayback();
    return {after.shown - before.shown, after.late - before.late, after.dropped - before.dropped,
            watch.longestStill(),       cpuAfter - cpuBefore,     window.pictureSize()};
}

double startup(Clock::time_point start) {
    BriskletApp app;
    const ShownWindow window(app);
    return millisecondsSince(start);
}

} // namespace brisklet::bench
