#pragma once

namespace media {

/// A place in the source. As std::source_location, which clang has only from release 15 on.
struct SourceLocation {
    const char* file = "";
    unsigned line = 0;
    const char* function = "";

    /// As a default argument: the place of the call.
    static constexpr SourceLocation current(const char* file = __builtin_FILE(),
                                            unsigned line = __builtin_LINE(),
                                            const char* function = __builtin_FUNCTION()) noexcept {
        return {.file = file, .line = line, .function = function};
    }
};

/// Writes `file:line: function: what` to standard error and aborts: for mistakes of the program's
/// own, in release builds too. What a file or a user can cause is an Error instead. Any thread.
[[noreturn]] void abortAt(const SourceLocation& where, const char* what) noexcept;

/// Aborts with the caller's place unless `condition` holds. `what` says what should have held. It
/// costs one comparison, so it may stand wherever a function is entered. Any thread.
constexpr void verify(bool condition, const char* what,
                      const SourceLocation& where = SourceLocation::current()) noexcept {
    if (!condition) [[unlikely]]
        abortAt(where, what);
}

} // namespace media
