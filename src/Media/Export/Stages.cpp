#include "Media/Export/Stages.h"

#include "Media/Threading/ThreadPriority.h"

#include <pthread.h>

#include <utility>

namespace media {

Stages::~Stages() {
    m_stop.request_stop();
}

void Stages::start(const char* name, std::function<void()> stage, int niceness) {
    m_threads.emplace_back([this, name, stage = std::move(stage), niceness] {
        pthread_setname_np(pthread_self(), name);
        if (niceness > 0)
            standBack(niceness);
        guard(stage);
    });
}

void Stages::guard(const std::function<void()>& stage) {
    try {
        stage();
    } catch (...) {
        const std::lock_guard lock(m_mutex);
        if (!m_failure)
            m_failure = std::current_exception();
        m_stop.request_stop();
    }
}

void Stages::join() {
    m_threads.clear();
    if (m_failure)
        std::rethrow_exception(m_failure);
}

} // namespace media
