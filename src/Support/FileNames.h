#pragma once

#include <QString>

#include <filesystem>

namespace brisklet {

/// How many bytes a name in this folder may have, 255 at the most. Asks the file system, which may
/// block; any thread.
int longestNameIn(const std::filesystem::path& folder);

/// `base` and `ending` as one name of `mostBytes` bytes (UTF-8) at the most: where it would be
/// longer the base is shortened, between what a reader takes for letters.
QString fittedName(const QString& base, const QString& ending, int mostBytes);

} // namespace brisklet
