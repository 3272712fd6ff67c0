#include "Application.h"
#include "Support/LeakCheck.h"
#include "Support/Workers.h"
#include "Tools/bench/Benchmarks.h"

#include <QByteArray>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace {

using namespace brisklet::bench;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
/// The size of the picture in a new window.
constexpr QSize kUsualSize(960, 540);
constexpr const char* kUsage = "Usage: brisklet-bench scrub SOURCE TIMES.json [--size WxH]\n"
                               "       brisklet-bench step SOURCE SECONDS COUNT [--size WxH]\n"
                               "       brisklet-bench hold SOURCE SECONDS COUNT REST [--size WxH]\n"
                               "       brisklet-bench drag SOURCE TIMES.json\n"
                               "       brisklet-bench windows TIMES.json SOURCE...\n"
                               "       brisklet-bench open SOURCE\n"
                               "       brisklet-bench play SOURCE SECONDS\n"
                               "       brisklet-bench forecast SOURCE\n"
                               "       brisklet-bench startup\n";

/// Arguments that are none of the above.
class UsageError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::vector<double> readTimes(const std::string& path) {
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        throw BenchmarkError("The list of times cannot be read.");
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isArray())
        throw BenchmarkError("The times are no JSON list of seconds.");
    std::vector<double> times;
    for (const QJsonValue& value : document.array())
        times.push_back(value.toDouble());
    if (times.empty())
        throw BenchmarkError("The list of times is empty.");
    return times;
}

QSize parseSize(std::string_view text) {
    int width = 0;
    int height = 0;
    const std::size_t cross = text.find('x');
    if (cross != std::string_view::npos) {
        std::from_chars(text.data(), text.data() + cross, width);
        std::from_chars(text.data() + cross + 1, text.data() + text.size(), height);
    }
    if (width <= 0 || height <= 0)
        throw UsageError("--size needs WxH");
    return {width, height};
}

double parseSeconds(const std::string& text) {
    double seconds = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (result.ec != std::errc() || !(seconds >= 0) || !std::isfinite(seconds))
        throw UsageError("SECONDS and REST need a number of seconds");
    return seconds;
}

/// The value that `share` of the sorted values do not exceed.
double percentile(const std::vector<double>& sorted, double share) {
    const auto rank =
        static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
    return sorted[std::clamp<std::size_t>(rank, 1, sorted.size()) - 1];
}

void print(double milliseconds) {
    std::puts(QByteArray::number(milliseconds, 'f', 1).constData());
}

void print(const QJsonObject& figures) {
    std::puts(QJsonDocument(figures).toJson(QJsonDocument::Compact).constData());
}

QJsonObject summary(double first, std::vector<double> sorted) {
    std::ranges::sort(sorted);
    return {{QStringLiteral("n"), static_cast<qint64>(sorted.size())},
            {QStringLiteral("first"), first},
            {QStringLiteral("p50"), percentile(sorted, 0.5)},
            {QStringLiteral("p95"), percentile(sorted, 0.95)},
            {QStringLiteral("max"), sorted.back()}};
}

/// The size of the view behind the first `count` operands.
QSize sizeAfter(const std::vector<std::string>& operands, std::size_t count,
                const std::string& usage) {
    const bool hasSize = operands.size() == count + 2 && operands[count] == "--size";
    if (operands.size() != count && !hasSize)
        throw UsageError(usage);
    return hasSize ? parseSize(operands[count + 1]) : kUsualSize;
}

void runScrub(const std::vector<std::string>& operands) {
    const QSize size = sizeAfter(operands, 2, "scrub takes SOURCE TIMES.json [--size WxH]");
    ScrubFigures figures = scrub(operands[0], readTimes(operands[1]), size);
    QJsonObject line = summary(figures.seeks.front(), figures.seeks);
    std::ranges::sort(figures.glances);
    line[QStringLiteral("glanceP50")] = percentile(figures.glances, 0.5);
    line[QStringLiteral("glanceP95")] = percentile(figures.glances, 0.95);
    print(line);
}

/// How many frames to step, backward where negative.
int parseCount(const std::string& text) {
    int count = 0;
    std::from_chars(text.data(), text.data() + text.size(), count);
    return count;
}

void runStep(const std::vector<std::string>& operands) {
    const QSize size = sizeAfter(operands, 3, "step takes SOURCE SECONDS COUNT [--size WxH]");
    const int count = parseCount(operands[2]);
    if (count == 0)
        throw UsageError("COUNT needs a number other than 0");
    const ScrubFigures figures = step(operands[0], parseSeconds(operands[1]), count, size);
    print(summary(figures.seeks.front(), figures.seeks));
}

void runHold(const std::vector<std::string>& operands) {
    const QSize size = sizeAfter(operands, 4, "hold takes SOURCE SECONDS COUNT REST [--size WxH]");
    const int count = parseCount(operands[2]);
    if (count >= -kRepeatsPerSecond && count <= kRepeatsPerSecond)
        throw UsageError("COUNT needs more steps than those of the first second");
    const HoldFigures figures =
        hold(operands[0], parseSeconds(operands[1]), count, parseSeconds(operands[3]), size);
    print(summary(figures.first, figures.steps));
}

void runDrag(const std::vector<std::string>& operands) {
    if (operands.size() != 2)
        throw UsageError("drag takes SOURCE TIMES.json");
    const DragFigures figures = drag(operands[0], readTimes(operands[1]));
    print({{QStringLiteral("seeks"), static_cast<qint64>(figures.seeks)},
           {QStringLiteral("exact"), static_cast<qint64>(figures.exact)},
           {QStringLiteral("longestBlock"), figures.longestBlock},
           {QStringLiteral("longestOwnBlock"), figures.longestOwnBlock},
           {QStringLiteral("peakMiB"), figures.peakMiB}});
}

void runWindows(const std::vector<std::string>& operands) {
    if (operands.size() < 2)
        throw UsageError("windows takes TIMES.json SOURCE...");
    const auto figures = windows({operands.begin() + 1, operands.end()}, readTimes(operands[0]));
    print({{QStringLiteral("windows"), static_cast<qint64>(figures.windows)},
           {QStringLiteral("exact"), static_cast<qint64>(figures.exact)},
           {QStringLiteral("openedMiB"), figures.openedMiB},
           {QStringLiteral("peakMiB"), figures.peakMiB}});
}

void runPlay(const std::vector<std::string>& operands) {
    if (operands.size() != 2)
        throw UsageError("play takes SOURCE SECONDS");
    const auto figures = play(operands[0], parseSeconds(operands[1]));
    print({{QStringLiteral("shown"), static_cast<qint64>(figures.shown)},
           {QStringLiteral("late"), static_cast<qint64>(figures.late)},
           {QStringLiteral("dropped"), static_cast<qint64>(figures.dropped)},
           {QStringLiteral("longestStill"), figures.longestStill},
           {QStringLiteral("cpuSeconds"), figures.cpuSeconds},
           {QStringLiteral("width"), figures.pictureSize.width()},
           {QStringLiteral("height"), figures.pictureSize.height()}});
}

void runForecast(const std::string& source) {
    for (const ForecastFigures& each : forecast(source)) {
        print({{QStringLiteral("bytes"), static_cast<qint64>(each.real.bytes)},
               {QStringLiteral("forecastBytes"), static_cast<qint64>(each.forecast.bytes)},
               {QStringLiteral("seconds"), each.real.seconds},
               {QStringLiteral("forecastSeconds"), each.forecast.seconds},
               {QStringLiteral("trialCpuSeconds"), each.trialCpuSeconds}});
    }
}

void runBenchmark(const std::string& name, const std::vector<std::string>& operands,
                  Clock::time_point start) {
    if (name == "scrub") {
        runScrub(operands);
    } else if (name == "step") {
        runStep(operands);
    } else if (name == "hold") {
        runHold(operands);
    } else if (name == "drag") {
        runDrag(operands);
    } else if (name == "windows") {
        runWindows(operands);
    } else if (name == "open" && operands.size() == 1) {
        print(open(operands[0]));
    } else if (name == "play") {
        runPlay(operands);
    } else if (name == "forecast" && operands.size() == 1) {
        runForecast(operands[0]);
    } else if (name == "startup" && operands.empty()) {
        print(startup(start));
    } else {
        throw UsageError("\"" + name + "\" with these arguments is no benchmark");
    }
}

int run(int argc, char** argv, Clock::time_point start) {
    const brisklet::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("brisklet"));
    QApplication::setQuitOnLastWindowClosed(false);
    const std::vector<std::string> arguments(argv + 1, argv + std::max(argc, 1));
    int status = 0;
    try {
        if (arguments.empty())
            throw UsageError("no benchmark is named");
        runBenchmark(arguments[0], {arguments.begin() + 1, arguments.end()}, start);
    } catch (const UsageError& error) {
        std::fprintf(stderr, "brisklet-bench: %s\n%s", error.what(), kUsage);
        status = kWrongUsage;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brisklet-bench: %s\n", error.what());
        status = kFailed;
    }
    return brisklet::exitStatusAfterWorkers(status);
}

} // namespace

int main(int argc, char** argv) {
    const auto start = Clock::now();
    const int status = run(argc, argv, start);
    brisklet::checkForLeaks();
    return status;
}
