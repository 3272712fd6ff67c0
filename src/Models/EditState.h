#pragma once

#include "Export/ExportRequest.h"
#include "Export/ExportSettings.h"
#include "Media/ExportForecast.h"
#include "Media/Geometry.h"
#include "Models/CropRules.h"
#include "Models/EditHistory.h"
#include "Models/EditMarker.h"
#include "Models/KeptEdit.h"
#include "Models/LoadedVideo.h"
#include "Models/LossWatch.h"
#include "Models/TrimRange.h"
#include "Player/PlayerController.h"
#include "Support/FilePanels.h"
#include "Support/OpenBridge.h"
#include "Support/RemoteFiles.h"

#include <QCoroTask>
#include <QImage>
#include <QList>
#include <QObject>
#include <QProperty>
#include <QTimer>
#include <QUrl>

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>

namespace brisklet {

/// The model of one editing window: the open video and its facts, the playhead, the edit, and the
/// progress and failure of an export. All rules of editing are here: views and commands show the
/// properties and call the operations.
///
///     Empty ──load──▶ Editing ◀──exportTo / end of the export──▶ Exporting
///                      │   ▲
///        decoder stops ▼   │ openAgain
///                       Lost
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

    /// Whether the filmstrip is being made.
    [[nodiscard]] bool isMakingThumbnails() const { return m_isMakingThumbnails; }

    [[nodiscard]] double currentTime() const { return m_currentTime; }

    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }

    [[nodiscard]] double trimStart() const { return m_trimStart; }

    [[nodiscard]] double trimEnd() const { return m_trimEnd; }

    [[nodiscard]] bool isMuted() const { return m_isMuted; }

    [[nodiscard]] const std::optional<media::Rect>& cropRect() const { return m_cropRect.value(); }

    [[nodiscard]] int rotation() const { return m_rotation; }

    /// The fraction done, 0 to 1, of the running export; none while none runs.
    [[nodiscard]] std::optional<double> exportProgress() const { return m_exportProgress.value(); }

    /// The request that an export would make now, without an output; none without a video, or while
    /// it is lost.
    [[nodiscard]] std::optional<ExportRequest> plannedExport() const;

    /// The estimated size and duration of an export of the edit as it is now, if known.
    [[nodiscard]] const std::optional<media::ExportForecast>& exportForecast() const {
        return m_exportForecast.value();
    }

    /// `request` is the one that the forecast is for.
    void setExportForecast(const ExportRequest& request, const media::ExportForecast& forecast);

    void clearExportForecast() {
        m_exportForecast = std::nullopt;
        m_forecastRequest = {};
    }

    /// The file that the latest successful export of this window has written; none before.
    [[nodiscard]] const std::optional<QUrl>& lastExport() const { return m_lastExport.value(); }

    /// The one message to show to the user. Whoever has shown it clears it.
    [[nodiscard]] const std::optional<QString>& errorMessage() const {
        return m_errorMessage.value();
    }

    /// Set while the video is lost, since the process that decoded it has ended unexpectedly: what
    /// to tell the user. The edit and the playhead stay, can be changed and are kept. What needs
    /// pictures (playing, single steps, a new export) offers to open the video again instead.
    [[nodiscard]] const std::optional<QString>& lossMessage() const {
        return m_lossMessage.value();
    }

    [[nodiscard]] bool isVideoLost() const { return lossMessage().has_value(); }

    /// Whether to show lossMessage() and ask the user whether to open the video again. Whoever has
    /// asked calls openAgain() or withdrawOffer().
    [[nodiscard]] bool isOpenAgainOffered() const { return m_isOpenAgainOffered; }

    void withdrawOffer() { m_isOpenAgainOffered = false; }

    /// Whether openAgain() is at work.
    [[nodiscard]] bool isOpeningAgain() const { return m_isOpeningAgain; }

    /// For the views that show the player and for observers of it. What changes the player goes
    /// through the operations below.
    [[nodiscard]] PlayerController& playerController() { return m_playerController; }

    /// The steps to undo and redo. Each operation that changes the edit records one.
    [[nodiscard]] EditHistory& history() { return m_history; }

    [[nodiscard]] Edit edit() const;

    /// The edit and its video, if it is worth keeping: something was edited, and not exported since
    /// as it is now.
    [[nodiscard]] std::optional<KeptEdit> unfinishedEdit() const;

    /// KeptEdit::id of the edit; 0 while the window is empty.
    [[nodiscard]] std::uint64_t editId() const { return m_editId; }

    /// These three store any value unchecked; the operations below keep to the rules.
    void setTrimStart(double seconds);
    void setTrimEnd(double seconds);
    void setCropRect(const std::optional<media::Rect>& cropRect);

    /// Mutes the player at once, and leaves the sound out of exports.
    void setMuted(bool muted);

    /// For failures other than those of loading and exporting, which set the message themselves.
    void setErrorMessage(const QString& message) { m_errorMessage = message; }

    void clearErrorMessage() { m_errorMessage = std::nullopt; }

    /// The panels that ask the user for files; without them none appears. They must work for as
    /// long as one of them is open.
    void setFilePanels(std::shared_ptr<FilePanels> panels) { m_filePanels = std::move(panels); }

    /// What finds files that are not on this computer; without it they are refused.
    void setRemoteFiles(std::shared_ptr<RemoteFiles> remoteFiles) {
        m_remoteFiles = std::move(remoteFiles);
    }

    /// Starts loading and returns; a load cannot be cancelled. The old video stays until the new
    /// one is ready; a failure changes nothing but errorMessage().
    void load(const QUrl& url) override;

    /// Loads the video of a kept edit, wherever it is now, and goes on with the edit: as load(),
    /// but that the edit is the kept one, as far as the file allows it.
    void reopen(const KeptEdit& kept);

    /// Loads a lost video again, wherever its file is now, and goes on with the edit at the same
    /// playhead. The steps to undo stay if the file is the same. A failure, also one to find the
    /// file, sets errorMessage(), and the video stays lost. Does nothing if the video is not lost,
    /// or is being opened again already.
    void openAgain();

    /// Whether there is no video and none is being loaded.
    [[nodiscard]] bool isEmpty() const override { return !videoURL() && m_pendingLoads == 0; }

    /// Lets the user choose one movie, and loads it.
    void presentOpenPanel();

    /// Pauses, or plays: from the trim start if the playhead is at the trim end or before the
    /// range.
    void togglePlayback();
    /// Moves the playhead, limited to the file, and keeps the play state.
    void seek(double to);
    /// Pauses and moves the playhead by `count` frames of the video (negative: backward). Does
    /// nothing without a video.
    void stepFrames(int count);

    /// Moves that end of the range to the playhead, within the limits of TrimRange.
    void setTrimStartToPlayhead();
    void setTrimEndToPlayhead();

    /// Where a marker is, and how far moveMarker() can move it; seconds.
    [[nodiscard]] double time(EditMarker marker) const;
    [[nodiscard]] double earliest(EditMarker marker) const;
    [[nodiscard]] double latest(EditMarker marker) const;
    /// Moves a marker as near to `to` as its limits allow; NaN changes nothing. The playhead keeps
    /// the play state. An end of the range pauses, and takes the playhead along, so that the frame
    /// at that end is shown.
    void moveMarker(EditMarker marker, double to);
    /// The same by frames (negative: backward). The playhead steps exactly; an end of the range
    /// moves by the nominal duration of a frame.
    void stepMarker(EditMarker marker, int frames);
    /// Moves the playhead to that end of the range or, where it is there already, of the file.
    void goToRangeEnd(EditMarker end);

    /// The numbers of the open video's frames.
    [[nodiscard]] const FrameNumbers& frameNumbers() const { return m_video.frameNumbers; }

    /// What the drag of a marker can change, as it was before the drag.
    struct DragOrigin {
        EditMarker marker = EditMarker::playhead;
        std::shared_ptr<const media::Asset> video;
        double trimStart = 0;
        double trimEnd = 0;
        double currentTime = 0;
        bool isPlaying = false;
    };

    [[nodiscard]] DragOrigin dragOrigin(EditMarker marker);
    /// Takes the drag back: restores the playhead and the play state and, where an end of the range
    /// was dragged, the range. Does nothing if another video has been loaded meanwhile.
    void takeBackDrag(const DragOrigin& origin);

    /// Removes the crop, or sets crop::kInitial where there is none.
    void toggleCrop();
    /// Set the crop to `start` moved or resized by fractions of the picture, within the limits of
    /// crop::moved() and crop::resized(). A drag passes the crop that it began with each time.
    void moveCrop(const media::Rect& start, media::Point by);
    void resizeCrop(const media::Rect& start, CropHandle handle, media::Point by);
    /// A quarter turn counter-clockwise; a crop keeps covering the same part of the picture.
    void rotateLeft();

    /// Asks for the output file and exports to it in the format and size that the shared settings
    /// have now. Does nothing without a video or while an export runs.
    void presentExportPanel();
    /// Starts exporting the edit as it is now, with the shared export settings, and returns. Does
    /// nothing without a video or while an export runs.
    void exportTo(const QUrl& outputURL);
    /// Stops the running export, if any; exportProgress() is absent once it has stopped.
    void cancelExport();

Q_SIGNALS:
    void videoURLChanged();
    void durationChanged();
    void displaySizeChanged();
    void thumbnailsChanged();
    void isMakingThumbnailsChanged();
    void currentTimeChanged();
    void isPlayingChanged();
    void trimStartChanged();
    void trimEndChanged();
    void isMutedChanged();
    void cropRectChanged();
    void rotationChanged();
    void exportProgressChanged();
    void exportForecastChanged();
    void lastExportChanged();
    void errorMessageChanged();
    void lossMessageChanged();
    void isOpenAgainOfferedChanged();
    void isOpeningAgainChanged();
    /// Another video is about to take the place of this one; all properties are still its own.
    void editEnded();
    /// A video has been loaded, with all that is published of it but the filmstrip.
    void editBegan();
    /// edit() or what unfinishedEdit() gives may have changed, other than the playhead.
    void editChanged();
    /// The video of a kept edit was not found or can't be opened; errorMessage() says so.
    void reopenFailed(std::uint64_t editId);
    /// moveMarker() or a step has moved a marker, or tried to.
    void markerMoved(brisklet::EditMarker marker);
    /// An export that was not cancelled has ended, with the file or with the error message.
    void exportFinished(const QUrl& outputURL);
    void exportFailed(const QString& message);

private:
    /// What to load, and what for.
    struct LoadOrder {
        QUrl url;
        /// Instead of the URL: the edit whose video to look for.
        std::optional<KeptEdit> kept;
        /// The video whose place it takes, if it goes on with the edit of that one.
        std::shared_ptr<const media::Asset> lost;
    };

    QCoro::Task<> loadAsset(LoadOrder order);
    void loaded(const LoadOrder& order, const LoadedVideo& video, const QString& failure);
    void failToLoad(const QString& message, const std::optional<KeptEdit>& kept);
    void publish(const QUrl& url, const LoadedVideo& video, const std::optional<KeptEdit>& kept);
    void publishAgain(const QUrl& url, const LoadedVideo& video);
    /// Makes it the one that is edited.
    void take(const LoadedVideo& video);
    /// Hands it to the player.
    void showFirstFrame();
    void lose();
    /// Whether the video is lost; if so, offers to open it again.
    bool offerIfLost();
    [[nodiscard]] KeptEdit editToKeep() const;
    void record(EditStep step, int run = EditHistory::kNoRun);
    void restore(const Edit& edit);
    void applyMuted(bool muted);
    /// The nearest to it that this video allows.
    [[nodiscard]] Edit fitted(const Edit& edit) const;
    QCoro::Task<> makeFilmstrip();
    void tick(double time);
    void playedToEnd();
    void seekPlayer(double to);
    void announceTrim();

    [[nodiscard]] TrimRange trimRange() const { return {m_duration, m_trimStart, m_trimEnd}; }

    QCoro::Task<> askForMovie();
    QCoro::Task<> askForOutput();
    void startExport(const QUrl& outputURL, ExportChoice choice);
    [[nodiscard]] ExportRequest exportRequest(const QUrl& outputURL, ExportChoice choice) const;
    static QCoro::Task<> awaitExport(std::shared_ptr<EditState> state, ExportRequest request,
                                     std::stop_token stop);
    void noteExported(std::uint64_t editId, const Edit& exported);
    void exportProgressed(double fraction, const std::stop_token& stop);

    // In the order in which a load publishes them where that matters. A comma in a type would split
    // the macro's arguments.
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<QUrl>, m_videoURL,
                               &EditState::videoURLChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, double, m_duration, &EditState::durationChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, media::Size, m_displaySize,
                               &EditState::displaySizeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, QList<QImage>, m_thumbnails,
                               &EditState::thumbnailsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, bool, m_isMakingThumbnails,
                               &EditState::isMakingThumbnailsChanged)
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
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<media::ExportForecast>, m_exportForecast,
                               &EditState::exportForecastChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<QUrl>, m_lastExport,
                               &EditState::lastExportChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<QString>, m_errorMessage,
                               &EditState::errorMessageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, std::optional<QString>, m_lossMessage,
                               &EditState::lossMessageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, bool, m_isOpenAgainOffered,
                               &EditState::isOpenAgainOfferedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(EditState, bool, m_isOpeningAgain, &EditState::isOpeningAgainChanged)

    EditHistory m_history{[this](const Edit& edit) { restore(edit); }};
    std::uint64_t m_editId = 0;
    /// The edit that was exported last.
    std::optional<Edit> m_exportedEdit;
    /// What exportForecast() is for.
    ExportRequest m_forecastRequest;
    /// What videoURL() was opened as.
    LoadedVideo m_video;
    LossWatch m_lossWatch{[this] { lose(); }};
    PlayerController m_playerController;
    std::shared_ptr<FilePanels> m_filePanels;
    std::shared_ptr<RemoteFiles> m_remoteFiles;
    /// Stops the running export; none while none runs.
    std::optional<std::stop_source> m_exportTask;
    /// Stops pending loads when this object is destroyed.
    std::stop_source m_loads;
    /// Stops the making of the filmstrip when another video is loaded.
    std::stop_source m_strip;
    /// Begins it once the picture is on show.
    QTimer m_stripDelay;
    /// How many loads have neither published their video nor failed.
    int m_pendingLoads = 0;
};

} // namespace brisklet
