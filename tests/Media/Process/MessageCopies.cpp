#include "Media/Process/MessageCopies.h"

#include <fcntl.h>

namespace media::process {

Message copyOf(const Message& message) {
    Message copy{message.bytes, {}};
    for (const Descriptor& descriptor : message.descriptors)
        copy.descriptors.emplace_back(::fcntl(descriptor.number(), F_DUPFD_CLOEXEC, 0));
    return copy;
}

Message cutShort(const Message& message, std::size_t byteCount) {
    Message copy = copyOf(message);
    copy.bytes.resize(byteCount);
    return copy;
}

} // namespace media::process
