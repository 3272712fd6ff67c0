#include "TestSupport/Processes.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace testsupport {

namespace {

struct State {
    char letter = 'X';
    pid_t parent = 0;
};

/// Of proc_pid_stat(5); dead if there is no such process.
State stateOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    // Which it may end during, and then there is nothing to read.
    std::getline(file, text);
    State state;
    // The name before it may have any characters.
    if (const auto nameEnd = text.rfind(')'); nameEnd != std::string::npos)
        std::istringstream(text.substr(nameEnd + 1)) >> state.letter >> state.parent;
    return state;
}

bool hasEnded(const State& state) {
    return state.letter == 'Z' || state.letter == 'X';
}

} // namespace

bool isRunning(pid_t process) {
    return !hasEnded(stateOf(process));
}

std::set<pid_t> childrenOf(pid_t parent) {
    std::set<pid_t> children;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        pid_t process = 0;
        std::from_chars(name.data(), name.data() + name.size(), process);
        if (process <= 0)
            continue;
        const State state = stateOf(process);
        if (state.parent == parent && !hasEnded(state))
            children.insert(process);
    }
    return children;
}

} // namespace testsupport
