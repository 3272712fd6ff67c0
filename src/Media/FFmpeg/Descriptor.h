#pragma once

#include <unistd.h>
#include <utility>

namespace media {

/// A file descriptor that is closed with this object.
class Descriptor {
public:
    Descriptor() = default;

    explicit Descriptor(int number) : m_number(number) {}

    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}

    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    ~Descriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }

    [[nodiscard]] int number() const { return m_number; }

    void close() {
        if (isOpen())
            ::close(std::exchange(m_number, -1));
    }

private:
    int m_number = -1;
};

} // namespace media
