#include "BriskletApp.h"
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
#include <memory>
#include <optional>

namespace brisklet::bench {

namespace {

/// What an idle player has decoded ahead at most.
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

    /// The picture in device pixels; empty before there is one.
    [[nodiscard]] QSize pictureSize() const {
        const auto* view = m_window->findChild<PlayerLayerView*>();
        return (view->videoRect().size() * view->devicePixelRatio()).toSize();
    }

    /// Opens the file and waits for its first frame; gives the milliseconds that took.
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

    /// Waits for the filmstrip, whose making is no part of what is measured.
    void finishFilmstrip() const {
        waitUntil([&] { return !state().thumbnails().isEmpty(); });
    }

private:
    WindowRootView* m_window;
};

} // namespace

namespace {

/// Notices how long the event loop does not come round.
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

double peakMiB() {
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

/// Seeks to all the times, 60 each second, and waits for the last exact frame.
DragFigures dragIn(ShownWindow& window, const std::vector<double>& times) {
    DragFigures figures;
    double lastExact = -1;
    window.state().playerController().onTick = [&](double time) {
        ++figures.exact;
        lastExact = time;
    };
    const Watchdog watchdog;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (figures.seeks < times.size())
            window.state().seek(times[figures.seeks++]);
    });
    timer.start(std::chrono::milliseconds(16));
    waitUntil([&] { return figures.seeks == times.size(); });
    // The last one is exact in any case.
    const double last = window.state().playerController().player()->currentTime().seconds();
    waitUntil([&] { return figures.exact > 0 && lastExact == last; });
    window.state().playerController().onTick = nullptr;
    figures.longestBlock = watchdog.longest();
    figures.longestOwnBlock = watchdog.longestOwn();
    figures.peakMiB = peakMiB();
    return figures;
}

/// Runs the event loop for so long.
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
    // What is read ahead after the last drag, in all windows, counts too.
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

    media::Player& player = *window.state().playerController().player();
    bool hasStarted = false;
    const auto playFor = [&](double duration) {
        const auto end = Clock::now() + std::chrono::duration<double>(duration);
        waitUntil([&] {
            hasStarted = hasStarted || window.state().isPlaying();
            return Clock::now() >= end || (hasStarted && !window.state().isPlaying());
        });
    };
    player.play();
    playFor(kReadAheadSeconds);
    const auto before = player.statistics();
    const double cpuBefore = cpuSeconds();
    playFor(seconds);
    const auto after = player.statistics();
    const double cpuAfter = cpuSeconds();
    player.pause();
    return {after.shown - before.shown, after.late - before.late, after.dropped - before.dropped,
            cpuAfter - cpuBefore, window.pictureSize()};
}

double startup(Clock::time_point start) {
    BriskletApp app;
    const ShownWindow window(app);
    return millisecondsSince(start);
}

} // namespace brisklet::bench
