#include "Media/Playback/PlayableAsset.h"

#include "Media/Threading/Verify.h"

namespace media::playback {

std::shared_ptr<const PlayableAsset> PlayableAsset::of(const std::shared_ptr<const Asset>& asset) {
    auto playable = std::dynamic_pointer_cast<const PlayableAsset>(asset);
    verify(playable != nullptr, "the asset can be played");
    return playable;
}

} // namespace media::playback
