#include "Media/Reading/DecodingSoundReader.h"

#include "Media/Playback/AudioOutput.h"
#include "Media/Reading/OpenedAsset.h"

#include <cstddef>
#include <exception>
#include <utility>

namespace media::playback {

namespace {

constexpr AudioReader::Format kFormat{AV_SAMPLE_FMT_FLT, kOutputSampleRate, kOutputChannels};

} // namespace

std::unique_ptr<DecodingSoundReader>
DecodingSoundReader::make(const std::shared_ptr<const OpenedAsset>& asset) {
    for (const AssetTrack& track : asset->tracks(MediaType::audio)) {
        try {
            return std::make_unique<DecodingSoundReader>(asset, track);
        } catch (const std::exception&) {
            // The next track may be one that can be decoded.
        }
    }
    return nullptr;
}

DecodingSoundReader::DecodingSoundReader(std::shared_ptr<const OpenedAsset> asset,
                                         const AssetTrack& track)
    : m_reader(std::move(asset), track, kFormat) {}

void DecodingSoundReader::seek(Time time, const std::stop_token& stop) {
    m_reader.seek(time, stop);
}

std::span<const float> DecodingSoundReader::next(const std::stop_token& stop) {
    m_block = m_reader.next(stop);
    if (!m_block)
        return {};
    const auto* samples = static_cast<const float*>(static_cast<const void*>(m_block->data[0]));
    return {samples, static_cast<std::size_t>(m_block->nb_samples) * kOutputChannels};
}

} // namespace media::playback
