#include "Models/EditState.h"

#include "Export/AVFoundationExporter.h"
#include "Media/Error.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"

#include <exception>
#include <utility>

namespace brisklet {

namespace {

SaveProposal proposalFor(const QUrl& source, ExportFormat format, int longestName) {
    const ExportFormatTraits& type = traits(format);
    const QString extension = type.extension;
    return {.fileName = truncatedName(displayBaseName(source),
                                      QStringLiteral(" Trimmed.") + extension, longestName),
            .folder = urlOf(pathOf(source).parent_path()),
            .typeName = type.typeName,
            .extension = extension,
            .otherExtensions = extensionsOfOtherFormats(format),
            .source = source};
}

} // namespace

void EditState::presentExportPanel() {
    if (videoURL() && !m_exportProgress.value() && m_filePanels)
        askForOutput();
}

QCoro::Task<> EditState::askForOutput() {
    const std::weak_ptr<EditState> weak = weak_from_this();
    const auto panels = m_filePanels;
    // While the panel is open another window may change the shared settings, and a drop may
    // replace the video.
    const ExportChoice choice = ExportSettings::shared().choice();
    const auto asset = m_asset;
    auto panel = panels->saveMovie(proposalFor(*videoURL(), choice.format, m_longestName));
    const std::optional<QUrl> url = co_await panel;
    const auto self = weak.lock();
    if (self && url && self->m_asset == asset)
        self->startExport(*url, choice);
}

void EditState::exportTo(const QUrl& outputURL) {
    startExport(outputURL, ExportSettings::shared().choice());
}

void EditState::startExport(const QUrl& outputURL, ExportChoice choice) {
    if (!videoURL() || m_exportProgress.value())
        return;
    m_playerController.player()->pause();
    ExportRequest request = exportRequest(outputURL, choice);
    m_exportTask.emplace();
    const std::stop_token stop = m_exportTask->get_token();
    m_exportProgress = 0.0;
    runExport(shared_from_this(), std::move(request), stop);
}

ExportRequest EditState::exportRequest(const QUrl& outputURL, ExportChoice choice) const {
    std::optional<media::Rect> crop = cropRect();
    if (crop && coversPicture(*crop))
        crop.reset();
    return {.sourceURL = *videoURL(),
            .startTime = m_trimStart,
            .endTime = m_trimEnd,
            .muted = m_isMuted,
            .cropRect = crop,
            .rotation = m_rotation,
            .outputURL = outputURL,
            .format = choice.format,
            .maxShortEdge = maxShortEdge(choice.resolution),
            .asset = m_asset};
}

QCoro::Task<> EditState::runExport(std::shared_ptr<EditState> state, ExportRequest request,
                                   std::stop_token stop) {
    const auto onProgress = [weak = std::weak_ptr(state), stop](double fraction) {
        // The model is looked up on the main thread only, so that its last reference never ends on
        // the thread that reports.
        postToMainThread([weak, stop, fraction] {
            if (const auto self = weak.lock())
                self->exportProgressed(fraction, stop);
        });
    };
    const QUrl outputURL = request.outputURL;
    bool isFinished = false;
    std::optional<QString> failure;
    try {
        const AVFoundationExporter exporter;
        auto task = exporter.exportVideo(std::move(request), onProgress, stop);
        co_await task;
        isFinished = true;
    } catch (const media::Cancelled&) {
        // The user asked for it.
        failure.reset();
    } catch (const std::exception& error) {
        failure = QStringLiteral("Export failed: ") + QString::fromUtf8(error.what());
    }
    if (failure)
        state->m_errorMessage = failure;
    state->m_exportProgress = std::nullopt;
    // An observer of the line above may have started the next export already.
    if (!state->m_exportProgress.value())
        state->m_exportTask.reset();
    if (isFinished)
        Q_EMIT state->exportFinished(outputURL);
    if (failure)
        Q_EMIT state->exportFailed(*failure);
}

void EditState::exportProgressed(double fraction, const std::stop_token& stop) {
    if (m_exportProgress.value() && m_exportTask && m_exportTask->get_token() == stop)
        m_exportProgress = fraction;
}

void EditState::cancelExport() {
    if (m_exportTask)
        m_exportTask->request_stop();
}

} // namespace brisklet
