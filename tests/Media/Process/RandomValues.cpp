#include "Media/Process/RandomValues.h"

#include <cstdint>

namespace media::process {

std::string RandomValues::text() {
    constexpr std::size_t kMost = 40;
    std::string text(below(kMost + 1), '\0');
    for (char& byte : text)
        byte = static_cast<char>(number<std::int16_t>(-128, 127));
    return text;
}

} // namespace media::process
