#pragma once

#include <exception>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace media {

/// Runs the stages of an export on threads of their own. The first failure stops all of them.
class Stages {
public:
    /// `stop` is what the stages look at; it is requested by the first failure and on destruction,
    /// which waits for the threads.
    explicit Stages(std::stop_source stop) : m_stop(std::move(stop)) {}

    Stages(const Stages&) = delete;
    Stages& operator=(const Stages&) = delete;
    ~Stages();

    /// Runs a stage on a new thread of that name (at most 15 characters), which stands back by
    /// `niceness` behind others; see standBack().
    void start(const char* name, std::function<void()> stage, int niceness = 0);

    /// Runs a stage on the calling thread, under the same rule.
    void guard(const std::function<void()>& stage);

    /// Waits for all stages; throws the first failure.
    void join();

private:
    std::stop_source m_stop;
    std::mutex m_mutex;
    /// The first; under m_mutex until all threads have ended.
    std::exception_ptr m_failure;
    std::vector<std::jthread> m_threads;
};

} // namespace media
