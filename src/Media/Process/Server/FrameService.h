#pragma once

#include "Media/Playback/FrameSource.h"
#include "Media/Process/Server/AssetService.h"
#include "Media/Process/Wire/SharedArea.h"

#include <deque>
#include <memory>

namespace media::process {

/// A frame source for a player of the program. Each answer begins with where the source stands and
/// the next of the frames that it has made.
class FrameService final : public Service {
public:
    explicit FrameService(HelpersAsset& asset) : m_asset(asset) {}

    void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override;
    void writePreamble(MessageWriter& answer) override;

private:
    void open(MessageWriter& answer);
    playback::FrameSource& source();

    HelpersAsset& m_asset;
    std::unique_ptr<playback::FrameSource> m_source;
    /// Made, but not sent yet.
    std::deque<playback::CachedFrame> m_frames;
    bool m_hasPassing = false;
    SharedArea m_area;
};

} // namespace media::process
