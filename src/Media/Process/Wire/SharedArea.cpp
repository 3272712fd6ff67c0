#include "Media/Process/Wire/SharedArea.h"

#include "Media/Process/Wire/Message.h"

#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace media::process {

namespace {

/// Of which areas have whole numbers, so that few are made; bytes.
constexpr std::size_t kGranule = std::size_t{256} * 1024;

/// An area that is so many times larger than what it has to hold is given up for a smaller one.
constexpr std::size_t kFarTooLarge = 4;

/// Without these the writer could take memory away from under the reader.
constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL;

} // namespace

SharedArea::SharedArea(Descriptor memory) {
    struct stat status = {};
    const int seals = ::fcntl(memory.number(), F_GET_SEALS);
    if (seals < 0 || (seals & F_SEAL_SHRINK) == 0 || ::fstat(memory.number(), &status) != 0 ||
        status.st_size <= 0)
        throw BadMessage();
    m_size = static_cast<std::size_t>(status.st_size);
    void* const bytes = ::mmap(nullptr, m_size, PROT_READ, MAP_SHARED, memory.number(), 0);
    if (bytes == MAP_FAILED)
        throw std::bad_alloc();
    m_bytes = static_cast<std::uint8_t*>(bytes);
}

SharedArea::SharedArea(SharedArea&& other) noexcept
    : m_bytes(std::exchange(other.m_bytes, nullptr)),
      m_size(std::exchange(other.m_size, 0)),
      m_new(std::move(other.m_new)) {}

SharedArea& SharedArea::operator=(SharedArea&& other) noexcept {
    std::swap(m_bytes, other.m_bytes);
    std::swap(m_size, other.m_size);
    std::swap(m_new, other.m_new);
    return *this;
}

SharedArea::~SharedArea() {
    unmap();
}

void SharedArea::unmap() noexcept {
    if (m_bytes)
        ::munmap(std::exchange(m_bytes, nullptr), std::exchange(m_size, 0));
}

std::span<std::uint8_t> SharedArea::ensure(std::size_t count) {
    // There is no memory of no size, and no need of it.
    if (count == 0)
        return {};
    const std::size_t wanted = (count + kGranule - 1) / kGranule * kGranule;
    if (m_bytes && count <= m_size && m_size <= kFarTooLarge * wanted)
        return {m_bytes, count};
    unmap();
    Descriptor memory(::memfd_create("brisklet-pictures", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!memory.isOpen() || ::ftruncate(memory.number(), static_cast<off_t>(wanted)) != 0 ||
        ::fcntl(memory.number(), F_ADD_SEALS, kSeals) != 0)
        throw std::bad_alloc();
    void* const bytes =
        ::mmap(nullptr, wanted, PROT_READ | PROT_WRITE, MAP_SHARED, memory.number(), 0);
    if (bytes == MAP_FAILED)
        throw std::bad_alloc();
    m_bytes = static_cast<std::uint8_t*>(bytes);
    m_size = wanted;
    m_new = std::move(memory);
    return {m_bytes, count};
}

std::optional<Descriptor> SharedArea::takeNew() {
    return std::exchange(m_new, std::nullopt);
}

std::span<const std::uint8_t> SharedArea::read(std::size_t count) const {
    if (count > m_size)
        throw BadMessage();
    return {m_bytes, count};
}

} // namespace media::process
