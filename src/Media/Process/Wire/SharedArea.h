#pragma once

#include "Media/FFmpeg/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace media::process {

/// Memory that one process writes and another reads: what is too much for messages, such as
/// pictures. It lasts from one message to the next. Belongs to one thread.
class SharedArea {
public:
    SharedArea() = default;
    /// Of the one who reads. Throws BadMessage if the descriptor is not memory that keeps its size,
    /// std::bad_alloc if it cannot be mapped.
    explicit SharedArea(Descriptor memory);
    SharedArea(SharedArea&& other) noexcept;
    SharedArea& operator=(SharedArea&& other) noexcept;
    SharedArea(const SharedArea&) = delete;
    SharedArea& operator=(const SharedArea&) = delete;
    ~SharedArea();

    /// Of the one who writes: room for `count` bytes, in new memory where the old is too small or
    /// far too large. Throws std::bad_alloc.
    [[nodiscard]] std::span<std::uint8_t> ensure(std::size_t count);
    /// The memory made since this was last asked, for the reader.
    [[nodiscard]] std::optional<Descriptor> takeNew();

    /// Of the one who reads. Throws BadMessage if there is not so much.
    [[nodiscard]] std::span<const std::uint8_t> read(std::size_t count) const;

private:
    void unmap() noexcept;

    std::uint8_t* m_bytes = nullptr;
    std::size_t m_size = 0;
    std::optional<Descriptor> m_new;
};

} // namespace media::process
