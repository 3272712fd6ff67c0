#pragma once

#include <QString>

#include <filesystem>

namespace brisklet {

/// The same text with replacement characters (U+FFFD) for what is no letter but does something to
/// the text around it: control characters, which break lines and steer terminals, and explicit
/// directional formatting (U+202A to U+202E, U+2066 to U+2069), which turns the rest of a sentence
/// around. A file name may hold any of them. Any thread.
QString legible(QString text);

/// The longest file name, in bytes, that the folder's file system allows; at most 255. Asks the
/// file system, which may block. Any thread.
int maxNameBytesIn(const std::filesystem::path& folder);

/// `base` followed by `suffix`, with the base shortened where the name would be longer than
/// `maxBytes` bytes of UTF-8. Cuts only between what a reader takes for letters (grapheme
/// clusters).
QString truncatedName(const QString& base, const QString& suffix, int maxBytes);

} // namespace brisklet
