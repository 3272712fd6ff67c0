#pragma once

#include "Media/Asset.h"

#include <functional>
#include <memory>

namespace brisklet {

/// Tells when the process that decodes an asset has ended unexpectedly, of one asset at a time.
/// Main thread. Keeps the asset that it watches.
class LossWatch final {
public:
    /// `lost` is called at a later turn of the event loop, once for each asset that is lost while
    /// it is watched, and not after the destructor has begun. It may end this object.
    explicit LossWatch(std::function<void()> lost);
    LossWatch(const LossWatch&) = delete;
    LossWatch& operator=(const LossWatch&) = delete;
    ~LossWatch();

    /// Watches `asset`, and no longer the one before.
    void watch(std::shared_ptr<const media::Asset> asset);

private:
    void leave();

    std::shared_ptr<const media::Asset> m_asset;
    std::function<void()> m_lost;
    /// A copy of m_lost that lives as long as the current asset is watched.
    std::shared_ptr<const std::function<void()>> m_watching;
};

} // namespace brisklet
