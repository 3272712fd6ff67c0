#pragma once

#include <mutex>
#include <utility>

namespace media {

/// A value that can only be reached while its lock is held. Usable from any thread.
template<typename T>
class Guarded {
public:
    /// Holds the lock for as long as it lives. Belongs to one thread.
    class Access {
    public:
        explicit Access(Guarded& guarded) : m_value(guarded.m_value), m_lock(guarded.m_mutex) {}

        T* operator->() const { return &m_value; }

        T& operator*() const { return m_value; }

    private:
        T& m_value;
        std::unique_lock<std::mutex> m_lock;
    };

    Guarded() = default;

    explicit Guarded(T value) : m_value(std::move(value)) {}

    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;

    [[nodiscard]] Access lock() { return Access(*this); }

private:
    std::mutex m_mutex;
    T m_value{};
};

} // namespace media
