#pragma once

#include <stop_token>
#include <thread>

namespace brisklet::cli {

/// Turns SIGINT, SIGTERM and SIGHUP into a stop request for as long as it lives. Create it before
/// any other thread, since threads inherit the mask that blocks these signals. One at a time.
class Interruption final {
public:
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    [[nodiscard]] std::stop_token token() const { return m_stop.get_token(); }

private:
    void watch();

    std::stop_source m_stop;
    int m_signals = -1;
    int m_end = -1;
    std::jthread m_thread;
};

} // namespace brisklet::cli
