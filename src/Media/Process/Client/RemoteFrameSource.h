#pragma once

#include "Media/Playback/FrameSource.h"
#include "Media/Process/Client/RemoteObject.h"
#include "Media/Process/Wire/Protocol.h"
#include "Media/Process/Wire/SharedArea.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace media::process {

/// A frame source that a helper has. Every function that moves it waits for the helper.
class RemoteFrameSource final : public playback::FrameSource {
public:
    /// `abandon` ends the helper. Throws Error if the helper cannot decode the pictures.
    RemoteFrameSource(Descriptor socket, Keep keep, RemoteObject::Abandon abandon);

    [[nodiscard]] playback::DecodingPace::Way wayTo(Ticks ticks) override;
    [[nodiscard]] Goal goalNearEnd(TickRange range) override;
    Outcome advance(const Goal& goal, playback::PreviewSize size,
                    const std::stop_token& stop) override;
    std::optional<Ticks> advanceNear(Ticks earliest, Ticks latest, playback::PreviewSize size,
                                     const std::stop_token& stop) override;

    [[nodiscard]] Ticks arrivedEnd() const override { return m_state.arrivedEnd; }

    [[nodiscard]] Ticks position() const override { return m_state.position; }

    [[nodiscard]] Ticks passingTicks() const override { return m_state.passingTicks; }

    [[nodiscard]] std::shared_ptr<const playback::CachedFrame>
    passing(playback::PreviewSize size) override;
    void keepOnePassed(playback::PreviewSize size) override;

    [[nodiscard]] bool hasPassed() const override { return m_state.hasPassed; }

    void releaseDecoder() override;

    [[nodiscard]] std::uint64_t takeDecodedCount() override {
        return std::exchange(m_state.decodedCount, 0);
    }

    [[nodiscard]] std::size_t decoderBytes() const override { return m_state.decoderBytes; }

private:
    /// Where the helper's source stood when it last answered.
    struct State {
        Ticks arrivedEnd;
        Ticks position = Ticks::beginning();
        Ticks passingTicks;
        bool hasPassed = false;
        std::uint64_t decodedCount = 0;
        std::size_t decoderBytes = 0;
    };

    template<typename Read>
    auto call(FrameOperation operation, MessageWriter arguments, const std::stop_token& stop,
              Read read);
    template<typename Read>
    auto callShort(FrameOperation operation, MessageWriter arguments, Read read);
    void readPreamble(MessageReader& reader);
    void keepFrames();

    Keep m_keep;
    State m_state;
    SharedArea m_area;
    /// Came with the last answer.
    std::optional<playback::CachedFrame> m_frame;
    /// How many more the helper has.
    std::uint32_t m_waitingFrames = 0;
    RemoteObject m_remote;
};

} // namespace media::process
