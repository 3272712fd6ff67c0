#include "Media/FFmpeg/NalUnits.h"

#include "Media/FFmpeg/Handles.h"

#include <algorithm>
#include <array>
#include <bit>

namespace media::ffmpeg {

std::span<const std::uint8_t>::iterator startCodeIn(std::span<const std::uint8_t> bytes) {
    constexpr std::array<std::uint8_t, kStartCodeLength> kStartCode{0, 0, 1};
    return std::search(bytes.begin(), bytes.end(), kStartCode.begin(), kStartCode.end());
}

std::optional<unsigned> firstNumberIn(NalUnit unit, std::size_t headerLength) {
    constexpr std::size_t kBytes = 2;
    if (unit.size() < headerLength + kBytes)
        return std::nullopt;
    const unsigned bits = static_cast<unsigned>(unit[headerLength]) << 8 | unit[headerLength + 1];
    const int zeros = std::countl_zero(static_cast<std::uint16_t>(bits));
    const int length = 2 * zeros + 1;
    constexpr int kKnownBits = 16;
    if (length > kKnownBits)
        return std::nullopt;
    return (bits >> (kKnownBits - length)) - 1;
}

NalUnits::NalUnits(const AVPacket& packet, unsigned lengthBytes)
    : m_rest(packet.data, static_cast<std::size_t>(std::max(packet.size, 0))),
      m_lengthBytes(lengthBytes) {
    if (m_lengthBytes == 0)
        skipPastStartCode();
}

std::optional<NalUnit> NalUnits::next() {
    if (m_rest.empty())
        return std::nullopt;
    if (m_lengthBytes == 0) {
        const auto unit = m_rest;
        skipPastStartCode();
        return unit.first(unit.size() - m_rest.size());
    }
    std::size_t length = 0;
    for (const std::uint8_t byte : m_rest.first(std::min(m_lengthBytes, m_rest.size())))
        length = length << 8 | byte;
    m_rest = m_rest.subspan(std::min(m_lengthBytes, m_rest.size()));
    const auto unit = m_rest.first(std::min(length, m_rest.size()));
    m_rest = m_rest.subspan(unit.size());
    if (unit.size() == length && startCodeIn(unit) == unit.end())
        return unit;
    m_rest = {};
    return m_rest;
}

void NalUnits::skipPastStartCode() {
    const auto found = static_cast<std::size_t>(startCodeIn(m_rest) - m_rest.begin());
    m_rest = m_rest.subspan(std::min(found + kStartCodeLength, m_rest.size()));
}

} // namespace media::ffmpeg
