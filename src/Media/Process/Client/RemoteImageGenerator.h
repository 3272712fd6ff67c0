#pragma once

#include "Media/ImageGenerator.h"
#include "Media/Process/Client/RemoteObject.h"
#include "Media/Process/Wire/SharedArea.h"

#include <memory>

namespace media::process {

/// An image generator that works in the helper of its asset.
class RemoteImageGenerator final : public ImageGenerator {
public:
    /// Throws Error if the asset has no video track, or if its helper is gone.
    explicit RemoteImageGenerator(std::shared_ptr<const Asset> asset);

    void setMaximumSize(int width, int height) override;
    void setTolerance(Time before, Time after) override;
    [[nodiscard]] TimedImage image(Time time, std::stop_token stop = {}) override;
    [[nodiscard]] std::vector<Still> images(const std::vector<Time>& times,
                                            const std::function<void()>& onStill,
                                            std::stop_token stop = {}) override;

private:
    [[nodiscard]] MessageWriter settings() const;
    [[nodiscard]] Still take(std::size_t index);
    [[nodiscard]] TimedImage getPicture(MessageReader& answer);

    std::shared_ptr<const Asset> m_asset;
    int m_maximumWidth = 0;
    int m_maximumHeight = 0;
    Time m_before{0, kComparisonTimescale};
    Time m_after{0, kComparisonTimescale};
    RemoteObject m_remote;
    SharedArea m_area;
};

} // namespace media::process
