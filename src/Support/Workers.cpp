#include "Support/Workers.h"

#include <QThreadPool>

namespace brisklet {

namespace {

/// Not Qt's global pool: that one has a thread per processor, which two exports would keep busy
/// while every other window waits.
QThreadPool& pool() {
    static QThreadPool* const workers = [] {
        auto* created = new QThreadPool;
        created->setObjectName(QStringLiteral("Workers"));
        created->setMaxThreadCount(1024);
        return created;
    }();
    return *workers;
}

} // namespace

void startWorker(std::function<void()> work) {
    pool().start(std::move(work));
}

void waitForWorkers() {
    pool().waitForDone();
}

} // namespace brisklet
