#include "Models/EditState.h"

#include "Media/Error.h"
#include "Models/ExportJob.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"
#include "Support/PlaybackSettings.h"
#include "Support/Thumbnailer.h"

#include <cmath>
#include <exception>
#include <utility>

namespace brisklet {

namespace {

constexpr int kThumbnailCount = 12;
/// Within this distance of the trim end, playing starts over from the trim start: it would stop
/// again at once. Seconds.
constexpr double kRestartMargin = 0.05;
constexpr media::Time kExactly{0, media::kComparisonTimescale};

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

void EditState::setMuted(bool muted) {
    m_isMuted = muted;
    m_playerController.player()->setMuted(muted);
}

void EditState::load(const QUrl& url) {
    ++m_pendingLoads;
    loadAsset(url);
}

QCoro::Task<> EditState::loadAsset(QUrl url) {
    const std::weak_ptr<EditState> weak = weak_from_this();
    const std::stop_token stop = m_loads.get_token();
    std::stop_token stripStop;
    LoadedVideo video;
    QString failure;
    try {
        auto finding = findLocalFile(m_remoteFiles, url);
        url = co_await finding;
        auto opening = openVideo(url, stop);
        video = co_await opening;
        if (!video.displaySize)
            failure = tr("“%1” contains no video track.").arg(displayName(url));
    } catch (const media::Cancelled&) {
        co_return;
    } catch (const std::exception& error) {
        //: %1: the file’s name; %2: the reason, a whole sentence.
        failure = tr("Couldn't open “%1”: %2").arg(displayName(url), localizedMessage(error));
    }
    {
        const auto self = weak.lock();
        if (!self)
            co_return;
        --self->m_pendingLoads;
        if (!failure.isEmpty()) {
            self->m_errorMessage = failure;
            co_return;
        }
        self->publish(url, video);
        self->m_strip.request_stop();
        self->m_strip = {};
        stripStop = self->m_strip.get_token();
    }
    auto strip = Thumbnailer::filmstrip(video.asset, video.duration, kThumbnailCount, stripStop);
    const QList<QImage> images = co_await strip;
    const auto self = weak.lock();
    if (self && !stripStop.stop_requested())
        self->m_thumbnails = images;
}

void EditState::publish(const QUrl& url, const LoadedVideo& video) {
    m_video = video;
    m_videoURL = url;
    m_duration = video.duration;
    m_displaySize = *video.displaySize;
    m_trimStart = 0;
    m_trimEnd = video.duration;
    m_currentTime = 0;
    setMuted(false);
    m_cropRect = std::nullopt;
    m_rotation = 0;
    m_thumbnails = QList<QImage>();

    media::Player& player = *m_playerController.player();
    player.replaceCurrentItem(std::make_shared<media::PlayerItem>(video.asset));
    player.setMuted(m_isMuted);
    announceTrim();
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
    if (videoURL())
        m_playerController.step(count);
}

void EditState::setTrimStartToPlayhead() {
    m_trimStart = trimRange().clampedStart(m_currentTime);
}

void EditState::setTrimEndToPlayhead() {
    m_trimEnd = trimRange().clampedEnd(m_currentTime);
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
        break;
    case EditMarker::playhead:
        seek(to);
        return;
    case EditMarker::trimEnd:
        m_trimEnd = trimRange().clampedEnd(to);
        break;
    }
    m_playerController.player()->pause();
    seek(time(marker));
}

void EditState::stepMarker(EditMarker marker, int frames) {
    if (marker == EditMarker::playhead)
        stepFrames(frames);
    else
        moveMarker(marker, time(marker) + frames * m_video.frameDuration);
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
    }
    seek(origin.currentTime);
    if (origin.isPlaying)
        m_playerController.player()->play();
}

void EditState::toggleCrop() {
    m_cropRect = cropRect() ? std::nullopt : std::optional(crop::kInitial);
}

void EditState::moveCrop(const media::Rect& start, media::Point by) {
    m_cropRect = crop::moved(start, by);
}

void EditState::resizeCrop(const media::Rect& start, CropHandle handle, media::Point by) {
    m_cropRect = crop::resized(start, handle, by);
}

void EditState::rotateLeft() {
    m_rotation = (m_rotation + 270) % 360;
    if (const auto& before = cropRect())
        m_cropRect = crop::turnedLeft(*before);
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
    m_exportTask.emplace();
    const std::stop_token stop = m_exportTask->get_token();
    m_exportProgress = 0.0;
    awaitExport(shared_from_this(), std::move(request), stop);
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
    state->m_exportProgress = std::nullopt;
    // An observer of exportProgress() may have started the next export already.
    if (!state->m_exportProgress.value())
        state->m_exportTask.reset();
    if (outcome.kind == ExportOutcome::Kind::finished)
        Q_EMIT state->exportFinished(outputURL);
    if (hasFailed)
        Q_EMIT state->exportFailed(outcome.message);
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
