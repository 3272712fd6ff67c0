#include "Media/Process/Client/RemoteSoundReader.h"

#include "Media/Error.h"
#include "Media/Playback/AudioOutput.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <utility>

namespace media::process {

std::unique_ptr<RemoteSoundReader> RemoteSoundReader::make(Descriptor socket) {
    std::unique_ptr<RemoteSoundReader> reader(new RemoteSoundReader(std::move(socket)));
    try {
        return reader->m_remote.call(SoundOperation::open, {}, {}).getBool() ? std::move(reader)
                                                                             : nullptr;
    } catch (const BadMessage&) {
        throw Error(ErrorKind::decoderStopped);
    }
}

void RemoteSoundReader::seek(Time time, const std::stop_token& stop) {
    MessageWriter arguments;
    put(arguments, time);
    static_cast<void>(m_remote.call(SoundOperation::seek, std::move(arguments), stop));
}

std::span<const float> RemoteSoundReader::next(const std::stop_token& stop) {
    try {
        MessageReader answer = m_remote.call(SoundOperation::next, {}, stop);
        const std::span<const float> samples = getSamples(answer, m_area);
        // Half a frame is none.
        return samples.first(samples.size() - samples.size() % playback::kOutputChannels);
    } catch (const BadMessage&) {
        throw Error(ErrorKind::decoderStopped);
    }
}

} // namespace media::process
