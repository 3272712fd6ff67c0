#include "Models/EditState.h"

#include "Media/Error.h"
#include "Models/KeptVideo.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"
#include "Support/Thumbnailer.h"

#include <QRandomGenerator>

#include <chrono>
#include <exception>
#include <utility>

namespace brisklet {

namespace {

constexpr int kThumbnailCount = 12;
/// How long the filmstrip waits for the first picture at most.
constexpr std::chrono::milliseconds kLongestWaitForPicture(1000);

std::uint64_t newEditId() {
    return QRandomGenerator::system()->generate64() | 1;
}

} // namespace

void EditState::load(const QUrl& url) {
    ++m_pendingLoads;
    loadAsset(url, std::nullopt);
}

void EditState::reopen(const KeptEdit& kept) {
    ++m_pendingLoads;
    loadAsset(urlOf(kept.file), kept);
}

QCoro::Task<> EditState::loadAsset(QUrl url, std::optional<KeptEdit> kept) {
    verifyMainThread();
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
            failure = tr("“%1” contains no video track.").arg(shownName(url));
        else if (const auto self = weak.lock())
            // Made before anything of the video before is given up.
            static_cast<void>(self->m_playerController.player());
    } catch (const media::Cancelled&) {
        co_return;
    } catch (const std::exception& error) {
        //: %1: the file’s name; %2: the reason, a whole sentence.
        failure = (kept ? tr("Couldn’t reopen “%1”: %2") : tr("Couldn't open “%1”: %2"))
                      .arg(shownName(url), localizedMessage(error));
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
    QList<QImage> images;
    try {
        images = co_await strip;
    } catch (const media::Error&) {
        // The system starts no more threads; the timeline shows a placeholder.
    }
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

void EditState::presentOpenPanel() {
    if (m_filePanels)
        askForMovie();
}

QCoro::Task<> EditState::askForMovie() {
    verifyMainThread();
    const std::weak_ptr<EditState> weak = weak_from_this();
    const auto panels = m_filePanels;
    auto panel = panels->openMovie();
    const std::optional<QUrl> url = co_await panel;
    const auto self = weak.lock();
    if (self && url)
        self->load(*url);
}

} // namespace brisklet
