#pragma once

#include "Media/Error.h"

#include <new>
#include <system_error>

namespace media {

/// Calls `work` and hands back its result. If the system has no more memory or threads for it, that
/// is an Error; other exceptions go through.
template<typename Work>
decltype(auto) tellingOfRefusals(Work work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        throw Error(ErrorKind::notEnoughMemory);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::resource_unavailable_try_again)
            throw;
        throw Error(ErrorKind::noMoreThreads);
    }
}

} // namespace media
