#include "Application.h"
#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"
#include "Views/ContentView.h"

#include <QEvent>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

// Measures how long one change of the timeline or of the crop occupies the main thread: the change
// of the model, the reaction of the views and the repaint they ask for, in a window of 1280 × 800
// points with a video. Prints milliseconds of wall time, and of the main thread's processor time,
// which other programs do not affect.
//
//     QT_QPA_PLATFORM=offscreen [QT_SCALE_FACTOR=2] painting SOURCE

namespace {

using namespace brisklet;

constexpr int kRounds = 400;

void waitUntil(const std::function<bool()>& condition) {
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double milliseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

struct Figures {
    std::vector<double> sorted;

    [[nodiscard]] double quantile(std::size_t percent) const {
        return sorted[(sorted.size() - 1) * percent / 100];
    }
};

void measure(const char* name, QWidget& window, const std::function<void(double)>& change) {
    Figures elapsed;
    Figures spent;
    for (int round = 0; round < kRounds; ++round) {
        QCoreApplication::processEvents();
        const double start = milliseconds(CLOCK_MONOTONIC);
        const double spentBefore = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        change(static_cast<double>(round) / kRounds);
        QCoreApplication::sendPostedEvents(&window, QEvent::UpdateRequest);
        spent.sorted.push_back(milliseconds(CLOCK_THREAD_CPUTIME_ID) - spentBefore);
        elapsed.sorted.push_back(milliseconds(CLOCK_MONOTONIC) - start);
    }
    std::sort(elapsed.sorted.begin(), elapsed.sorted.end());
    std::sort(spent.sorted.begin(), spent.sorted.end());
    std::printf("%-20s elapsed p50 %.3f p95 %.3f   processor p50 %.3f p95 %.3f max %.3f\n", name,
                elapsed.quantile(50), elapsed.quantile(95), spent.quantile(50), spent.quantile(95),
                spent.quantile(100));
}

void measureAll(QWidget& window, EditState& state) {
    const double duration = state.duration();
    measure("playhead", window, [&](double share) { state.seek(duration * share); });
    measure("start of the range", window,
            [&](double share) { state.setTrimStart(duration * share / 2); });
    measure("end of the range", window,
            [&](double share) { state.setTrimEnd(duration * (1 - share / 3)); });
    state.setCropRect(media::Rect{0.1, 0.1, 0.5, 0.5});
    QCoreApplication::processEvents();
    measure("crop moved", window, [&](double share) {
        state.setCropRect(media::Rect{0.1 + share * 0.4, 0.1 + share * 0.4, 0.5, 0.5});
    });
    measure("crop resized", window, [&](double share) {
        state.setCropRect(media::Rect{0.1, 0.1, 0.1 + share * 0.8, 0.1 + share * 0.8});
    });
    measure("all of the window", window, [&](double) { window.update(); });
}

} // namespace

int main(int argc, char** argv) {
    const brisklet::Application application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: painting SOURCE\n", stderr);
        return EXIT_FAILURE;
    }
    const auto state = std::make_shared<EditState>();
    ContentView window(state);
    window.resize(1280, 800);
    window.show();
    state->load(urlOf(std::filesystem::absolute(argv[1])));
    waitUntil([&] { return !state->thumbnails().isEmpty() || state->errorMessage(); });
    if (state->errorMessage()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(*state->errorMessage()));
        return EXIT_FAILURE;
    }
    measureAll(window, *state);
    waitForWorkers();
    return EXIT_SUCCESS;
}
