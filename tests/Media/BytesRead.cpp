#include "Media/BytesRead.h"

#include <fstream>
#include <string>

namespace media {

std::optional<std::int64_t> bytesRead() {
    std::ifstream file("/proc/self/io");
    std::string name;
    std::int64_t value = 0;
    while (file >> name >> value) {
        if (name == "rchar:")
            return value;
    }
    return std::nullopt;
}

} // namespace media
