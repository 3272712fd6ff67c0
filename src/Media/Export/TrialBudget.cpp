#include "Media/Export/TrialBudget.h"

#include "Media/Error.h"
#include "Media/Threading/ProcessorDemand.h"

#include <chrono>

namespace media {

namespace {

/// How often the clock is read while a trial runs.
constexpr std::chrono::milliseconds kWatchInterval(10);

} // namespace

TrialBudget::TrialBudget(const std::stop_token& caller, double seconds)
    : m_caller(caller),
      m_watcher([this, seconds](const std::stop_token& ended) { watch(ended, seconds); }) {}

void TrialBudget::expectWanted() const {
    if (m_caller.stop_requested() || ProcessorDemand::isHigh())
        throw Cancelled();
}

void TrialBudget::watch(const std::stop_token& ended, double seconds) {
    const std::stop_callback passOn(m_caller, [this] { m_stop.request_stop(); });
    std::unique_lock lock(m_mutex);
    while (!ended.stop_requested() && !m_stop.stop_requested()) {
        if (used() >= seconds || ProcessorDemand::isHigh())
            m_stop.request_stop();
        m_wakeUp.wait_for(lock, ended, kWatchInterval, [] { return false; });
    }
}

} // namespace media
