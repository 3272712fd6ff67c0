#pragma once

#include "Media/Asset.h"
#include "Media/Geometry.h"
#include "Models/FileIdentity.h"
#include "Models/FrameNumbers.h"

#include <QCoroTask>
#include <QUrl>

#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>

namespace brisklet {

/// An opened file, and the facts about it that an edit needs.
struct LoadedVideo {
    /// The open file, which may be renamed or deleted meanwhile.
    std::shared_ptr<const media::Asset> asset;
    /// Seconds.
    double duration = 0;
    /// Pixels of the picture as the source orients it; none if the file has no video track.
    std::optional<media::Size> displaySize;
    /// Seconds, by the nominal frame rate; 1/30 if the file states none.
    double frameDuration = 1.0 / 30;
    FrameNumbers frameNumbers;
    /// The longest name, in bytes, that a file beside this one may have.
    int maxNameBytes = 0;
    /// All zero where another file took the name while this one was being opened.
    FileIdentity identity;
};

/// Opens a file. Blocks. Throws media::Error with a sentence for the user; media::Cancelled after a
/// stop request.
LoadedVideo loadVideo(const std::filesystem::path& path, const std::stop_token& stop);

/// Begins to open a local file on a worker thread, for the openVideo() that will follow: the
/// program does so while it still makes its first window. One file at a time. Main thread.
void openVideoAhead(const QUrl& url);

/// Opens a file on a worker thread and resumes the caller on its own. Throws as loadVideo(), and
/// std::runtime_error if the URL names no file of this computer.
QCoro::Task<LoadedVideo> openVideo(const QUrl& url, const std::stop_token& stop);

} // namespace brisklet
