#include "Support/Workers.h"

#include <QThreadPool>

#include <cstdio>
#include <cstdlib>

namespace brisklet {

namespace {

/// Encoders in the middle of a large picture take a second or two.
constexpr std::chrono::seconds kLongestWindingDown(3);

/// Not Qt's global pool, which has one thread per processor: two exports could occupy it while
/// every other window waits.
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

bool waitForWorkers(std::optional<std::chrono::milliseconds> limit) {
    return pool().waitForDone(limit ? static_cast<int>(limit->count()) : -1);
}

int exitStatusAfterWorkers(int status) {
    if (!waitForWorkers(kLongestWindingDown)) {
        std::fflush(nullptr);
        // Without destructors: a worker may still use any object.
        std::_Exit(status);
    }
    return status;
}

} // namespace brisklet
