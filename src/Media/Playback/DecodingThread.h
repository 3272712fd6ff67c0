#pragma once

#include "Media/Playback/DecodeWork.h"
#include "Media/Playback/DecoderBudget.h"
#include "Media/Playback/DecodingPace.h"
#include "Media/Playback/FrameSource.h"
#include "Media/Playback/SharedPlayback.h"

#include <cstdint>
#include <memory>
#include <stop_token>

namespace media::playback {

/// Decodes what a player shows into its cache, one frame at a time: asks the state after each what
/// is most urgent. Lives on one thread of its own, which owns the decoder.
class DecodingThread {
public:
    explicit DecodingThread(SharedPlayback& shared);

    void run(const std::stop_token& stop);

private:
    [[nodiscard]] DecoderStatus status();
    void account();
    void perform(const DecodeWork& work);
    void open(const DecodeWork& work);
    bool hasSource(const DecodeWork& work);
    void seek(const DecodeWork& work);
    void seekNear(const DecodeWork& work);
    void setOut(const DecodeWork& work);
    void showProgress(const DecodeWork& work);
    void decodeAhead(const DecodeWork& work);
    void showLateFrame(const DecodeWork& work);
    void queue(const DecodeWork& work, const CachedFrame& frame);
    void advance(const DecodeWork& work);
    void fail(const DecodeWork& work);

    SharedPlayback& m_shared;
    DecoderBudget m_budget;
    std::shared_ptr<const PlayerItem> m_item;
    /// null where there is no picture, or none that can be decoded.
    std::unique_ptr<FrameSource> m_source;
    /// Frames that the source gave out since the state was told of them.
    std::uint64_t m_decodedCount = 0;
    DecodingPace m_pace;
    /// The seek that it is on its way for.
    std::uint64_t m_paceOf = 0;
};

} // namespace media::playback
