#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace media {

/// Memory for one picture, undefined content, aligned to 64 bytes. Pictures come and go at the rate
/// of the video: what one leaves serves the next of the same size, without the system having to
/// clear new pages each time. Throws std::bad_alloc. Any thread.
[[nodiscard]] void* takePictureMemory(std::size_t bytes);

/// Gives back what takePictureMemory(bytes) gave. A few blocks, 16 MiB at most in all, are kept for
/// what comes next. Any thread.
void returnPictureMemory(void* memory, std::size_t bytes) noexcept;

/// For containers of bytes that hold a picture. New elements are undefined unless a value is given.
template<typename Byte>
struct PictureAllocator {
    using value_type = Byte;

    PictureAllocator() = default;

    template<typename Other>
    explicit PictureAllocator(const PictureAllocator<Other>&) noexcept {}

    [[nodiscard]] Byte* allocate(std::size_t count) {
        return static_cast<Byte*>(takePictureMemory(count * sizeof(Byte)));
    }

    void deallocate(Byte* bytes, std::size_t count) noexcept {
        returnPictureMemory(bytes, count * sizeof(Byte));
    }

    template<typename Other>
    void construct(Other* element) noexcept {
        ::new (static_cast<void*>(element)) Other;
    }

    template<typename Other, typename... Arguments>
    void construct(Other* element, Arguments&&... arguments) {
        ::new (static_cast<void*>(element)) Other(std::forward<Arguments>(arguments)...);
    }

    friend bool operator==(const PictureAllocator&, const PictureAllocator&) = default;
};

using PictureBytes = std::vector<std::uint8_t, PictureAllocator<std::uint8_t>>;

} // namespace media
