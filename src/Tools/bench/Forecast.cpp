#include "Export/AVFoundationExporter.h"
#include "Media/Error.h"
#include "Support/FileUrl.h"
#include "Tools/bench/Benchmarks.h"

#include <QTemporaryDir>

#include <ctime>

namespace brisklet::bench {

namespace {

constexpr int kParts = 3;

double processorTime() {
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    constexpr double kNanosecond = 1e-9;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * kNanosecond;
}

ForecastFigures compare(const ExportRequest& request) {
    ForecastFigures figures;
    const double before = processorTime();
    figures.forecast =
        AVFoundationExporter::forecast(request, {}).value_or(media::ExportForecast());
    figures.trialCpuSeconds = processorTime() - before;
    const auto start = Clock::now();
    AVFoundationExporter::run(request, {}, {});
    figures.real.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    figures.real.bytes =
        static_cast<std::int64_t>(std::filesystem::file_size(pathOf(request.outputURL)));
    return figures;
}

} // namespace

std::vector<ForecastFigures> forecast(const std::filesystem::path& source) {
    const QTemporaryDir folder;
    std::vector<ForecastFigures> all;
    try {
        ExportRequest request;
        request.sourceURL = urlOf(source);
        request.outputURL = urlOf(folder.filePath(QStringLiteral("out.mp4")).toStdString());
        request.asset = AVFoundationExporter::source(request, {});
        const double duration = request.asset->duration().seconds();
        request.endTime = duration;
        all.push_back(compare(request));
        for (int part = 0; part < kParts; ++part) {
            request.startTime = duration * part / kParts;
            request.endTime = duration * (part + 1) / kParts;
            all.push_back(compare(request));
        }
    } catch (const std::exception& error) {
        throw BenchmarkError(error.what());
    }
    return all;
}

} // namespace brisklet::bench
