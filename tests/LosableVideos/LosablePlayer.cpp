#include "LosableVideos/LosablePlayer.h"

#include "LosableVideos/LosableAsset.h"

namespace testsupport {

void LosablePlayer::replaceCurrentItem(std::shared_ptr<const media::PlayerItem> item) {
    if (item)
        item = std::make_shared<const media::PlayerItem>(LosableAsset::real(item->asset()));
    m_real->replaceCurrentItem(std::move(item));
}

} // namespace testsupport
