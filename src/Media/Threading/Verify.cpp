#include "Media/Threading/Verify.h"

#include <cstdio>
#include <cstdlib>

namespace media {

void abortAt(const SourceLocation& where, const char* what) noexcept {
    std::fprintf(stderr, "%s:%u: %s: %s\n", where.file, where.line, where.function, what);
    std::abort();
}

} // namespace media
