#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace brisklet {

/// One release in a feed.
struct AppcastItem {
    /// The version that is compared, and the one that is shown.
    QString version;
    QString shortVersion;
    /// The oldest release of the system that it runs on; empty for all.
    QString minimumSystemVersion;
    /// Plain text.
    QString releaseNotes;
    QUrl packageUrl;
    /// Size of the package in bytes; positive.
    qint64 length = 0;
    /// Ed25519 over the whole package: 64 bytes.
    QByteArray signature;
};

/// Reads the releases for Linux from an RSS feed. Incomplete entries are left out. Throws
/// std::runtime_error with a sentence for the user if the document is not a feed.
std::vector<AppcastItem> parseAppcast(const QByteArray& document);

/// The newest release that is newer than `currentVersion` and runs on `systemVersion`; none if
/// there is none.
std::optional<AppcastItem> newestUpdate(const std::vector<AppcastItem>& items,
                                        const QString& currentVersion,
                                        const QString& systemVersion);

} // namespace brisklet
