#include "Media/Process/Wire/Channel.h"

#include "Media/Error.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace media::process {

namespace {

constexpr std::size_t kControlBytes = CMSG_SPACE(Channel::kMostDescriptors * sizeof(int));

std::vector<Descriptor> descriptorsOf(msghdr& header) {
    std::vector<Descriptor> descriptors;
    descriptors.reserve(Channel::kMostDescriptors);
    for (cmsghdr* part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        const std::size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(part) + i * sizeof number, sizeof number);
            descriptors.emplace_back(number);
        }
    }
    return descriptors;
}

} // namespace

Channel::Pair Channel::makePair() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        throw Error(becauseOf(ErrorKind::unreadableFile, reasonOf(errno)));
    return {Channel(Descriptor(ends[0])), Descriptor(ends[1])};
}

bool Channel::send(const Message& message) {
    return sendWith(message, MSG_DONTWAIT);
}

bool Channel::sendWaiting(const Message& message) {
    return sendWith(message, 0);
}

bool Channel::sendWith(const Message& message, int flags) {
    if (message.bytes.size() > kMostBytes || message.descriptors.size() > kMostDescriptors)
        throw BadMessage();
    iovec bytes{const_cast<char*>(message.bytes.data()), message.bytes.size()};
    msghdr header{};
    header.msg_iov = &bytes;
    header.msg_iovlen = 1;
    alignas(cmsghdr) std::array<char, kControlBytes> control{};
    if (!message.descriptors.empty()) {
        std::array<int, kMostDescriptors> numbers{};
        std::ranges::transform(message.descriptors, numbers.begin(), &Descriptor::number);
        const std::size_t count = std::min(message.descriptors.size(), kMostDescriptors);
        header.msg_control = control.data();
        header.msg_controllen = CMSG_SPACE(count * sizeof(int));
        const cmsghdr part{CMSG_LEN(count * sizeof(int)), SOL_SOCKET, SCM_RIGHTS};
        std::memcpy(control.data(), &part, sizeof part);
        std::memcpy(control.data() + CMSG_LEN(0), numbers.data(), count * sizeof(int));
    }
    for (;;) {
        const ssize_t sent = ::sendmsg(m_socket.number(), &header, MSG_NOSIGNAL | flags);
        if (sent >= 0 || errno != EINTR)
            return sent >= 0;
    }
}

bool Channel::waitFor(std::chrono::milliseconds time) const {
    const auto end = std::chrono::steady_clock::now() + time;
    pollfd socket{m_socket.number(), POLLIN, 0};
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        const int count = ::poll(&socket, 1, static_cast<int>(std::max(left.count(), 0L)));
        if (count >= 0 || errno != EINTR)
            return count > 0;
    }
}

std::optional<Message> Channel::receive() {
    std::array<char, kMostBytes> buffer;
    iovec bytes{buffer.data(), buffer.size()};
    alignas(cmsghdr) std::array<char, kControlBytes> control{};
    msghdr header{};
    header.msg_iov = &bytes;
    header.msg_iovlen = 1;
    ssize_t count = 0;
    do {
        header.msg_control = control.data();
        header.msg_controllen = control.size();
        count = ::recvmsg(m_socket.number(), &header, MSG_CMSG_CLOEXEC);
    } while (count < 0 && errno == EINTR);
    Message message;
    message.descriptors = descriptorsOf(header);
    // No message is empty, so nothing but the end has no bytes.
    if (count <= 0 || (header.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0)
        return std::nullopt;
    message.bytes.assign(buffer.data(), static_cast<std::size_t>(count));
    return message;
}

} // namespace media::process
