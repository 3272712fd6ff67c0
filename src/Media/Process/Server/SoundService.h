#pragma once

#include "Media/Playback/SoundReader.h"
#include "Media/Process/Server/AssetService.h"
#include "Media/Process/Wire/SharedArea.h"

#include <memory>

namespace media::process {

/// A sound reader for a player of the program.
class SoundService final : public Service {
public:
    explicit SoundService(HelpersAsset& asset) : m_asset(asset) {}

    void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override;

private:
    void open(MessageWriter& answer);
    playback::SoundReader& reader();

    HelpersAsset& m_asset;
    std::unique_ptr<playback::SoundReader> m_reader;
    SharedArea m_area;
};

} // namespace media::process
