#pragma once

#include "Models/KeptEdit.h"
#include "Models/LoadedVideo.h"

#include <QCoroTask>
#include <QUrl>

#include <stop_token>

namespace brisklet {

/// The video of a kept edit, where it is now.
struct KeptVideo {
    QUrl url;
    LoadedVideo video;
};

/// Opens the video of a kept edit. That is the file with the same device, inode and size, under its
/// name or another one in its folder; else one that agrees in its duration and in its name, in
/// device and inode, or in its size. Works on a worker thread and resumes the caller on its own.
/// Throws std::runtime_error with a sentence for the user; media::Cancelled after a stop request.
QCoro::Task<KeptVideo> openKeptVideo(const KeptEdit& kept, const std::stop_token& stop);

} // namespace brisklet
