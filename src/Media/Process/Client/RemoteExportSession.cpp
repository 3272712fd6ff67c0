#include "Media/Process/Client/RemoteExportSession.h"

#include "Media/Error.h"
#include "Media/Export/OutputFile.h"
#include "Media/Process/Client/ForkServer.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "Media/Process/Client/RemoteObject.h"
#include "Media/Process/Wire/ExportMessages.h"

#include <utility>

namespace media::process {

namespace {

void putSource(MessageWriter& writer, const Composition& composition) {
    const auto& file = *RemoteAsset::of(composition.asset)->file();
    writer.put(file.duplicate());
    writer.put(std::string_view(file.path().native()));
    writer.put(file.openedSize());
}

/// Has a helper of its own do one thing, and ends it when that is done or no more wanted. None if
/// it ends by itself. Throws Error; Cancelled.
template<typename Operation>
std::optional<MessageReader> callOnce(ForkServer& server, ObjectKind kind, Operation operation,
                                      MessageWriter arguments, const std::stop_token& stop,
                                      const RemoteObject::Progress& progress = {}) {
    const auto helper = server.fork(stop);
    RemoteObject remote(helper->makeObject(kind), {}, [&helper] { helper->kill(); });
    const std::stop_callback onStop(stop, [&] { helper->kill(); });
    try {
        return remote.call(operation, std::move(arguments), stop, progress);
    } catch (const Error& error) {
        if (stop.stop_requested())
            throw Cancelled();
        if (error.failure().kind != ErrorKind::decoderStopped)
            throw;
        return std::nullopt;
    }
}

/// 0, or the errno that writing failed with.
int codeOf(MessageReader& answer) {
    try {
        return answer.get<std::int32_t>();
    } catch (const BadMessage&) {
        throw Error(ErrorKind::encoderStopped);
    }
}

} // namespace

RemoteExportSession::RemoteExportSession(ForkServer& server, Composition composition,
                                         std::filesystem::path outputPath, FileType fileType,
                                         EncoderSettings settings)
    : FileExportSession({composition, std::nullopt, fileType, std::move(settings)},
                        std::move(outputPath)),
      m_server(server),
      m_source(RemoteAsset::of(composition.asset)->file()) {
    expectOtherFile();
}

std::shared_ptr<const ffmpeg::SourceFile> RemoteExportSession::source() const {
    return m_source;
}

void RemoteExportSession::write(const Job& job, std::unique_ptr<OutputFile>& file,
                                std::atomic<double>& progress, const std::stop_token& stop) {
    MessageWriter arguments;
    putSource(arguments, job.composition);
    arguments.put(file->duplicate());
    put(arguments, job.composition);
    put(arguments, job.videoComposition);
    arguments.put(static_cast<std::uint8_t>(job.fileType == FileType::mpeg4 ? 1 : 0));
    put(arguments, job.settings);
    const auto onProgress = [&progress](MessageReader& reader) {
        const auto fraction = reader.getWithin<double>(0, 1);
        if (fraction > progress.load(std::memory_order_relaxed))
            progress.store(fraction, std::memory_order_relaxed);
    };
    auto answer = callOnce(m_server, ObjectKind::exportSession, ExportOperation::run,
                           std::move(arguments), stop, onProgress);
    if (!answer)
        throw Error(ErrorKind::encoderStopped);
    if (const int code = codeOf(*answer); code != 0)
        throw WriteRefusal(code);
}

std::optional<ExportForecast>
forecastRemotely(ForkServer& server, const Composition& composition,
                 const std::optional<VideoComposition>& videoComposition,
                 const EncoderSettings& settings, const std::stop_token& stop) {
    if (!composition.asset || !composition.videoTrack)
        throw Error(ErrorKind::nothingToExport);
    MessageWriter arguments;
    putSource(arguments, composition);
    put(arguments, composition);
    put(arguments, videoComposition);
    put(arguments, settings);
    auto answer = callOnce(server, ObjectKind::exportForecast, ForecastOperation::run,
                           std::move(arguments), stop);
    if (!answer)
        return std::nullopt;
    try {
        return getForecast(*answer);
    } catch (const BadMessage&) {
        return std::nullopt;
    }
}

} // namespace media::process
