#include "Models/LossWatch.h"

#include "Support/MainThread.h"

#include <utility>

namespace brisklet {

LossWatch::LossWatch(std::function<void()> lost) : m_lost(std::move(lost)) {}

LossWatch::~LossWatch() {
    leave();
}

void LossWatch::watch(std::shared_ptr<const media::Asset> asset) {
    verifyMainThread();
    leave();
    m_asset = std::move(asset);
    m_watching = std::make_shared<const std::function<void()>>(m_lost);
    // The loss may have been posted already when another asset is watched.
    m_asset->setLossHandler([weak = std::weak_ptr(m_watching)] {
        postToMainThread([weak] {
            if (const auto lost = weak.lock())
                (*lost)();
        });
    });
}

void LossWatch::leave() {
    if (m_asset)
        m_asset->setLossHandler({});
    m_watching.reset();
}

} // namespace brisklet
