#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

struct AVPacket;

namespace media::ffmpeg {

/// One unit of the network abstraction layer, header and all. The bytes belong to its packet.
using NalUnit = std::span<const std::uint8_t>;

/// Units begin with a header of these lengths, in bytes.
inline constexpr std::size_t kH264UnitHeader = 1;
inline constexpr std::size_t kHevcUnitHeader = 2;

/// Where the first start code begins; the end where there is none.
std::span<const std::uint8_t>::iterator startCodeIn(std::span<const std::uint8_t> bytes);
/// In bytes.
inline constexpr std::size_t kStartCodeLength = 3;

/// The first number behind a unit's header, in the coding of Exp-Golomb; none if it is not small.
/// Of a picture parameter set it is the set's own (Rec. ITU-T H.264 and H.265, 7.3.2).
std::optional<unsigned> firstNumberIn(NalUnit unit, std::size_t headerLength);

/// The NAL units of an H.264 or HEVC packet, each with its length or a start code in front of it.
/// The packet outlives it.
class NalUnits final {
public:
    /// `lengthBytes`: of the lengths; 0 where there are start codes.
    NalUnits(const AVPacket& packet, unsigned lengthBytes);

    /// Empty, and the last, where the lengths are not those of the packet or a start code stands
    /// inside of a unit, with which decoders take it for two; none at the packet's end.
    std::optional<NalUnit> next();

private:
    void skipPastStartCode();

    std::span<const std::uint8_t> m_rest;
    std::size_t m_lengthBytes;
};

} // namespace media::ffmpeg
