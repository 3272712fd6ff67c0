#pragma once

#include <QString>

#include <filesystem>

namespace brisklet {

/// The longest file name, in bytes, that the folder's file system allows; at most 255. Asks the
/// file system, which may block. Any thread.
int maxNameBytesIn(const std::filesystem::path& folder);

/// `base` followed by `suffix`, with the base shortened where the name would be longer than
/// `maxBytes` bytes of UTF-8. Cuts only between what a reader takes for letters (grapheme
/// clusters).
QString truncatedName(const QString& base, const QString& suffix, int maxBytes);

} // namespace brisklet
