#include "Media/Asset.h"

namespace media {

Size orientedSize(const AssetTrack& track) {
    const Rect frame{0, 0, track.naturalSize.width, track.naturalSize.height};
    return track.preferredTransform.apply(frame).size();
}

} // namespace media
