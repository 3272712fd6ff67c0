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

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double cpuSeconds(clockid_t clock = CLOCK_PROCESS_CPUTIME_ID) {
    timespec time = {};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// The program's own window, shown and painted, that closes at the end.
class ShownWindow {
public:
    ShownWindow() : m_window(m_app.openWindow()) {
        bool isPainted = false;
        const PaintWatch watch(*m_window, [&] { isPainted = true; });
        waitUntil([&] { return isPainted; });
    }

    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    [[nodiscard]] EditState& state() const { return *m_window->state(); }

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

private:
    BriskletApp m_app;
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

} // namespace

DragFigures drag(const std::filesystem::path& source, const std::vector<double>& times) {
    ShownWindow window;
    window.open(source);
    // Making the filmstrip is no part of dragging.
    waitUntil([&] { return !window.state().thumbnails().isEmpty(); });

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
    figures.longestBlock = watchdog.longest();
    figures.longestOwnBlock = watchdog.longestOwn();
    figures.peakMiB = peakMiB();
    return figures;
}

double open(const std::filesystem::path& source) {
    return ShownWindow().open(source);
}

PlayFigures play(const std::filesystem::path& source, double seconds) {
    ShownWindow window;
    window.open(source);
    // Making the filmstrip is no part of playing.
    waitUntil([&] { return !window.state().thumbnails().isEmpty(); });

    media::Player& player = *window.state().playerController().player();
    const auto before = player.statistics();
    const double cpuBefore = cpuSeconds();
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    player.play();
    bool hasStarted = false;
    waitUntil([&] {
        hasStarted = hasStarted || window.state().isPlaying();
        return Clock::now() >= end || (hasStarted && !window.state().isPlaying());
    });
    player.pause();
    const auto after = player.statistics();
    return {after.shown - before.shown, after.late - before.late, after.dropped - before.dropped,
            cpuSeconds() - cpuBefore};
}

double startup(Clock::time_point start) {
    const ShownWindow window;
    return millisecondsSince(start);
}

} // namespace brisklet::bench
