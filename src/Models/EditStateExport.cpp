#include "Models/EditState.h"

#include "Models/ExportJob.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"

#include <utility>

namespace brisklet {

namespace {

SaveProposal proposalFor(const QUrl& source, ExportFormat format, int longestName) {
    const ExportFormatTraits& type = traits(format);
    const QString extension = type.extension;
    //: Follows the name of the original in the proposed name of the new file: “Holiday
    //: Trimmed.mp4”.
    return {.fileName =
                truncatedName(displayBaseName(source),
                              u' ' + EditState::tr("Trimmed") + u'.' + extension, longestName),
            .folder = urlOf(pathOf(source).parent_path()),
            .typeName = typeName(type),
            .extension = extension,
            .otherExtensions = extensionsOfOtherFormats(format),
            .source = source};
}

} // namespace

void EditState::presentExportPanel() {
    if (videoURL() && !m_exportProgress.value() && m_filePanels && !offerIfLost())
        askForOutput();
}

QCoro::Task<> EditState::askForOutput() {
    verifyMainThread();
    const std::weak_ptr<EditState> weak = weak_from_this();
    const auto panels = m_filePanels;
    // While the panel is open another window may change the shared settings, and a drop may
    // replace the video.
    const ExportChoice choice = ExportSettings::shared().choice();
    const std::uint64_t editId = m_editId;
    auto panel = panels->saveMovie(proposalFor(*videoURL(), choice.format, m_video.maxNameBytes));
    const std::optional<QUrl> url = co_await panel;
    const auto self = weak.lock();
    if (self && url && self->m_editId == editId)
        self->startExport(*url, choice);
}

void EditState::exportTo(const QUrl& outputURL) {
    startExport(outputURL, ExportSettings::shared().choice());
}

void EditState::startExport(const QUrl& outputURL, ExportChoice choice) {
    verifyMainThread();
    if (!videoURL() || m_exportProgress.value() || offerIfLost())
        return;
    m_playerController.player()->pause();
    ExportRequest request = exportRequest(outputURL, choice);
    if (exportForecast() && makeTheSame(request, m_forecastRequest))
        request.expectedBytes = exportForecast()->bytes;
    m_exportTask.emplace();
    const std::stop_token stop = m_exportTask->get_token();
    m_exportProgress = 0.0;
    awaitExport(shared_from_this(), std::move(request), stop);
}

std::optional<ExportRequest> EditState::plannedExport() const {
    if (!videoURL() || isVideoLost())
        return std::nullopt;
    return exportRequest({}, ExportSettings::shared().choice());
}

void EditState::setExportForecast(const ExportRequest& request,
                                  const media::ExportForecast& forecast) {
    m_forecastRequest = request;
    m_exportForecast = forecast;
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
            .asset = m_video.asset};
}

QCoro::Task<> EditState::awaitExport(std::shared_ptr<EditState> state, ExportRequest request,
                                     std::stop_token stop) {
    const QUrl outputURL = request.outputURL;
    const Edit exported = state->edit();
    const std::uint64_t editId = state->m_editId;
    auto task = runExport(
        std::move(request),
        [weak = std::weak_ptr(state), stop](double fraction) {
            if (const auto self = weak.lock())
                self->exportProgressed(fraction, stop);
        },
        stop);
    const ExportOutcome outcome = co_await task;
    const bool hasFailed = outcome.kind == ExportOutcome::Kind::failed;
    if (hasFailed)
        state->m_errorMessage = outcome.message;
    if (outcome.kind == ExportOutcome::Kind::finished)
        state->m_lastExport = outputURL;
    state->m_exportProgress = std::nullopt;
    // An observer of exportProgress() may have started the next export already.
    if (!state->m_exportProgress.value())
        state->m_exportTask.reset();
    if (outcome.kind == ExportOutcome::Kind::finished) {
        state->noteExported(editId, exported);
        Q_EMIT state->exportFinished(outputURL);
    }
    if (hasFailed)
        Q_EMIT state->exportFailed(outcome.message);
}

void EditState::noteExported(std::uint64_t editId, const Edit& exported) {
    if (editId != m_editId)
        return;
    m_exportedEdit = exported;
    Q_EMIT editChanged();
}

void EditState::exportProgressed(double fraction, const std::stop_token& stop) {
    if (m_exportProgress.value() && m_exportTask && m_exportTask->get_token() == stop)
        m_exportProgress = fraction;
}

void EditState::cancelExport() {
    verifyMainThread();
    if (m_exportTask)
        m_exportTask->request_stop();
}

} // namespace brisklet
