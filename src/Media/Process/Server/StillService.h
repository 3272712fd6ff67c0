#pragma once

#include "Media/ImageGenerator.h"
#include "Media/Process/Server/AssetService.h"
#include "Media/Process/Wire/SharedArea.h"

#include <memory>
#include <vector>

namespace media::process {

/// An image generator for the program.
class StillService final : public Service {
public:
    explicit StillService(HelpersAsset& asset) : m_asset(asset) {}

    void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override;

private:
    ImageGenerator& generatorFor(MessageReader& arguments);
    void makeImages(MessageReader& arguments, const Report& report, const std::stop_token& stop);
    void take(std::uint32_t index, MessageWriter& answer);

    HelpersAsset& m_asset;
    std::unique_ptr<ImageGenerator> m_generator;
    /// Made, to be taken one by one.
    std::vector<Still> m_stills;
    SharedArea m_area;
};

} // namespace media::process
