#include "Media/MemoryReturn.h"

#include <charconv>
#include <cstdint>
#include <fstream>
#include <malloc.h>
#include <string>
#include <string_view>
#include <sys/mman.h>

namespace media {

namespace {

struct Range {
    std::uintptr_t start = 0;
    std::uintptr_t end = 0;
};

/// The range of a line of /proc/self/maps (proc_pid_maps(5)).
Range rangeOf(std::string_view line) {
    Range range;
    const char* const last = line.data() + line.size();
    const auto [dash, error] = std::from_chars(line.data(), last, range.start, 16);
    if (error == std::errc() && dash != last)
        std::from_chars(dash + 1, last, range.end, 16);
    return range;
}

/// Whether the mapping is memory of this process alone that has no file behind it.
bool isHeap(std::string_view line) {
    return line.find(" rw-p 00000000 00:00 0") != std::string_view::npos;
}

/// Keeps the kernel from joining the pages of heaps to huge ones, which takes two megabytes for a
/// few bytes that are still in use, and so takes again what was just given back. libx264 asks for
/// huge pages, also where its memory lies in a heap, and some systems join pages everywhere. Later
/// memory of its own gets them as before.
void keepPagesSmall() {
    std::ifstream mappings("/proc/self/maps");
    for (std::string line; std::getline(mappings, line);) {
        const Range range = rangeOf(line);
        // A mapping may have gone meanwhile; kernels without huge pages refuse the advice.
        if (isHeap(line) && range.end > range.start)
            ::madvise(reinterpret_cast<void*>(range.start), range.end - range.start,
                      MADV_NOHUGEPAGE);
    }
}

} // namespace

void mapLargeBlocks() {
    constexpr int kLargeBlockBytes = 1024 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, kLargeBlockBytes);
}

void returnFreedMemory() {
    ::malloc_trim(0);
    keepPagesSmall();
}

} // namespace media
