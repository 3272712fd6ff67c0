#pragma once

#include <atomic>

namespace media {

/// Stands for work that needs all of the processor, for as long as it lives: whatever only
/// prepares for later stops meanwhile, in the whole process. Any thread.
class ProcessorDemand {
public:
    ProcessorDemand() { s_count.fetch_add(1, std::memory_order_relaxed); }

    ProcessorDemand(const ProcessorDemand&) = delete;
    ProcessorDemand& operator=(const ProcessorDemand&) = delete;

    ~ProcessorDemand() { s_count.fetch_sub(1, std::memory_order_relaxed); }

    [[nodiscard]] static bool isHigh() { return s_count.load(std::memory_order_relaxed) > 0; }

private:
    /// Only a number: nothing else depends on its order.
    static inline std::atomic<int> s_count = 0;
};

} // namespace media
