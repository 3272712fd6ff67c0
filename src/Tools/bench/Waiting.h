#pragma once

#include <QEventLoop>
#include <QObject>

#include <functional>

namespace brisklet::bench {

/// Runs the event loop until `isDone` returns true; checks it after every turn. Throws
/// BenchmarkError after five minutes.
void waitUntil(const std::function<bool()>& isDone);

/// Calls a function after each painting of one widget.
class PaintWatch final : public QObject {
    Q_OBJECT

public:
    PaintWatch(QObject& widget, std::function<void()> onPainted);
    ~PaintWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QObject& m_widget;
    std::function<void()> m_onPainted;
};

} // namespace brisklet::bench
