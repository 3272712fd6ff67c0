#include "LosableVideos/LosableAsset.h"

#include "Media/Error.h"

#include <utility>

namespace testsupport {

LosableAsset::LosableAsset(std::shared_ptr<const media::Asset> real) : m_real(std::move(real)) {}

void LosableAsset::setLossHandler(std::function<void()> handler) const {
    const std::lock_guard lock(m_mutex);
    m_handler = std::move(handler);
    if (m_isLost && m_handler)
        m_handler();
}

void LosableAsset::lose() const {
    const std::lock_guard lock(m_mutex);
    if (!std::exchange(m_isLost, true) && m_handler)
        m_handler();
}

std::shared_ptr<const media::Asset>
LosableAsset::real(const std::shared_ptr<const media::Asset>& asset) {
    const auto losable = std::dynamic_pointer_cast<const LosableAsset>(asset);
    return losable ? losable->m_real : asset;
}

std::shared_ptr<const media::Asset>
LosableAsset::present(const std::shared_ptr<const media::Asset>& asset) {
    if (const auto losable = std::dynamic_pointer_cast<const LosableAsset>(asset)) {
        const std::lock_guard lock(losable->m_mutex);
        if (losable->m_isLost)
            throw media::Error(media::ErrorKind::decoderStopped);
    }
    return real(asset);
}

} // namespace testsupport
