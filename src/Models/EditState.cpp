#include "Models/EditState.h"

#include "Media/Error.h"
#include "Models/ExportJob.h"
#include "Models/KeptVideo.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"
#include "Support/PlaybackSettings.h"
#include "Support/Thumbnailer.h"

#include <QRandomGenerator>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <exception>
#include <utility>

namespace brisklet {

namespace {

constexpr int kThumbnailCount = 12;
/// Within this distance of the trim end, playing starts over from the trim start: it would stop
/// again at once. Seconds.
constexpr double kRestartMargin = 0.05;
/// The filmstrip takes processor time from the picture: it waits until that has been handed to the
/// view and painted, which is at the next refresh of the screen, or until it should have come.
constexpr std::chrono::milliseconds kTimeToPaint(30);
constexpr std::chrono::milliseconds kLongestWaitForPicture(1000);
constexpr media::Time kExactly{0, media::kComparisonTimescale};

/// The runs of EditHistory: keys on one end of the range, on one handle of the crop, on the crop.
constexpr int runOf(EditMarker marker) {
    return 1 + static_cast<int>(marker);
}

constexpr int kCropRun = 1 + static_cast<int>(kEditMarkers.size());

constexpr int runOf(CropHandle handle) {
    return kCropRun + 1 + static_cast<int>(handle);
}

std::uint64_t newEditId() {
    return QRandomGenerator::system()->generate64() | 1;
}

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

EditState::EditState() {
    // The controller calls nothing once it is destroyed, which is before the rest of the model.
    // Each callback keeps the model alive while it runs, since an observer of what it changes may
    // drop the last reference.
    m_playerController.onTick = [this](double time) {
        if (const auto self = weak_from_this().lock())
            self->tick(time);
    };
    m_playerController.onPlayingChange = [this](bool playing) {
        if (const auto self = weak_from_this().lock())
            self->m_isPlaying = playing;
    };
    m_playerController.onPlayedToEnd = [this] {
        if (const auto self = weak_from_this().lock())
            self->playedToEnd();
    };
    m_stripDelay.setSingleShot(true);
    connect(&m_stripDelay, &QTimer::timeout, this, &EditState::makeFilmstrip);
    connect(this, &EditState::trimStartChanged, this, &EditState::announceTrim);
    connect(this, &EditState::trimEndChanged, this, &EditState::announceTrim);
}

EditState::~EditState() {
    verifyMainThread();
    m_loads.request_stop();
    m_strip.request_stop();
}

media::Size EditState::rotatedDisplaySize() const {
    const media::Size size = m_displaySize;
    return m_rotation % 180 == 0 ? size : media::Size{size.height, size.width};
}

Edit EditState::edit() const {
    return {.trimStart = m_trimStart,
            .trimEnd = m_trimEnd,
            .cropRect = cropRect(),
            .rotation = m_rotation,
            .isMuted = m_isMuted};
}

std::optional<KeptEdit> EditState::unfinishedEdit() const {
    const Edit now = edit();
    if (!videoURL() || now == Edit{.trimEnd = m_duration} || now == m_exportedEdit)
        return std::nullopt;
    return KeptEdit{.id = m_editId,
                    .file = m_video.asset->path(),
                    .identity = m_video.identity,
                    .duration = m_duration,
                    .edit = now,
                    .playhead = m_currentTime};
}

void EditState::record(EditStep step, int run) {
    if (!videoURL())
        return;
    m_history.record(step, edit(), run);
    Q_EMIT editChanged();
}

void EditState::restore(const Edit& edit) {
    m_trimStart = edit.trimStart;
    m_trimEnd = edit.trimEnd;
    m_rotation = edit.rotation;
    m_cropRect = edit.cropRect;
    applyMuted(edit.isMuted);
    Q_EMIT editChanged();
}

Edit EditState::fitted(const Edit& edit) const {
    Edit result = edit;
    result.trimEnd = std::clamp(edit.trimEnd, 0.0, duration());
    if (!(result.trimStart < result.trimEnd))
        result.trimStart = TrimRange{m_duration, 0, result.trimEnd}.clampedStart(edit.trimStart);
    return result;
}

void EditState::setTrimStart(double seconds) {
    m_trimStart = seconds;
    record(EditStep::trimStart);
}

void EditState::setTrimEnd(double seconds) {
    m_trimEnd = seconds;
    record(EditStep::trimEnd);
}

void EditState::setCropRect(const std::optional<media::Rect>& cropRect) {
    m_cropRect = cropRect;
    record(cropRect ? EditStep::crop : EditStep::removeCrop);
}

void EditState::setMuted(bool muted) {
    applyMuted(muted);
    record(muted ? EditStep::mute : EditStep::unmute);
}

void EditState::applyMuted(bool muted) {
    m_isMuted = muted;
    m_playerController.player()->setMuted(muted);
}

void EditState::load(const QUrl& url) {
    ++m_pendingLoads;
    loadAsset(url, std::nullopt);
}

void EditState::reopen(const KeptEdit& kept) {
    ++m_pendingLoads;
    loadAsset(urlOf(kept.file), kept);
}

QCoro::Task<> EditState::loadAsset(QUrl url, std::optional<KeptEdit> kept) {
    const std::weak_ptr<EditState> weak = weak_from_this();
    const std::stop_token stop = m_loads.get_token();
    LoadedVideo video;
    QString failure;
    try {
        if (kept) {
            auto opening = openKeptVideo(*kept, stop);
            KeptVideo found = co_await opening;
            url = found.url;
            video = std::move(found.video);
        } else {
            auto finding = findLocalFile(m_remoteFiles, url);
            url = co_await finding;
            auto opening = openVideo(url, stop);
            video = co_await opening;
        }
        if (!video.displaySize)
            failure = tr("“%1” contains no video track.").arg(displayName(url));
    } catch (const media::Cancelled&) {
        co_return;
    } catch (const std::exception& error) {
        //: %1: the file’s name; %2: the reason, a whole sentence.
        failure = (kept ? tr("Couldn’t reopen “%1”: %2") : tr("Couldn't open “%1”: %2"))
                      .arg(displayName(url), localizedMessage(error));
    }
    const auto self = weak.lock();
    if (!self)
        co_return;
    --self->m_pendingLoads;
    if (!failure.isEmpty()) {
        self->failToLoad(failure, kept);
        co_return;
    }
    self->publish(url, video, kept);
    self->m_strip.request_stop();
    self->m_strip = {};
    self->m_isMakingThumbnails = true;
    self->m_stripDelay.start(kLongestWaitForPicture);
}

QCoro::Task<> EditState::makeFilmstrip() {
    const std::weak_ptr<EditState> weak = weak_from_this();
    const std::stop_token stop = m_strip.get_token();
    auto strip = Thumbnailer::filmstrip(m_video.asset, m_duration, kThumbnailCount, stop);
    const QList<QImage> images = co_await strip;
    const auto self = weak.lock();
    if (!self || stop.stop_requested())
        co_return;
    self->m_thumbnails = images;
    self->m_isMakingThumbnails = false;
}

void EditState::failToLoad(const QString& message, const std::optional<KeptEdit>& kept) {
    m_errorMessage = message;
    if (kept)
        Q_EMIT reopenFailed(kept->id);
}

void EditState::publish(const QUrl& url, const LoadedVideo& video,
                        const std::optional<KeptEdit>& kept) {
    if (videoURL())
        Q_EMIT editEnded();
    m_video = video;
    m_editId = kept ? kept->id : newEditId();
    m_exportedEdit.reset();
    m_videoURL = url;
    m_duration = video.duration;
    m_displaySize = *video.displaySize;
    m_trimStart = 0;
    m_trimEnd = video.duration;
    m_currentTime = 0;
    applyMuted(false);
    m_cropRect = std::nullopt;
    m_rotation = 0;
    m_thumbnails = QList<QImage>();

    media::Player& player = *m_playerController.player();
    player.replaceCurrentItem(std::make_shared<media::PlayerItem>(video.asset));
    player.setMuted(m_isMuted);
    announceTrim();
    if (kept) {
        restore(fitted(kept->edit));
        seek(kept->playhead);
    }
    m_history.begin(edit());
    Q_EMIT editBegan();
}

/// The player prepares frames around the trim ends: dragging them and looping seek there.
void EditState::announceTrim() {
    const auto time = [](double seconds) {
        return media::Time::fromSeconds(seconds, media::kComparisonTimescale);
    };
    m_playerController.player()->setPointsOfInterest({time(m_trimStart), time(m_trimEnd)});
}

void EditState::presentOpenPanel() {
    if (m_filePanels)
        askForMovie();
}

QCoro::Task<> EditState::askForMovie() {
    const std::weak_ptr<EditState> weak = weak_from_this();
    const auto panels = m_filePanels;
    auto panel = panels->openMovie();
    const std::optional<QUrl> url = co_await panel;
    const auto self = weak.lock();
    if (self && url)
        self->load(*url);
}

void EditState::tick(double time) {
    // The first after a load comes with the picture.
    if (m_stripDelay.isActive() && m_stripDelay.intervalAsDuration() > kTimeToPaint)
        m_stripDelay.start(kTimeToPaint);
    m_currentTime = time;
    if (!m_isPlaying || !(time >= m_trimEnd))
        return;
    if (PlaybackSettings::shared().isLoopEnabled()) {
        seekPlayer(m_trimStart);
        return;
    }
    m_playerController.player()->pause();
    seekPlayer(m_trimEnd);
}

void EditState::playedToEnd() {
    if (!PlaybackSettings::shared().isLoopEnabled())
        return;
    seekPlayer(m_trimStart);
    m_playerController.player()->play();
}

void EditState::togglePlayback() {
    m_history.endRun();
    media::Player& player = *m_playerController.player();
    if (m_isPlaying) {
        player.pause();
        return;
    }
    if (m_currentTime >= m_trimEnd - kRestartMargin || m_currentTime < m_trimStart)
        seekPlayer(m_trimStart);
    player.play();
}

void EditState::seek(double to) {
    // NaN fails both comparisons and passes through.
    double time = to <= 0 ? 0 : to;
    if (m_duration < time)
        time = m_duration;
    m_currentTime = time;
    seekPlayer(time);
}

void EditState::seekPlayer(double to) {
    m_playerController.player()->seek(media::Time::fromSeconds(to, media::kComparisonTimescale),
                                      kExactly, kExactly);
}

void EditState::stepFrames(int count) {
    m_history.endRun();
    if (!videoURL())
        return;
    m_playerController.step(count);
    Q_EMIT markerMoved(EditMarker::playhead);
}

void EditState::setTrimStartToPlayhead() {
    m_trimStart = trimRange().clampedStart(m_currentTime);
    record(EditStep::trimStart);
}

void EditState::setTrimEndToPlayhead() {
    m_trimEnd = trimRange().clampedEnd(m_currentTime);
    record(EditStep::trimEnd);
}

double EditState::time(EditMarker marker) const {
    switch (marker) {
    case EditMarker::trimStart:
        return m_trimStart;
    case EditMarker::playhead:
        return m_currentTime;
    case EditMarker::trimEnd:
        return m_trimEnd;
    }
    return 0;
}

double EditState::earliest(EditMarker marker) const {
    return marker == EditMarker::trimEnd ? trimRange().earliestEnd() : 0;
}

double EditState::latest(EditMarker marker) const {
    return marker == EditMarker::trimStart ? trimRange().latestStart() : m_duration;
}

void EditState::moveMarker(EditMarker marker, double to) {
    if (std::isnan(to))
        return;
    switch (marker) {
    case EditMarker::trimStart:
        m_trimStart = trimRange().clampedStart(to);
        record(EditStep::trimStart, runOf(marker));
        break;
    case EditMarker::playhead:
        m_history.endRun();
        break;
    case EditMarker::trimEnd:
        m_trimEnd = trimRange().clampedEnd(to);
        record(EditStep::trimEnd, runOf(marker));
        break;
    }
    if (marker != EditMarker::playhead)
        m_playerController.player()->pause();
    seek(marker == EditMarker::playhead ? to : time(marker));
    Q_EMIT markerMoved(marker);
}

void EditState::stepMarker(EditMarker marker, int frames) {
    if (marker == EditMarker::playhead)
        stepFrames(frames);
    else
        moveMarker(marker, time(marker) + frames * m_video.frameDuration);
}

void EditState::goToRangeEnd(EditMarker end) {
    const auto ticks = [](double seconds) {
        return media::Time::fromSeconds(seconds, media::kComparisonTimescale).ticks();
    };
    const bool isThere = ticks(m_currentTime) == ticks(time(end));
    const double endOfFile = end == EditMarker::trimStart ? 0.0 : m_duration.value();
    moveMarker(EditMarker::playhead, isThere ? endOfFile : time(end));
}

EditState::DragOrigin EditState::dragOrigin(EditMarker marker) {
    return {.marker = marker,
            .video = m_video.asset,
            .trimStart = m_trimStart,
            .trimEnd = m_trimEnd,
            .currentTime = m_currentTime,
            // isPlaying() follows the player a moment later.
            .isPlaying = m_playerController.player()->rate() != 0.0F};
}

void EditState::takeBackDrag(const DragOrigin& origin) {
    if (m_video.asset != origin.video)
        return;
    if (origin.marker != EditMarker::playhead) {
        m_trimStart = origin.trimStart;
        m_trimEnd = origin.trimEnd;
        record(origin.marker == EditMarker::trimStart ? EditStep::trimStart : EditStep::trimEnd);
    }
    seek(origin.currentTime);
    if (origin.isPlaying)
        m_playerController.player()->play();
}

void EditState::toggleCrop() {
    setCropRect(cropRect() ? std::nullopt : std::optional(crop::kInitial));
}

void EditState::moveCrop(const media::Rect& start, media::Point by) {
    m_cropRect = crop::moved(start, by);
    record(EditStep::crop, kCropRun);
}

void EditState::resizeCrop(const media::Rect& start, CropHandle handle, media::Point by) {
    m_cropRect = crop::resized(start, handle, by);
    record(EditStep::crop, runOf(handle));
}

void EditState::rotateLeft() {
    m_rotation = (m_rotation + 270) % 360;
    if (const auto& before = cropRect())
        m_cropRect = crop::turnedLeft(*before);
    record(EditStep::rotate);
}

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
    const auto asset = m_video.asset;
    auto panel = panels->saveMovie(proposalFor(*videoURL(), choice.format, m_video.maxNameBytes));
    const std::optional<QUrl> url = co_await panel;
    const auto self = weak.lock();
    if (self && url && self->m_video.asset == asset)
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
    if (exportForecast() && makeTheSame(request, m_forecastRequest))
        request.expectedBytes = exportForecast()->bytes;
    m_exportTask.emplace();
    const std::stop_token stop = m_exportTask->get_token();
    m_exportProgress = 0.0;
    awaitExport(shared_from_this(), std::move(request), stop);
}

std::optional<ExportRequest> EditState::plannedExport() const {
    if (!videoURL())
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
    if (m_exportTask)
        m_exportTask->request_stop();
}

} // namespace brisklet
