#pragma once

#include "Media/ExportForecast.h"

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
    /// Until the exact frame was shown.
    std::vector<double> seeks;
    /// Until any picture was shown, if only one that stands in; of seeks only.
    std::vector<double> glances;
};

/// Steps that a held key asks for each second, as desktops repeat keys by default or faster.
inline constexpr int kRepeatsPerSecond = 30;

/// Milliseconds from when a step was asked for to when its frame was shown.
struct HoldFigures {
    /// The longest of the first second, in which nothing is at hand if there was no rest.
    double first = 0;
    /// Those after it.
    std::vector<double> steps;
};

struct DragFigures {
    /// How many exact frames were shown, and how many seeks there were.
    std::uint64_t exact = 0;
    std::uint64_t seeks = 0;
    /// The longest time that the main thread's event loop was blocked, and the longest processor
    /// time of the thread in one turn; milliseconds.
    double longestBlock = 0;
    double longestOwnBlock = 0;
    /// Of the whole process.
    double peakMiB = 0;
};

struct PlayFigures {
    std::uint64_t shown = 0;
    std::uint64_t late = 0;
    std::uint64_t dropped = 0;
    /// The longest time for which the picture on the screen stood still; milliseconds.
    double longestStill = 0;
    /// Of the whole process while it played.
    double cpuSeconds = 0;
    /// The picture in device pixels.
    QSize pictureSize;
};

struct WindowsFigures {
    std::uint64_t windows = 0;
    /// How many exact frames were shown in all of them.
    std::uint64_t exact = 0;
    /// Of the whole process: with all files open, and at the end.
    double openedMiB = 0;
    double peakMiB = 0;
};

/// One export and what was forecast of it.
struct ForecastFigures {
    /// None was made if the forecast has no bytes.
    media::ExportForecast forecast;
    media::ExportForecast real;
    /// What the trial took, of the whole process.
    double trialCpuSeconds = 0;
};

/// All of these run the main event loop while they measure, need a QApplication, and throw
/// BenchmarkError. Main thread.

/// Seeks a paused player to each time (seconds) in turn and waits for each exact frame; one may
/// stand in for it until then. `size` is that of the view in pixels.
ScrubFigures scrub(const std::filesystem::path& source, const std::vector<double>& times,
                   QSize size);

/// Steps a paused player `count` times by one frame (backward where negative), beginning at `from`
/// seconds, and waits for each frame.
ScrubFigures step(const std::filesystem::path& source, double from, int count, QSize size);

/// Steps a paused player as an arrow key does that is held from `rest` seconds after a jump to
/// `from` seconds has arrived: kRepeatsPerSecond, whether those before have arrived or not. More
/// steps than that.
HoldFigures hold(const std::filesystem::path& source, double from, int count, double rest,
                 QSize size);

/// Seeks the player of a window to one time after another, 60 each second, as a drag does.
DragFigures drag(const std::filesystem::path& source, const std::vector<double>& times);

/// Opens each file in a window of its own, then drags in one window after the other as drag() does.
WindowsFigures windows(const std::vector<std::filesystem::path>& sources,
                       const std::vector<double>& times);

/// Milliseconds from telling a window to open the file until its first frame has been painted.
double open(const std::filesystem::path& source);

/// Plays the file in a window for that many seconds, or to its end. The seconds that may have been
/// decoded before playing began are played first and not counted.
PlayFigures play(const std::filesystem::path& source, double seconds);

/// Forecasts exports of the file as MP4, of all of it and of each third, and makes them.
std::vector<ForecastFigures> forecast(const std::filesystem::path& source);

/// Milliseconds from `start` until the program's empty window has been painted.
double startup(Clock::time_point start);

} // namespace brisklet::bench
