#pragma once

#include <stdexcept>

namespace media {

/// A failure whose what() is a whole sentence for the person at the screen, in UTF-8.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The end of an operation that its caller asked to stop. Never shown to anyone, and not an
/// Error, so that no handler of failures takes it for one.
class Cancelled final : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "Cancelled."; }
};

} // namespace media
