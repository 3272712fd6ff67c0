#pragma once

#include <QCoreApplication>

#include <optional>

namespace brisklet {

/// Makes a program without a window speak the user's language for as long as it lives. In English
/// there is nothing behind it, so that what scripts run is what it always was. One at a time, and
/// not beside another application object. Main thread.
class TerminalLanguage final {
public:
    /// `argc` and `argv` are main()'s.
    TerminalLanguage(int& argc, char** argv);

private:
    std::optional<QCoreApplication> m_application;
};

} // namespace brisklet
