#pragma once

#include "Media/Asset.h"
#include "Media/Player.h"

#include <memory>
#include <mutex>

namespace testsupport {

/// A real asset that can be lost. Any thread.
class LosableAsset final : public media::Asset {
public:
    explicit LosableAsset(std::shared_ptr<const media::Asset> real);

    [[nodiscard]] const std::filesystem::path& path() const override { return m_real->path(); }

    [[nodiscard]] media::Time duration() const override { return m_real->duration(); }

    [[nodiscard]] std::vector<media::AssetTrack> tracks(media::MediaType type) const override {
        return m_real->tracks(type);
    }

    void setLossHandler(std::function<void()> handler) const override;

    void lose() const;

    /// The real asset of one that is losable; any other as it is.
    static std::shared_ptr<const media::Asset>
    real(const std::shared_ptr<const media::Asset>& asset);

    /// The same, but that it throws Error if the asset is lost.
    static std::shared_ptr<const media::Asset>
    present(const std::shared_ptr<const media::Asset>& asset);

private:
    std::shared_ptr<const media::Asset> m_real;
    /// Also held while the handler is called.
    mutable std::mutex m_mutex;
    mutable std::function<void()> m_handler;
    mutable bool m_isLost = false;
};

} // namespace testsupport
