#include "Tools/bench/Waiting.h"

#include "Tools/bench/Benchmarks.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <utility>

namespace brisklet::bench {

namespace {

constexpr std::chrono::minutes kDeadline(5);

} // namespace

void waitUntil(const std::function<bool()>& isDone) {
    const auto deadline = Clock::now() + kDeadline;
    // Wakes the loop every second, so that the deadline holds even when no event arrives.
    QTimer ticks;
    ticks.start(std::chrono::seconds(1));
    while (!isDone()) {
        if (Clock::now() > deadline)
            throw BenchmarkError("It takes too long.");
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

PaintWatch::PaintWatch(QObject& widget, std::function<void()> onPainted)
    : m_widget(widget), m_onPainted(std::move(onPainted)) {
    m_widget.installEventFilter(this);
}

PaintWatch::~PaintWatch() {
    m_widget.removeEventFilter(this);
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint)
        return false;
    // Paints here, so that the measured time includes painting, and consumes the event.
    watched->removeEventFilter(this);
    watched->event(event);
    watched->installEventFilter(this);
    m_onPainted();
    return true;
}

} // namespace brisklet::bench
