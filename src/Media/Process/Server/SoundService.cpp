#include "Media/Process/Server/SoundService.h"

#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

namespace media::process {

void SoundService::open(MessageWriter& answer) {
    const auto asset = *m_asset.lock();
    if (!asset)
        throw BadMessage();
    m_reader = asset->makeSoundReader();
    answer.put(static_cast<std::uint8_t>(m_reader ? 1 : 0));
}

playback::SoundReader& SoundService::reader() {
    if (!m_reader)
        throw BadMessage();
    return *m_reader;
}

void SoundService::perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                           const Report& /*report*/, const std::stop_token& stop) {
    switch (static_cast<SoundOperation>(operation)) {
    case SoundOperation::open:
        return open(answer);
    case SoundOperation::seek:
        return reader().seek(getTime(arguments), stop);
    case SoundOperation::next:
        return put(answer, m_area, reader().next(stop));
    case SoundOperation::count:
        break;
    }
    throw BadMessage();
}

} // namespace media::process
