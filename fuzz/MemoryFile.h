#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

/// A regular file in memory that can be opened by its name while this lives.
class MemoryFile final {
public:
    MemoryFile(const std::uint8_t* data, std::size_t size)
        : m_descriptor(::memfd_create("fuzzed", MFD_CLOEXEC)) {
        if (::write(m_descriptor, data, size) != static_cast<::ssize_t>(size))
            throw std::runtime_error("The file in memory can’t be written.");
    }

    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    ~MemoryFile() { ::close(m_descriptor); }

    [[nodiscard]] std::filesystem::path path() const {
        return "/proc/self/fd/" + std::to_string(m_descriptor);
    }

private:
    int m_descriptor;
};
