#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"
#include "Views/ContentView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

// How long one change of the timeline or of the crop occupies the main thread: the model's change,
// the views' reaction and the painting of what they asked for, in a window of 1280 × 800 points
// with a video in it. Prints milliseconds.
//
//     QT_QPA_PLATFORM=offscreen [QT_SCALE_FACTOR=2] painting SOURCE

namespace {

using namespace brisklet;

constexpr int kRounds = 400;

void waitUntil(const std::function<bool()>& condition) {
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void measure(const char* name, QWidget& window, const std::function<void(double)>& change) {
    std::vector<double> times;
    times.reserve(kRounds);
    for (int round = 0; round < kRounds; ++round) {
        QCoreApplication::processEvents();
        QElapsedTimer clock;
        clock.start();
        change(static_cast<double>(round) / kRounds);
        QCoreApplication::sendPostedEvents(&window, QEvent::UpdateRequest);
        times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-22s p50 %.3f  p95 %.3f  max %.3f\n", name, times[times.size() / 2],
                times[times.size() * 95 / 100], times.back());
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
    const QApplication application(argc, argv);
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
