#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace brisklet {

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into a signal of the event loop, so
/// that the program can take its unfinished files away first. A second request ends the program as
/// it would without this. At most one instance at a time. Main thread.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    /// Requests that the starter of the program had switched off stay so.
    explicit TerminationSignals(QObject* parent = nullptr);
    /// Requests end the program at once again.
    ~TerminationSignals() override;

Q_SIGNALS:
    void requested();

private:
    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace brisklet
