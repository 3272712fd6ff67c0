#include "Media/MemoryReturn.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/mman.h>

/// An empty window grew by two megabytes at a time while nothing happened: the kernel joined pages
/// that had been given back with the few that were in use.
namespace media {
namespace {

constexpr std::size_t kBytes = 8 * 1024 * 1024;

/// The flags of the mapping that begins there (VmFlags in proc_pid_smaps(5)).
std::string flagsOf(const void* start) {
    std::ostringstream address;
    address << std::hex << reinterpret_cast<std::uintptr_t>(start) << '-';
    std::ifstream mappings("/proc/self/smaps");
    bool isWanted = false;
    for (std::string line; std::getline(mappings, line);) {
        isWanted = isWanted || line.starts_with(address.str());
        if (isWanted && line.starts_with("VmFlags:"))
            return line + ' ';
    }
    return {};
}

/// Memory between two pages that nobody may use, so that it is a mapping of its own.
class Mapping {
public:
    Mapping()
        : m_whole(
              ::mmap(nullptr, kBytes + 2 * kGuard, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
        ::mprotect(start(), kBytes, PROT_READ | PROT_WRITE);
    }

    Mapping(const Mapping&) = delete;
    Mapping& operator=(const Mapping&) = delete;

    ~Mapping() { ::munmap(m_whole, kBytes + 2 * kGuard); }

    [[nodiscard]] void* start() const { return static_cast<char*>(m_whole) + kGuard; }

private:
    static constexpr std::size_t kGuard = 64 * 1024;

    void* m_whole;
};

TEST(MemoryReturnTest, leavesNoPagesToBeJoined) {
    const Mapping mapping;
    if (::madvise(mapping.start(), kBytes, MADV_HUGEPAGE) != 0)
        GTEST_SKIP() << "the kernel has no transparent huge pages";
    ASSERT_NE(flagsOf(mapping.start()).find(" hg "), std::string::npos);
    returnFreedMemory();
    EXPECT_NE(flagsOf(mapping.start()).find(" nh "), std::string::npos);
}

TEST(MemoryReturnTest, leavesWhatIsInUse) {
    const Mapping mapping;
    auto* const bytes = static_cast<unsigned char*>(mapping.start());
    for (std::size_t at = 0; at < kBytes; at += 4096)
        bytes[at] = static_cast<unsigned char>(at >> 12);
    returnFreedMemory();
    for (std::size_t at = 0; at < kBytes; at += 4096)
        ASSERT_EQ(bytes[at], static_cast<unsigned char>(at >> 12));
}

} // namespace
} // namespace media
