#pragma once

#include <QString>
#include <QUrl>

#include <filesystem>
#include <string_view>

namespace brisklet {

/// File names are bytes and need not be valid text. These functions carry them through QUrl without
/// loss: bytes that are not UTF-8 are percent-encoded in the URL's path. QUrl::toLocalFile() would
/// replace them, and the file would not be found. Usable on any thread.

/// The URL of a file; a relative path is taken from the current folder.
QUrl urlOf(const std::filesystem::path& path);

/// Whether the text begins with a scheme, as in "file:/a.mov" or "sftp://host/a.mov". A path may do
/// so too.
bool looksLikeUrl(std::string_view text);

/// The URL that a command-line argument names. It is taken as a path, unless it looks like a URL
/// and the folder of such a path does not exist.
QUrl urlOfArgument(std::string_view argument);

/// Whether the URL names a file of this computer: a file URL without a host, or with this
/// computer's own name. Touches no disk.
bool isOnThisComputer(const QUrl& url);

/// The path that a file URL names, byte for byte. Throws std::runtime_error with a sentence for the
/// user if the file is not on this computer: the same path may well name another file here.
std::filesystem::path pathOf(const QUrl& url);

/// The sentence for the user that pathOf() throws.
QString notOnThisComputerMessage(const QUrl& url);

/// The last component of the path, extension included, as text: bytes that are not UTF-8 become
/// replacement characters.
QString displayName(const QUrl& url);

/// displayName() for titles and sentences; see legible().
QString shownName(const QUrl& url);

/// displayName() without its extension. A leading full stop starts no
/// extension.
QString displayBaseName(const QUrl& url);

} // namespace brisklet
