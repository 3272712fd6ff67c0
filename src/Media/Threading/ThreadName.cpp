#include "Media/Threading/ThreadName.h"

#include <pthread.h>

namespace media {

ThreadName::ThreadName(const char* name) noexcept {
    ::pthread_getname_np(::pthread_self(), m_before.data(), m_before.size());
    ::pthread_setname_np(::pthread_self(), name);
}

ThreadName::~ThreadName() {
    m_thread.check();
    ::pthread_setname_np(::pthread_self(), m_before.data());
}

} // namespace media
