#include "Media/PictureMemory.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <new>

namespace media {

namespace {

constexpr std::align_val_t kAlignment{64};
/// The pictures of a cache that is full go one by one as new ones come, those on screen two or
/// three at a time.
constexpr std::size_t kMostSpare = 4;
constexpr std::size_t kMostSpareBytes = std::size_t{16} << 20;

struct Block {
    void* memory = nullptr;
    std::size_t bytes = 0;
};

/// Blocks that wait to be taken again, the oldest first.
class Spares {
public:
    /// Null where none has this size.
    void* take(std::size_t bytes) {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = m_count; i-- > 0;) {
            if (m_blocks[i].bytes == bytes) {
                void* const memory = m_blocks[i].memory;
                remove(i);
                return memory;
            }
        }
        return nullptr;
    }

    /// What has to go for it, which may be the block itself.
    std::array<Block, kMostSpare + 1> put(Block block) {
        std::array<Block, kMostSpare + 1> gone;
        std::size_t goneCount = 0;
        if (block.bytes > kMostSpareBytes) {
            gone[0] = block;
            return gone;
        }
        const std::lock_guard lock(m_mutex);
        while (m_count == kMostSpare || m_bytes + block.bytes > kMostSpareBytes) {
            gone[goneCount++] = m_blocks[0];
            remove(0);
        }
        m_blocks[m_count++] = block;
        m_bytes += block.bytes;
        return gone;
    }

private:
    void remove(std::size_t index) {
        m_bytes -= m_blocks[index].bytes;
        std::copy(m_blocks.begin() + index + 1, m_blocks.begin() + m_count,
                  m_blocks.begin() + index);
        --m_count;
    }

    std::mutex m_mutex;
    std::array<Block, kMostSpare> m_blocks;
    std::size_t m_count = 0;
    std::size_t m_bytes = 0;
};

/// Never destroyed: the last pictures may go after everything else has.
Spares& spares() {
    static auto* const spares = new Spares;
    return *spares;
}

} // namespace

void* takePictureMemory(std::size_t bytes) {
    void* const memory = spares().take(bytes);
    return memory ? memory : ::operator new(bytes, kAlignment);
}

void returnPictureMemory(void* memory, std::size_t bytes) noexcept {
    for (const Block& block : spares().put({memory, bytes})) {
        if (block.memory)
            ::operator delete(block.memory, kAlignment);
    }
}

} // namespace media
