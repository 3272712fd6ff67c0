#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QUrl>

#include <filesystem>
#include <optional>

class QDBusMessage;

namespace brisklet {

/// One mount of GVfs: a plain value.
struct GvfsMount {
    /// How an address matches the mount.
    struct Match {
        /// The path on this computer.
        std::filesystem::path path;
        /// Greater is better: a longer prefix counts more than the same user.
        qsizetype closeness = 0;
    };

    /// What is mounted: "type", "host" or "server", "share", "user", "port" … as text.
    QMap<QString, QString> attributes;
    /// The remote folder at the root of the mount.
    QByteArray prefix;
    /// The local folder where it is mounted; empty if it has none.
    QByteArray folder;

    /// None if the address is not inside the mount. An address without a user matches mounts of any
    /// user.
    [[nodiscard]] std::optional<Match> match(const QUrl& address) const;

private:
    [[nodiscard]] bool isOfServer(const QUrl& address) const;
};

/// The mounts in an answer to ListMounts; none in any other message.
QList<GvfsMount> gvfsMountsIn(const QDBusMessage& reply);

/// The local path of an address under the mount that matches it best; none if no mount matches.
std::optional<std::filesystem::path> pathInMounts(const QList<GvfsMount>& mounts,
                                                  const QUrl& address);

} // namespace brisklet
