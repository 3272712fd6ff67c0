#pragma once

#include "Media/Image.h"

#include <QImage>

namespace brisklet {

/// The same pixels as a QImage, shared and not copied; a null image for null. Any thread.
QImage toQImage(media::ImagePtr image);

} // namespace brisklet
