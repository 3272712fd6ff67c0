#include "Media/Faults.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <string_view>

namespace media {

using testsupport::SystemAnswer;
using testsupport::SystemCall;

namespace {

std::vector<std::string> threadsAndFiles() {
    std::vector<std::string> all;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
        std::string name;
        std::getline(std::ifstream(thread.path() / "comm"), name);
        if (name != program_invocation_short_name)
            all.push_back("thread " + thread.path().filename().string() + " " + name);
    }
    for (const auto& file : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        const auto target = std::filesystem::read_symlink(file.path(), gone);
        // Not the folder that is being listed.
        if (!gone && target.native().find("/fd") == std::string::npos)
            all.push_back("file " + file.path().filename().string() + " " + target.string());
    }
    std::ranges::sort(all);
    return all;
}

} // namespace

std::vector<FaultKind> faultKinds() {
    return {{"diskFull", {.error = ENOSPC}},
            {"quotaUsedUp", {.error = EDQUOT}},
            {"diskError", {.error = EIO}},
            {"interrupted", {.error = EINTR}},
            {"doneButReportedAsError", {.error = EIO, .isDone = true}},
            {"shortened", {.most = 1}}};
}

std::vector<SystemCall::Kind> runWithFault(const FaultPlan& plan,
                                           const std::function<void()>& action) {
    const struct NoMore {
        ~NoMore() { testsupport::setSystemJudge({}); }
    } noMore;

    std::mutex mutex;
    std::vector<SystemCall::Kind> kinds;
    testsupport::setSystemJudge([&](const SystemCall& call) {
        constexpr int kUnnamed = O_TMPFILE;
        if (!plan.hasUnnamedFiles && (call.flags & kUnnamed) == kUnnamed)
            return SystemAnswer{.error = EOPNOTSUPP};
        if (plan.kind && call.kind != *plan.kind)
            return SystemAnswer{};
        const std::lock_guard lock(mutex);
        kinds.push_back(call.kind);
        return std::ssize(kinds) - 1 == plan.number ? plan.answer : SystemAnswer{};
    });
    action();
    return kinds;
}

std::string failureOf(const std::function<void()>& action) {
    try {
        action();
        return "";
    } catch (const std::exception& exception) {
        return exception.what();
    }
}

Leftovers::Leftovers() : m_before(threadsAndFiles()) {}

std::string Leftovers::complaint() const {
    const auto now = threadsAndFiles();
    std::string complaint;
    for (const std::string& entry : now) {
        if (std::ranges::find(m_before, entry) == m_before.end())
            complaint += "left behind: " + entry + "; ";
    }
    for (const std::string& entry : m_before) {
        if (std::ranges::find(now, entry) == now.end())
            complaint += "closed: " + entry + "; ";
    }
    return complaint;
}

std::string complaintAbout(const std::string& sentence) {
    constexpr std::array<std::string_view, 6> kTechnical = {"::",      "errno", "_",
                                                            "Success", "[",     "argument"};
    for (const std::string_view word : kTechnical) {
        if (sentence.find(word) != std::string::npos)
            return "technical: " + sentence;
    }
    const bool isCapital = sentence.starts_with("“") || (sentence[0] >= 'A' && sentence[0] <= 'Z');
    if (!isCapital || !sentence.ends_with('.') || sentence.find(' ') == std::string::npos)
        return "no sentence: " + sentence;
    return "";
}

} // namespace media
