#pragma once

#include "Media/Asset.h"

#include <QCoroTask>
#include <QImage>
#include <QList>

#include <memory>
#include <stop_token>

/// Makes the filmstrip of a video: a few small stills, evenly spaced over its whole length.
namespace brisklet::Thumbnailer {

/// `count` upright images, at most 120 pixels high, from the middles of `count` equal slices of
/// `duration` (seconds), in time order. Each may show a frame up to half a second away. Images that
/// cannot be made are left out; never throws. Works on a worker thread and resumes the caller on
/// its own; a stop request ends it early, without images. Strips are made one at a
/// time, the newest request first.
QCoro::Task<QList<QImage>> filmstrip(const std::shared_ptr<const media::Asset>& asset,
                                     double duration, int count, const std::stop_token& stop = {});

/// The same, blocking, on the calling thread.
QList<QImage> makeFilmstrip(const std::shared_ptr<const media::Asset>& asset, double duration,
                            int count, const std::stop_token& stop = {});

} // namespace brisklet::Thumbnailer
