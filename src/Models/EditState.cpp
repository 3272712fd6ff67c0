#include "Models/EditState.h"

#include "Media/Error.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "Support/PlaybackSettings.h"
#include "Support/Thumbnailer.h"
#include "Support/Workers.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace brisklet {

namespace {

constexpr int kThumbnailCount = 12;
/// The shortest range that setting an end to the playhead can make, seconds.
constexpr double kMinimumRange = 0.1;
/// A playhead parked on the trim end starts over instead of stopping again at once; seconds.
constexpr double kRestartMargin = 0.05;
constexpr media::Time kExactly{0, media::kComparisonTimescale};

QString quoted(const QString& name) {
    return u'\u201C' + name + u'\u201D';
}

} // namespace

/// What loading finds out about a file, on a worker thread.
struct EditState::LoadedVideo {
    std::shared_ptr<const media::Asset> asset;
    double duration = 0;
    /// None when the file has no video track.
    std::optional<media::Size> displaySize;
    /// Bytes of a name in its folder.
    int longestName = 0;
};

EditState::EditState() {
    // The callbacks end with the controller, so before the model; each keeps the model alive while
    // it runs, since an observer of what it changes may be the one who lets go of it.
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
    Q_ASSERT(isMainThread());
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
    ++m_openCount;
    loadAsset(url);
}

QCoro::Task<EditState::LoadedVideo> EditState::open(const QUrl& url, const std::stop_token& stop) {
    return runOnWorker([path = pathOf(url), stop] {
        LoadedVideo loaded;
        loaded.asset = media::Asset::open(path, stop);
        loaded.duration = loaded.asset->duration().seconds();
        const auto tracks = loaded.asset->tracks(media::MediaType::video);
        if (!tracks.empty())
            loaded.displaySize = media::orientedSize(tracks.front());
        loaded.longestName = maxNameBytesIn(path.parent_path());
        return loaded;
    });
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
        auto opening = open(url, stop);
        video = co_await opening;
        if (!video.displaySize)
            failure = quoted(displayName(url)) + QStringLiteral(" contains no video track.");
    } catch (const media::Cancelled&) {
        co_return;
    } catch (const std::exception& error) {
        failure = QStringLiteral("Couldn't open ") + quoted(displayName(url)) +
                  QStringLiteral(": ") + QString::fromUtf8(error.what());
    }
    {
        const auto self = weak.lock();
        if (!self)
            co_return;
        --self->m_openCount;
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
    m_asset = video.asset;
    m_longestName = video.longestName;
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

/// The ends of the trim are where the playhead goes next: by dragging them, by looping.
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
    // Written so that NaN passes through: it fails both comparisons.
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

void EditState::setTrimStartToPlayhead() {
    double latest = m_trimEnd - kMinimumRange;
    // A video may be shorter than the shortest range.
    if (m_duration > 0)
        latest = std::max(latest, 0.0);
    // std::max gives its first argument where the second is NaN.
    m_trimStart = std::min(std::max(0.0, m_currentTime.value()), latest);
}

void EditState::setTrimEndToPlayhead() {
    double earliest = m_trimStart + kMinimumRange;
    if (m_duration > 0)
        earliest = std::min(earliest, m_duration.value());
    m_trimEnd = std::max(std::min(m_currentTime.value(), m_duration.value()), earliest);
}

void EditState::rotateLeft() {
    m_rotation = (m_rotation + 270) % 360;
    if (const auto& crop = cropRect()) {
        m_cropRect = media::Rect{crop->minY(), 1 - crop->maxX(), crop->height, crop->width};
    }
}

} // namespace brisklet
