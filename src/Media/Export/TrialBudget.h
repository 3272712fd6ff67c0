#pragma once

#include "Media/Threading/OwnProcessorTime.h"

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

namespace media {

/// The processor time that a trial may take. Requests a stop when it is used up, when the caller
/// asks for one, and when something begins in this process that needs all of the processor.
///
/// Counts the thread that makes it and those started after it, since encoders have threads of their
/// own. Made and used on one thread; the token on any.
class TrialBudget final {
public:
    /// Seconds of processor time.
    TrialBudget(const std::stop_token& caller, double seconds);
    TrialBudget(const TrialBudget&) = delete;
    TrialBudget& operator=(const TrialBudget&) = delete;
    ~TrialBudget() = default;

    [[nodiscard]] std::stop_token token() const { return m_stop.get_token(); }

    /// Seconds of processor time since the beginning.
    [[nodiscard]] double used() const { return m_time.seconds(); }

    /// Throws Cancelled if the trial was stopped for another reason than the processor time.
    void expectWanted() const;

private:
    void watch(const std::stop_token& ended, double seconds);

    std::stop_token m_caller;
    OwnProcessorTime m_time;
    std::stop_source m_stop;
    std::mutex m_mutex;
    std::condition_variable_any m_wakeUp;
    /// Last: it uses the others.
    std::jthread m_watcher;
};

} // namespace media
