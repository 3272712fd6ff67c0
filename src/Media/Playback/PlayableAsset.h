#pragma once

#include "Media/Asset.h"
#include "Media/Playback/FrameSource.h"
#include "Media/Playback/SoundReader.h"

#include <memory>

namespace media::playback {

/// What a player needs of an asset beyond the facts about it: its pictures and its sound. Any
/// thread.
class PlayableAsset : public Asset {
public:
    /// The asset as one that can be played. All assets are; with null or one of another kind the
    /// program aborts.
    static std::shared_ptr<const PlayableAsset> of(const std::shared_ptr<const Asset>& asset);

    /// The pictures of the first video track; null if there is none. Throws Error if they cannot be
    /// decoded.
    [[nodiscard]] virtual std::unique_ptr<FrameSource>
    makeFrameSource(FrameSource::Keep keep) const = 0;

    /// Nobody waits any more for what is being decoded, which does not end although it was asked
    /// to: ends it, if that can be done. The asset is of no use after that.
    virtual void abandon() const = 0;

    /// The sound of the first audio track that can be decoded; null if there is none. Throws Error.
    [[nodiscard]] virtual std::unique_ptr<SoundReader> makeSoundReader() const = 0;
};

} // namespace media::playback
