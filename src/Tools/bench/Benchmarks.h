#pragma once

#include <QSize>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace brisklet::bench {

using Clock = std::chrono::steady_clock;

/// A measurement that could not be made; what() says why.
class BenchmarkError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Milliseconds.
struct ScrubFigures {
    std::vector<double> seeks;
};

struct PlayFigures {
    std::uint64_t shown = 0;
    std::uint64_t late = 0;
    std::uint64_t dropped = 0;
    double cpuSeconds = 0;
};

/// All of these run the main event loop while they measure, need a QApplication, and throw
/// BenchmarkError. Main thread.

/// Seeks a paused player to each time (seconds) in turn and waits for each exact frame. `size` is
/// that of the view in pixels.
ScrubFigures scrub(const std::filesystem::path& source, const std::vector<double>& times,
                   QSize size);

/// Milliseconds from telling a window to open the file until its first frame has been painted.
double open(const std::filesystem::path& source);

/// Plays the file in a window for that many seconds, or to its end.
PlayFigures play(const std::filesystem::path& source, double seconds);

/// Milliseconds from `start` until the program's empty window has been painted.
double startup(Clock::time_point start);

} // namespace brisklet::bench
