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
    loadAsset({.url = url, .kept = std::nullopt, .lost = nullptr});
}

void EditState::reopen(const KeptEdit& kept) {
    loadAsset({.url = urlOf(kept.file), .kept = kept, .lost = nullptr});
}

void EditState::openAgain() {
    verifyMainThread();
    if (!isVideoLost() || m_isOpeningAgain)
        return;
    m_isOpeningAgain = true;
    withdrawOffer();
    loadAsset({.url = *videoURL(), .kept = editToKeep(), .lost = m_video.asset});
}

QCoro::Task<> EditState::loadAsset(LoadOrder order) {
    verifyMainThread();
    ++m_pendingLoads;
    const std::weak_ptr<EditState> weak = weak_from_this();
    const std::stop_token stop = m_loads.get_token();
    LoadedVideo video;
    QString failure;
    try {
        if (order.kept) {
            auto opening = openKeptVideo(*order.kept, stop);
            KeptVideo found = co_await opening;
            order.url = found.url;
            video = std::move(found.video);
        } else {
            auto finding = findLocalFile(m_remoteFiles, order.url);
            order.url = co_await finding;
            auto opening = openVideo(order.url, stop);
            video = co_await opening;
        }
        if (!video.displaySize)
            failure = tr("“%1” contains no video track.").arg(shownName(order.url));
        else if (const auto self = weak.lock())
            // Made before anything of the video before is given up.
            static_cast<void>(self->m_playerController.player());
    } catch (const media::Cancelled&) {
        co_return;
    } catch (const std::exception& error) {
        //: %1: the file’s name; %2: the reason, a whole sentence.
        failure = (order.kept ? tr("Couldn’t reopen “%1”: %2") : tr("Couldn't open “%1”: %2"))
                      .arg(shownName(order.url), localizedMessage(error));
    }
    if (const auto self = weak.lock())
        self->loaded(order, video, failure);
}

void EditState::loaded(const LoadOrder& order, const LoadedVideo& video, const QString& failure) {
    --m_pendingLoads;
    // Another one may have been loaded in its place.
    if (order.lost && order.lost != m_video.asset)
        return;
    if (!failure.isEmpty()) {
        if (order.lost)
            m_isOpeningAgain = false;
        failToLoad(failure, order.lost ? std::nullopt : order.kept);
        return;
    }
    if (order.lost)
        publishAgain(order.url, video);
    else
        publish(order.url, video, order.kept);
    m_strip.request_stop();
    m_strip = {};
    m_isMakingThumbnails = true;
    m_stripDelay.start(kLongestWaitForPicture);
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
    take(video);
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
    showFirstFrame();
    if (kept) {
        restore(fitted(kept->edit));
        seek(kept->playhead);
    }
    m_history.begin(edit());
    Q_EMIT editBegan();
}

void EditState::publishAgain(const QUrl& url, const LoadedVideo& video) {
    const bool isSame = video.identity == m_video.identity && video.identity != FileIdentity() &&
                        video.duration == m_duration && video.displaySize == m_displaySize.value();
    take(video);
    m_videoURL = url;
    m_duration = video.duration;
    m_displaySize = *video.displaySize;
    showFirstFrame();
    if (!isSame) {
        m_exportedEdit.reset();
        m_thumbnails = QList<QImage>();
        restore(fitted(edit()));
        m_history.begin(edit());
    }
    seek(m_currentTime);
    Q_EMIT editBegan();
    Q_EMIT editChanged();
}

void EditState::take(const LoadedVideo& video) {
    m_video = video;
    m_isOpeningAgain = false;
    m_lossMessage = std::nullopt;
    withdrawOffer();
    m_lossWatch.watch(video.asset);
}

void EditState::showFirstFrame() {
    media::Player& player = *m_playerController.player();
    player.replaceCurrentItem(std::make_shared<media::PlayerItem>(m_video.asset));
    player.setMuted(m_isMuted);
    announceTrim();
}

void EditState::lose() {
    // An observer of what changes may drop the last other reference.
    const auto self = weak_from_this().lock();
    if (!self)
        return;
    //: %1: the file’s name. The decoder is the part of the program that turns the file into
    //: pictures.
    m_lossMessage = tr("“%1” can’t be shown any more: its decoder has stopped unexpectedly. "
                       "The edit is not lost.")
                        .arg(shownName(*videoURL()));
    m_strip.request_stop();
    m_stripDelay.stop();
    m_isMakingThumbnails = false;
    media::Player& player = *m_playerController.player();
    player.pause();
    player.replaceCurrentItem(nullptr);
    offerIfLost();
}

bool EditState::offerIfLost() {
    if (!isVideoLost())
        return false;
    m_isOpenAgainOffered = !m_isOpeningAgain;
    return true;
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
