#include "Media/Threading/Helpers.h"

#include "Media/Threading/Guarded.h"
#include "Media/Threading/Processors.h"
#include "Media/Threading/ThreadName.h"

#include <algorithm>

namespace media {

namespace {

constexpr int kMostWorkers = 16;

} // namespace

std::shared_ptr<Helpers> Helpers::shared() {
    static Guarded<std::weak_ptr<Helpers>> current;
    const auto access = current.lock();
    std::shared_ptr<Helpers> helpers = access->lock();
    if (!helpers) {
        helpers = std::make_shared<Helpers>(std::min(processorCount(), kMostWorkers) - 1);
        *access = helpers;
    }
    return helpers;
}

Helpers::Helpers(int count) {
    try {
        for (int worker = 1; worker <= count; ++worker)
            m_threads.emplace_back(
                [this, worker](const std::stop_token& stop) { help(stop, worker); });
    } catch (const std::system_error&) {
        // The system starts no more threads: those that there are do the work, or the caller alone.
        return;
    }
}

Helpers::~Helpers() {
    for (std::jthread& thread : m_threads)
        thread.request_stop();
    m_threads.clear();
}

void Helpers::run(int pieces, const std::function<void(int piece, int worker)>& work) {
    if (pieces <= 0)
        return;
    Job job{.work = work, .pieces = pieces, .failure = {}};
    std::unique_lock lock(m_mutex);
    m_open.push_back(&job);
    m_offered.notify_all();
    while (job.begun < job.pieces)
        doPiece(job, 0, lock);
    m_pieceEnded.wait(lock, [&job] { return job.ended == job.begun; });
    if (job.failure)
        std::rethrow_exception(job.failure);
}

void Helpers::help(const std::stop_token& stop, int worker) {
    const ThreadName name("picture-strips");
    std::unique_lock lock(m_mutex);
    while (m_offered.wait(lock, stop, [this] { return !m_open.empty(); }))
        doPiece(*m_open.front(), worker, lock);
}

void Helpers::doPiece(Job& job, int worker, std::unique_lock<std::mutex>& lock) {
    const int piece = job.begun++;
    if (job.begun == job.pieces)
        std::erase(m_open, &job);
    lock.unlock();
    std::exception_ptr failure;
    try {
        job.work(piece, worker);
    } catch (...) {
        failure = std::current_exception();
    }
    lock.lock();
    if (failure && !job.failure) {
        job.failure = failure;
        // Whoever has begun a piece still counts it as ended.
        job.pieces = job.begun;
        std::erase(m_open, &job);
    }
    ++job.ended;
    m_pieceEnded.notify_all();
}

} // namespace media
