#include "Media/Playback/DecoderBudget.h"

#include "Media/Threading/Guarded.h"

#include <algorithm>
#include <list>
#include <utility>

namespace media::playback {

/// All budgets of the process, the one used last first.
class DecoderBudgets {
public:
    /// Never destroyed: players that were left behind may outlive everything static.
    static Guarded<DecoderBudgets>& all() {
        static auto* const budgets = new Guarded<DecoderBudgets>();
        return *budgets;
    }

    void add(DecoderBudget& budget) { m_budgets.push_back(&budget); }

    void remove(DecoderBudget& budget) { m_budgets.remove(&budget); }

    void setBytesOfAll(std::size_t bytes) { m_bytesOfAll = bytes; }

    void use(DecoderBudget& budget, std::size_t bytes) {
        release(budget);
        budget.m_bytes = bytes;
        m_budgets.splice(m_budgets.begin(), m_budgets, std::ranges::find(m_budgets, &budget));
        // The one used last keeps what it has, however much that is.
        std::size_t sum = bytes;
        for (DecoderBudget* other : m_budgets) {
            if (other == &budget)
                continue;
            sum += other->m_bytes;
            if (sum > m_bytesOfAll && other->m_bytes > 0 &&
                !other->m_isExceeded.exchange(true, std::memory_order_relaxed))
                other->m_wake();
        }
    }

    static void release(DecoderBudget& budget) {
        budget.m_bytes = 0;
        budget.m_isExceeded.store(false, std::memory_order_relaxed);
    }

private:
    std::list<DecoderBudget*> m_budgets;
    std::size_t m_bytesOfAll = DecoderBudget::kBytesOfAll;
};

DecoderBudget::DecoderBudget(std::function<void()> wake) : m_wake(std::move(wake)) {
    DecoderBudgets::all().lock()->add(*this);
}

DecoderBudget::~DecoderBudget() {
    DecoderBudgets::all().lock()->remove(*this);
}

void DecoderBudget::use(std::size_t bytes) {
    DecoderBudgets::all().lock()->use(*this, bytes);
}

void DecoderBudget::release() {
    DecoderBudgets::all().lock()->release(*this);
}

void DecoderBudget::setBytesOfAll(std::size_t bytes) {
    DecoderBudgets::all().lock()->setBytesOfAll(bytes);
}

} // namespace media::playback
