#pragma once

#include "Media/Playback/SoundReader.h"
#include "Media/Process/Client/RemoteObject.h"
#include "Media/Process/Wire/SharedArea.h"

#include <memory>

namespace media::process {

/// A sound reader that a helper has. Every call waits for the helper.
class RemoteSoundReader final : public playback::SoundReader {
public:
    /// Null if none of the asset's sound can be decoded. `abandon` ends the helper. Throws Error.
    static std::unique_ptr<RemoteSoundReader> make(Descriptor socket,
                                                   RemoteObject::Abandon abandon);

    void seek(Time time, const std::stop_token& stop) override;
    [[nodiscard]] std::span<const float> next(const std::stop_token& stop) override;

private:
    RemoteSoundReader(Descriptor socket, RemoteObject::Abandon abandon)
        : m_remote(std::move(socket), {}, std::move(abandon)) {}

    RemoteObject m_remote;
    SharedArea m_area;
};

} // namespace media::process
