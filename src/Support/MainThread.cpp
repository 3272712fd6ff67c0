#include "Support/MainThread.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

#include <utility>

namespace brisklet {

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
        QMetaObject::invokeMethod(application, std::move(work), Qt::QueuedConnection);
}

} // namespace brisklet
