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
    /// An address that belongs to the mount.
    struct Match {
        /// On this computer.
        std::filesystem::path path;
        /// Greater for a mount that begins further down, and for one of the very user.
        qsizetype closeness = 0;
    };

    /// What it is of: "type", "host" or "server", "share", "user", "port" … as text.
    QMap<QString, QString> attributes;
    /// The folder of the other side that it begins with.
    QByteArray prefix;
    /// Where it stands among the folders of this computer; empty where it does not.
    QByteArray folder;

    /// None where the address does not belong to the mount. An address that names no user belongs
    /// to the mount of any.
    [[nodiscard]] std::optional<Match> match(const QUrl& address) const;

private:
    [[nodiscard]] bool isOfServer(const QUrl& address) const;
};

/// The mounts in an answer to ListMounts; none in any other message.
QList<GvfsMount> gvfsMountsIn(const QDBusMessage& reply);

/// The path of an address under the mount that it belongs to most closely; none where there is no
/// such mount.
std::optional<std::filesystem::path> pathInMounts(const QList<GvfsMount>& mounts,
                                                  const QUrl& address);

} // namespace brisklet
