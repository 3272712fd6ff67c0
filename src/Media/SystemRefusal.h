#pragma once

#include "Media/Error.h"

#include <new>
#include <system_error>

namespace media {

/// Calls `work` and returns its result. Throws an Error if the system refuses it memory or a
/// thread; other exceptions go through.
template<typename Work>
decltype(auto) withRefusalsAsErrors(Work work) {
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
