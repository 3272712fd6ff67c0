#include "Media/Process/Server/FileFence.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <sys/syscall.h>
#include <unistd.h>

namespace media::process {

namespace {

// The interface is that of Linux 6.12 (ABI 6 of Landlock), written out since the headers to build
// with may be older.

constexpr long kCreateRuleset = 444;
constexpr long kRestrictSelf = 446;
constexpr unsigned kAskVersion = 1;

struct Ruleset {
    std::uint64_t handledFiles = 0;
    std::uint64_t handledNetwork = 0;
    std::uint64_t scoped = 0;
};

/// How many kinds of access to files each version of the interface knows, beginning with 1.
constexpr std::array kFileRights = {13U, 14U, 15U, 15U, 16U};
constexpr int kNetworkSince = 4;
/// TCP: to bind, to connect.
constexpr std::uint64_t kNetworkRights = 0b11;
constexpr int kScopesSince = 6;
/// Sockets with abstract names; signals.
constexpr std::uint64_t kScopes = 0b11;

Ruleset everythingOf(long version) {
    constexpr long kKnown{kFileRights.size()};
    const auto index = static_cast<std::size_t>(std::min(version, kKnown)) - 1;
    Ruleset ruleset;
    ruleset.handledFiles = (std::uint64_t{1} << kFileRights.at(index)) - 1;
    ruleset.handledNetwork = version >= kNetworkSince ? kNetworkRights : 0;
    ruleset.scoped = version >= kScopesSince ? kScopes : 0;
    return ruleset;
}

std::size_t sizeFor(long version) {
    if (version >= kScopesSince)
        return sizeof(Ruleset);
    return version >= kNetworkSince ? 2 * sizeof(std::uint64_t) : sizeof(std::uint64_t);
}

} // namespace

void fenceOffFiles() noexcept {
    const long version = ::syscall(kCreateRuleset, nullptr, std::size_t{0}, kAskVersion);
    if (version < 1)
        return;
    // What is handled is forbidden where no rule allows it, and there is none.
    const Ruleset ruleset = everythingOf(version);
    const long descriptor = ::syscall(kCreateRuleset, &ruleset, sizeFor(version), 0U);
    if (descriptor < 0)
        return;
    ::syscall(kRestrictSelf, descriptor, 0U);
    ::close(static_cast<int>(descriptor));
}

} // namespace media::process
