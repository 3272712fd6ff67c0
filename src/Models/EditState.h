#pragma once

#include "Export/ExportRequest.h"
#include "Media/Asset.h"
#include "Media/Geometry.h"
#include "Player/PlayerController.h"
#include "Support/FilePanels.h"
#include "Support/OpenBridge.h"
#include "Support/RemoteFiles.h"

#include <QCoroTask>
#include <QImage>
#include <QList>
#include <QObject>
#include <QProperty>
#include <QUrl>

#include <memory>
#include <optional>
#include <stop_token>

namespace brisklet {

/// The model of one editing window: the open video and its facts, the playhead, the edit, and the
/// progress and failure of an export.
///
///     Empty ──load──▶ Editing ◀──exportTo / end of the export──▶ Exporting
///
/// Main thread only. Owned through std::shared_ptr (std::make_shared) by its window; pending loads
/// hold it weakly, a running export keeps it alive until it ends. Observers hear of a property
/// only when its value really changes.
///
/// Times are seconds from the start of the file. The crop is in fractions of the picture as
/// displayed after rotation, origin top left, y downward. The rotation is clockwise, one of 0, 90,
/// 180 and 270 degrees.
class EditState final : public QObject,
                        public OpenTarget,
                        public std::enable_shared_from_this<EditState> {
    Q_OBJECT

public:
    EditState();
    ~EditState() override;

    /// The open video; none while the window is empty.
    [[nodiscard]] const std::optional<QUrl>& videoURL() const { return m_videoURL.value(); }

    [[nodiscard]] double duration() const { return m_duration; }

    /// Pixels of the picture as the source orients it, before the user's rotation.
    [[nodiscard]] media::Size displaySize() const { return m_displaySize.value(); }

    /// displaySize() as the user sees it, after the rotation. What the crop's fractions refer to.
    [[nodiscard]] media::Size rotatedDisplaySize() const;

    /// The filmstrip, in time order.
    [[nodiscard]] const QList<QImage>& thumbnails() const { return m_thumbnails.value(); }

    [[nodiscard]] double currentTime() const { return m_currentTime; }

    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }

    [[nodiscard]] double trimStart() const { return m_trimStart; }

    [[nodiscard]] double trimEnd() const { return m_trimEnd; }

    [[nodiscard]] bool isMuted() const { return m_isMuted; }

    [[nodiscard]] const std::optional<media::Rect>& cropRect() const { return m_cropRect.value(); }

    [[nodiscard]] int rotation() const { return m_rotation; }

    /// The fraction done, 0 to 1, of the running export; none while none runs.
    [[nodiscard]] std::optional<double> exportProgress() const { return m_exportProgress.value(); }

    /// The one message to show to the user. Whoever has shown it clears it.
    [[nodiscard]] const std::optional<QString>& errorMessage() const {
        return m_errorMessage.value();
    }

    [[nodiscard]] PlayerController& playerController() { return m_playerController; }

    void setTrimStart(double seconds) { m_trimStart = seconds; }

    void setTrimEnd(double seconds) { m_trimEnd = seconds; }

    void setCropRect(const std::optional<media::Rect>& cropRect) { m_cropRect = cropRect; }

    /// Silences the player at once and leaves the sound out of exports.
    void setMuted(bool muted);

    /// For failures that happen around the window; those of loads and exports come by themselves.
    void setErrorMessage(const QString& message) { m_errorMessage = message; }

    void clearErrorMessage() { m_errorMessage = std::nullopt; }

    /// Who asks the user for files; without one the panels do not appear. `panels` must outlive
    /// the questions it is asked.
    void setFilePanels(std::shared_ptr<FilePanels> panels) { m_filePanels = std::move(panels); }

    /// Who finds files that are not on this computer; without one they are refused.
    void setRemoteFiles(std::shared_ptr<RemoteFiles> remoteFiles) {
        m_remoteFiles = std::move(remoteFiles);
    }

    /// Starts loading and returns; a load cannot be cancelled. The old video stays until the new
    /// one is ready; a failure changes nothing but errorMessage().
    void load(const QUrl& url) override;

    /// No video, and no load of one under way.
    [[nodiscard]] bool isEmpty() const override { return !videoURL() && m_openCount == 0; }

    /// Lets the user pick one movie, and loads it.
    void presentOpenPanel();

    /// Plays from the trim start where the playhead stands at the trim end or before the range.
    void togglePlayback();
    /// Moves the playhead, limited to the file, and keeps the play state.
    void seek(double to);
    /// Move one end of the range to the playhead, 0.1 s from the other end at the least, but not
    /// out of the file: one that is shorter stays whole.
    void setTrimStartToPlayhead();
    void setTrimEndToPlayhead();
    /// A quarter turn counter-clockwise; a crop keeps covering the same part of the picture.
    void rotateLeft();

    /// Asks for the output file and exports to it. Nothing happens without a video or while an
    /// export runs.
    void presentExportPanel();
    /// Starts exporting the edit as it is now, with the shared export settings, and returns.
    void exportTo(const QUrl& outputURL);
    /// Stops the running export, if any; exportProgress() is absent when it has stopped.
    void cancelExport();

Q_SIGNALS:
    void videoURLChanged();
    void durationChanged();
    void displaySizeChanged();
    void thumbnailsChanged();
    void currentTimeChanged();
    void isPlayingChanged();
    void trimStartChanged();
    void trimEndChanged();
    void isMutedChanged();
    void cropRectChanged();
    void rotationChanged();
    void exportProgressChanged();
    void errorMessageChanged();
    /// The end of an export that was not cancelled, with the file or with the error message.
    void exportFinished(const QUrl& outputURL);
    void exportFailed(const QString& message);

private:
    struct LoadedVideo;

    QCoro::Task<> loadAsset(QUrl url);
    static QCoro::Task<LoadedVideo> open(const QUrl& url, const std::stop_token& stop);
    void publish(const QUrl& url, const LoadedVideo& video);
    void tick(double time);
    void playedToEnd();
    void seekPlayer(double to);
    void announceTrim();

    QCoro::Task<> askForMovie();
    QCoro::Task<> askForOutput();
    void startExport(const QUrl& outputURL, ExportChoice choice);
    [[nodiscard]] ExportRequest exportRequest(const QUrl& outputURL, ExportChoice choice) const;
    static QCoro::Task<> runExport(std::shared_ptr<EditState> state, ExportRequest request,
                                   std::stop_token stop);
    void exportProgressed(double fraction, const std::stop_token& stop);

    // In the order in which a load publishes them where that matters; commas in a type would split
    // the macro's arguments.
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<QUrl>, m_videoURL,
                               &EditState::videoURLChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, double, m_duration, &EditState::durationChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, media::Size, m_displaySize,
                               &EditState::displaySizeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, QList<QImage>, m_thumbnails,
                               &EditState::thumbnailsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, double, m_currentTime, &EditState::currentTimeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, bool, m_isPlaying, &EditState::isPlayingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, double, m_trimStart, &EditState::trimStartChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, double, m_trimEnd, &EditState::trimEndChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, bool, m_isMuted, &EditState::isMutedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<media::Rect>, m_cropRect,
                               &EditState::cropRectChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, int, m_rotation, &EditState::rotationChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<double>, m_exportProgress,
                               &EditState::exportProgressChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<QString>, m_errorMessage,
                               &EditState::errorMessageChanged)

    /// The open file behind videoURL(), whatever has become of its name.
    std::shared_ptr<const media::Asset> m_asset;
    PlayerController m_playerController;
    std::shared_ptr<FilePanels> m_filePanels;
    std::shared_ptr<RemoteFiles> m_remoteFiles;
    /// Bytes that a name beside the open video may have.
    int m_longestName = 0;
    /// Stops the running export; none while none runs.
    std::optional<std::stop_source> m_exportTask;
    /// Ends the work of pending loads with the object: nobody is left to see its result.
    std::stop_source m_loads;
    /// Ends the making of the filmstrip when another video takes the place of its own.
    std::stop_source m_strip;
    /// Loads that have neither published their video nor failed.
    int m_openCount = 0;
};

} // namespace brisklet
