#include "Media/Process/Client/RemoteSoundReader.h"

#include "Media/Playback/AudioOutput.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <utility>

namespace media::process {

std::unique_ptr<RemoteSoundReader> RemoteSoundReader::make(Descriptor socket,
                                                           RemoteObject::Abandon abandon) {
    std::unique_ptr<RemoteSoundReader> reader(
        new RemoteSoundReader(std::move(socket), std::move(abandon)));
    try {
        return reader->m_remote.callShort(SoundOperation::open, {}).getBool() ? std::move(reader)
                                                                              : nullptr;
    } catch (const BadMessage&) {
        reader->m_remote.giveUp();
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
        m_remote.giveUp();
    }
}

} // namespace media::process
