#include "Export/ExportRequest.h"

namespace brisklet {

bool coversPicture(const media::Rect& crop) {
    return crop.insetBy(-kWholePictureMargin, -kWholePictureMargin)
        .contains(media::Rect{0, 0, 1, 1});
}

} // namespace brisklet
