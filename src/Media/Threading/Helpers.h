#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace media {

/// Threads that help others with work that can be cut into pieces, so that it is done sooner. They
/// rest while nobody asks. Any thread, also several at a time.
class Helpers final {
public:
    /// The process's own, one fewer than processors (at most 15), for as long as anybody keeps
    /// them.
    static std::shared_ptr<Helpers> shared();

    /// `count`: 0 or more. There are fewer where the system starts no more threads.
    explicit Helpers(int count);
    Helpers(const Helpers&) = delete;
    Helpers& operator=(const Helpers&) = delete;
    /// After the last run().
    ~Helpers();

    /// How many work on the pieces of one run() at most: the helpers and the caller.
    [[nodiscard]] int workers() const { return static_cast<int>(m_threads.size()) + 1; }

    /// Does `work` for each piece of 0 … pieces − 1 once, on the calling thread and on whichever
    /// helpers are free, and returns when all of them are done. `worker` is 0 … workers() − 1 and
    /// different for those that work at the same time. Throws the first failure; pieces that have
    /// not begun by then are left out.
    void run(int pieces, const std::function<void(int piece, int worker)>& work);

private:
    struct Job {
        const std::function<void(int piece, int worker)>& work;
        int pieces = 0;
        /// Under m_mutex, like all that follows.
        int begun = 0;
        int ended = 0;
        std::exception_ptr failure;
    };

    void help(const std::stop_token& stop, int worker);
    /// Does one piece; `lock` is released meanwhile.
    void doPiece(Job& job, int worker, std::unique_lock<std::mutex>& lock);

    std::mutex m_mutex;
    std::condition_variable_any m_offered;
    std::condition_variable m_pieceEnded;
    /// Under m_mutex: those with pieces that nobody has begun; each lives in its run().
    std::deque<Job*> m_open;
    std::vector<std::jthread> m_threads;
};

} // namespace media
