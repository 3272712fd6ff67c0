#pragma once

#include <QString>
#include <QUrl>

#include <filesystem>
#include <string_view>

namespace brisklet {

/// File names are bytes and need not be text. These functions carry them through QUrl without a
/// loss: bytes that are no UTF-8 stand percent-encoded in the URL's path. QUrl::toLocalFile() would
/// replace them, and the file would not be found. Usable on any thread.

/// The URL of a file; a relative path is taken from the current folder.
QUrl urlOf(const std::filesystem::path& path);

/// Whether the text has the form of a URL, such as "file:/a.mov" or "sftp://host/a.mov". A path may
/// have it too.
bool beginsLikeUrl(std::string_view text);

/// The URL that an argument of a command line names: a path, unless it begins like a URL and there
/// is no such folder.
QUrl urlOfArgument(std::string_view argument);

/// Whether the URL names a file of this computer: one without a host, or with a name of this
/// computer. Looks at no file.
bool isOnThisComputer(const QUrl& url);

/// The path that a file URL names, byte for byte. Throws std::runtime_error with a sentence for the
/// user where the file is not on this computer: the path of an address elsewhere may well lead to
/// another file here.
std::filesystem::path pathOf(const QUrl& url);

/// That sentence.
QString notOnThisComputer(const QUrl& url);

/// The last component of the path, extension included, as text for people: what is no UTF-8 shows
/// as replacement characters.
QString displayName(const QUrl& url);

/// displayName() without its extension. A name that only begins with a full stop has none.
QString displayBaseName(const QUrl& url);

} // namespace brisklet
