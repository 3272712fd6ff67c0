#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace media::pixels {

/// A small cache of values that are costly to make: keeps the most recently used ones.
template<typename Key, typename Value>
class RecentlyUsed {
public:
    explicit RecentlyUsed(std::size_t capacity) : m_capacity(capacity) {}

    /// The value kept under an equal key, or the one that `make` returns as a unique_ptr.
    template<typename Make>
    Value& get(const Key& key, Make make) {
        auto found = std::ranges::find(m_entries, key, &Entry::first);
        if (found == m_entries.end()) {
            std::unique_ptr<Value> made = make();
            if (m_entries.size() == m_capacity)
                m_entries.pop_back();
            found = m_entries.emplace(m_entries.end(), key, std::move(made));
        }
        std::rotate(m_entries.begin(), found, found + 1);
        return *m_entries.front().second;
    }

private:
    using Entry = std::pair<Key, std::unique_ptr<Value>>;

    std::size_t m_capacity;
    /// The most recently used first.
    std::vector<Entry> m_entries;
};

} // namespace media::pixels
