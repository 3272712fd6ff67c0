#pragma once

#include <filesystem>

/// Copies a file whose packets stand in the order in which they are shown, with the packet of the
/// `number`-th picture (from 0) overwritten so that it does not decode. Throws std::runtime_error.
void copyDamaged(const std::filesystem::path& source, int number,
                 const std::filesystem::path& destination);

/// The same with all pictures from the `first` to the `last`.
void copyDamaged(const std::filesystem::path& source, int first, int last,
                 const std::filesystem::path& destination);
