#include "Export/ExportRequest.h"

#include <tuple>

namespace brisklet {

bool coversPicture(const media::Rect& crop) {
    return crop.insetBy(-kWholePictureMargin, -kWholePictureMargin)
        .contains(media::Rect{0, 0, 1, 1});
}

bool makeTheSame(const ExportRequest& one, const ExportRequest& other) {
    const auto facts = [](const ExportRequest& request) {
        return std::tie(request.asset, request.sourceURL, request.startTime, request.endTime,
                        request.muted, request.cropRect, request.rotation, request.format,
                        request.maxShortEdge);
    };
    return facts(one) == facts(other);
}

} // namespace brisklet
