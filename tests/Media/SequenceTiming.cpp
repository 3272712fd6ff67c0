#include "Media/SequenceTiming.h"

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace media {

namespace {

using Bits = std::vector<bool>;

/// Reads the sequence parameters of Rec. ITU-T H.264, 7.3.2.1.1 and E.1.1, as x264 writes them.
class Reader {
public:
    explicit Reader(const Bits& bits) : m_bits(bits) {}

    unsigned bits(int count) {
        unsigned value = 0;
        for (int i = 0; i < count; ++i)
            value = value << 1 | (m_bits.at(m_position++) ? 1U : 0U);
        return value;
    }

    unsigned number() {
        int zeros = 0;
        while (bits(1) == 0)
            ++zeros;
        return (1U << zeros) - 1 + bits(zeros);
    }

    [[nodiscard]] std::size_t position() const { return m_position; }

private:
    const Bits& m_bits;
    std::size_t m_position = 0;
};

void require(bool holds) {
    if (!holds)
        throw std::runtime_error("These sequence parameters are not as expected.");
}

/// Where it says whether there is anything about time.
std::size_t timingFlag(const Bits& bits) {
    Reader reader(bits);
    const unsigned profile = reader.bits(8);
    reader.bits(16);
    reader.number();
    if (profile == 100) {
        require(reader.number() == 1);
        reader.number();
        reader.number();
        reader.bits(1);
        require(reader.bits(1) == 0);
    }
    reader.number();
    if (const unsigned order = reader.number(); order == 0)
        reader.number();
    else
        require(order == 2);
    reader.number();
    reader.bits(1);
    reader.number();
    reader.number();
    if (reader.bits(1) == 0)
        reader.bits(1);
    reader.bits(1);
    if (reader.bits(1) == 1) {
        for (int side = 0; side < 4; ++side)
            reader.number();
    }
    require(reader.bits(1) == 1);
    if (reader.bits(1) == 1 && reader.bits(8) == 255)
        reader.bits(32);
    if (reader.bits(1) == 1)
        reader.bits(1);
    if (reader.bits(1) == 1) {
        reader.bits(4);
        if (reader.bits(1) == 1)
            reader.bits(24);
    }
    if (reader.bits(1) == 1) {
        reader.number();
        reader.number();
    }
    return reader.position();
}

std::string withoutTimingInUnit(const std::string& unit) {
    Bits bits;
    int zeros = 0;
    for (std::size_t i = 1; i < unit.size(); ++i) {
        const auto byte = static_cast<unsigned char>(unit[i]);
        const bool isInserted = zeros >= 2 && byte == 3;
        zeros = byte == 0 ? zeros + 1 : 0;
        for (int bit = 7; bit >= 0 && !isInserted; --bit)
            bits.push_back((byte >> bit & 1) != 0);
    }
    const std::size_t flag = timingFlag(bits);
    require(bits.at(flag));
    bits[flag] = false;
    constexpr std::ptrdiff_t kTimingBits = 32 + 32 + 1;
    const auto timing = bits.begin() + static_cast<std::ptrdiff_t>(flag) + 1;
    bits.erase(timing, timing + kTimingBits);
    while (!bits.back())
        bits.pop_back();
    bits.resize((bits.size() + 7) / 8 * 8);
    std::string result(1, unit[0]);
    zeros = 0;
    for (std::size_t i = 0; i < bits.size(); i += 8) {
        unsigned byte = 0;
        for (std::size_t bit = 0; bit < 8; ++bit)
            byte = byte << 1 | (bits[i + bit] ? 1U : 0U);
        if (zeros >= 2 && byte <= 3) {
            result += '\3';
            zeros = 0;
        }
        zeros = byte == 0 ? zeros + 1 : 0;
        result += static_cast<char>(byte);
    }
    return result;
}

} // namespace

std::string withoutTiming(const std::string& stream) {
    const std::string startCode("\0\0\1", 3);
    constexpr int kSequenceParameters = 7;
    std::string result;
    bool isChanged = false;
    std::size_t done = 0;
    for (std::size_t at = stream.find(startCode); at != std::string::npos;) {
        const std::size_t begin = at + startCode.size();
        const std::size_t next = stream.find(startCode, begin);
        if ((stream.at(begin) & 31) == kSequenceParameters) {
            std::size_t end = next == std::string::npos ? stream.size() : next;
            while (stream[end - 1] == 0)
                --end;
            result += stream.substr(done, begin - done);
            result += withoutTimingInUnit(stream.substr(begin, end - begin));
            done = end;
            isChanged = true;
        }
        at = next;
    }
    require(isChanged);
    return result + stream.substr(done);
}

} // namespace media
