#pragma once

#include <QString>
#include <QUrl>

#include <filesystem>

namespace brisklet {

/// File names are bytes and need not be text. These functions carry them through QUrl without a
/// loss: bytes that are no UTF-8 stand percent-encoded in the URL's path. QUrl::toLocalFile() would
/// replace them, and the file would not be found. Usable on any thread.

/// The URL of a file; a relative path is taken from the current folder.
QUrl urlOf(const std::filesystem::path& path);

/// The path that a file URL names, byte for byte.
std::filesystem::path pathOf(const QUrl& url);

/// The last component of the path, extension included, as text for people: what is no UTF-8 shows
/// as replacement characters.
QString displayName(const QUrl& url);

/// displayName() without its extension. A name that only begins with a full stop has none.
QString displayBaseName(const QUrl& url);

} // namespace brisklet
