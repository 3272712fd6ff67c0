#include "Media/Process/Server/ExportService.h"

#include "Media/Error.h"
#include "Media/Export/ExportRun.h"
#include "Media/Export/ExportTrial.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/Process/Wire/ExportMessages.h"
#include "Media/Process/Wire/MediaMessages.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace media::process {

namespace {

/// Tells how far an export is, as long as it lives.
class ProgressReports {
public:
    ProgressReports(const std::atomic<double>& progress, const Service::Report& report)
        : m_thread([this, &progress, &report](const std::stop_token& stop) {
              double told = 0;
              while (!stop.stop_requested()) {
                  wait(stop);
                  const double now = progress.load(std::memory_order_relaxed);
                  if (now <= told)
                      continue;
                  told = now;
                  MessageWriter writer;
                  writer.put(now);
                  report(std::move(writer));
              }
          }) {}

private:
    void wait(const std::stop_token& stop) {
        // As often as a bar on the screen moves.
        constexpr std::chrono::milliseconds kInterval{20};
        std::unique_lock lock(m_mutex);
        m_wake.wait_for(lock, stop, kInterval, [] { return false; });
    }

    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::jthread m_thread;
};

/// The asset of an export’s arguments. The file was opened before, when it was as long as the
/// arguments say.
std::shared_ptr<const OpenedAsset> openSource(MessageReader& arguments,
                                              const std::stop_token& stop) {
    Descriptor descriptor = arguments.getDescriptor();
    auto file = ffmpeg::SourceFile::adopt(std::move(descriptor), arguments.getText());
    const auto formerSize = arguments.get<std::int64_t>();
    try {
        return OpenedAsset::open(file, stop);
    } catch (const Error&) {
        if (file->size() < formerSize)
            throw Error(ErrorKind::videoCutShort);
        throw;
    }
}

void writeExport(MessageReader& arguments, const Service::Report& report,
                 const std::stop_token& stop) {
    const auto asset = openSource(arguments, stop);
    OutputWriter writer(arguments.getDescriptor());
    const Composition composition = getComposition(arguments, asset);
    const auto videoComposition = getVideoComposition(arguments);
    const auto fileType = arguments.getBool() ? FileType::mpeg4 : FileType::quickTimeMovie;
    const EncoderSettings settings = getSettings(arguments);
    arguments.expectEnd();
    ExportRun run(composition, videoComposition, settings, writer, fileType);
    std::atomic<double> progress = 0;
    {
        const ProgressReports reports(progress, report);
        run.writeMedia(stop, progress);
    }
    run.complete(stop);
}

} // namespace

void ExportService::perform(std::int32_t /*operation*/, MessageReader& arguments,
                            MessageWriter& answer, const Report& report,
                            const std::stop_token& stop) {
    try {
        writeExport(arguments, report, stop);
        answer.put(std::int32_t{0});
    } catch (const WriteRefusal& refusal) {
        answer.put(std::int32_t{refusal.code()});
    }
}

void ForecastService::perform(std::int32_t /*operation*/, MessageReader& arguments,
                              MessageWriter& answer, const Report& /*report*/,
                              const std::stop_token& stop) {
    const auto asset = openSource(arguments, stop);
    const Composition composition = getComposition(arguments, asset);
    const auto videoComposition = getVideoComposition(arguments);
    const EncoderSettings settings = getSettings(arguments);
    arguments.expectEnd();
    put(answer, runTrial(composition, videoComposition, settings, stop));
}

} // namespace media::process
