#include "Support/MainThread.h"

#include "Support/HandOver.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

#include <utility>

namespace brisklet {

namespace {

/// Work on its way through Qt's event queue, into which it is moved.
class PostedWork {
public:
    explicit PostedWork(std::function<void()> work) : m_work(std::move(work)) {}

    PostedWork(const PostedWork&) = delete;

    PostedWork(PostedWork&& other) noexcept : m_work(std::move(other.m_work)) { handOver(this); }

    PostedWork& operator=(const PostedWork&) = delete;
    PostedWork& operator=(PostedWork&&) = delete;

    ~PostedWork() { takeOver(this); }

    void operator()() {
        takeOver(this);
        m_work();
    }

private:
    std::function<void()> m_work;
};

} // namespace

bool isMainThread() {
    const QCoreApplication* application = QCoreApplication::instance();
    return application != nullptr && application->thread() == QThread::currentThread();
}

void verifyMainThread(const media::SourceLocation& where) {
    // Before it is made and once it is gone there is nothing to compare with.
    const bool isUnknown = QCoreApplication::instance() == nullptr;
    media::verify(isUnknown || isMainThread(), "called on another thread than the main thread",
                  where);
}

void postToMainThread(std::function<void()> work) {
    // The application object lives on the main thread and outlives every window; Qt drops events
    // for a destroyed receiver. Workers end before it does (exitStatusAfterWorkers()).
    if (QCoreApplication* application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, PostedWork(std::move(work)), Qt::QueuedConnection);
}

} // namespace brisklet
