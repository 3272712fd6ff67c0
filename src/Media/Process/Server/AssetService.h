#pragma once

#include "Media/Process/Server/ServedObject.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Threading/Guarded.h"

#include <memory>

namespace media::process {

/// The asset that a helper has opened: what its other objects work on. Any thread.
using HelpersAsset = Guarded<std::shared_ptr<const OpenedAsset>>;

/// Opens the asset of a helper. The file comes as a descriptor.
class AssetService final : public Service {
public:
    explicit AssetService(HelpersAsset& asset) : m_asset(asset) {}

    void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override;

private:
    HelpersAsset& m_asset;
};

} // namespace media::process
