#include "BriskletApp.h"
#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Tools/bench/Benchmarks.h"
#include "Tools/bench/Waiting.h"
#include "Views/PlayerLayerView.h"
#include "WindowRootView.h"

#include <QApplication>

#include <ctime>
#include <memory>
#include <optional>

namespace brisklet::bench {

namespace {

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double cpuSeconds() {
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
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
