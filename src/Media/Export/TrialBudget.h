#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

namespace media {

/// The processor time that a trial may take. Requests a stop when it is used up, when the caller
/// asks for one, and when something begins in this process that needs all of the processor.
///
/// Counts what the whole process uses from its making on, since encoders have threads of their own:
/// work besides the trial ends it sooner. Made and used on one thread; the token on any.
class TrialBudget final {
public:
    /// Seconds of processor time.
    TrialBudget(const std::stop_token& caller, double seconds);
    TrialBudget(const TrialBudget&) = delete;
    TrialBudget& operator=(const TrialBudget&) = delete;
    ~TrialBudget() = default;

    [[nodiscard]] std::stop_token token() const { return m_stop.get_token(); }

    /// Seconds of processor time since the beginning.
    [[nodiscard]] double used() const { return processorTime() - m_start; }

    /// Throws Cancelled if the trial was stopped for another reason than the processor time.
    void expectWanted() const;

    /// Of the process, in seconds.
    static double processorTime();

private:
    void watch(const std::stop_token& ended, double seconds);

    std::stop_token m_caller;
    double m_start = processorTime();
    std::stop_source m_stop;
    std::mutex m_mutex;
    std::condition_variable_any m_wakeUp;
    /// Last: it uses the others.
    std::jthread m_watcher;
};

} // namespace media
