#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace brisklet {

/// Turns the signals that ask the program to end (SIGTERM, SIGINT, SIGHUP) into a Qt signal, so
/// that it can remove unfinished files first. A second signal ends the program at once. At most one
/// instance at a time. Main thread.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    /// Signals that the parent process had set to be ignored stay ignored.
    explicit TerminationSignals(QObject* parent = nullptr);
    /// From now on the signals end the program at once.
    ~TerminationSignals() override;

Q_SIGNALS:
    void requested();

private:
    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace brisklet
