#pragma once

#include "Media/Process/Wire/Channel.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

namespace media::process {

/// An object that a helper keeps for the program. Called on one thread.
class Service {
public:
    /// Sends what an operation in progress reports; any thread, one at a time.
    using Report = std::function<void(MessageWriter)>;

    Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;
    virtual ~Service() = default;

    /// Performs an operation: reads its arguments and writes its answer. Whatever it throws goes to
    /// the caller.
    virtual void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                         const Report& report, const std::stop_token& stop) = 0;

    /// Writes what every answer begins with, after the operation.
    virtual void writePreamble(MessageWriter& /*answer*/) {}
};

/// Serves an object over its channel until the program lets it go. Blocks; a call in progress is
/// stopped then, and waited for. Does not throw.
void serve(Descriptor socket, std::unique_ptr<Service> service) noexcept;

} // namespace media::process
