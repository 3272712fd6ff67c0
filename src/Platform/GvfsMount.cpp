#include "Platform/GvfsMount.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariantMap>

#include <array>
#include <string>
#include <utility>

namespace brisklet {

namespace {

/// The type of a mount for the scheme of an address, which may have another name, and its default
/// port.
struct Protocol {
    const char* scheme;
    const char* type;
    int port;
};

constexpr std::array kProtocols = {Protocol{"sftp", "sftp", 22},      Protocol{"ssh", "sftp", 22},
                                   Protocol{"smb", "smb-share", 445}, Protocol{"ftp", "ftp", 21},
                                   Protocol{"dav", "dav", 80},        Protocol{"davs", "dav", 443},
                                   Protocol{"afp", "afp-volume", 548}};

/// `scheme` must outlive the result.
Protocol protocolOf(const QByteArray& scheme) {
    for (const Protocol& protocol : kProtocols) {
        if (scheme == protocol.scheme)
            return protocol;
    }
    return {scheme.constData(), scheme.constData(), -1};
}

/// The percent-decoded path of an address, without a final slash.
QByteArray decodedPath(const QUrl& address) {
    QByteArray path = QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1());
    while (path.endsWith('/'))
        path.chop(1);
    return path;
}

/// Whether `folder` is `path` or one of its parents; both begin with a slash or are empty.
bool leadsTo(const QByteArray& folder, const QByteArray& path) {
    return path.startsWith(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// A byte string without the final zero byte that GVfs adds.
QByteArray bytesOf(const QVariant& value) {
    QByteArray bytes =
        value.userType() == QMetaType::QString ? value.toString().toUtf8() : value.toByteArray();
    const qsizetype end = bytes.indexOf('\0');
    return end < 0 ? bytes : bytes.left(end);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, GvfsMount& mount) {
    QString text;
    QDBusObjectPath object;
    bool isVisible = false;
    QByteArray folder;
    QByteArray prefix;
    QByteArray start;
    QVariantMap attributes;
    argument.beginStructure();
    argument >> text >> object >> text >> text >> text >> text >> text >> text >> isVisible >>
        folder;
    argument.beginStructure();
    argument >> prefix >> attributes;
    argument.endStructure();
    argument >> start;
    argument.endStructure();
    for (auto item = attributes.constBegin(); item != attributes.constEnd(); ++item)
        mount.attributes.insert(item.key(), QString::fromUtf8(bytesOf(item.value())));
    mount.prefix = bytesOf(prefix);
    while (mount.prefix.endsWith('/'))
        mount.prefix.chop(1);
    mount.folder = bytesOf(folder);
    return argument;
}

} // namespace

std::optional<GvfsMount::Match> GvfsMount::match(const QUrl& address) const {
    if (folder.isEmpty() || !isOfServer(address))
        return std::nullopt;
    // SMB user names may begin with a domain.
    const QString user = address.userName().section(u';', -1);
    const QString mountedBy = attributes.value(QStringLiteral("user"));
    if (!user.isEmpty() && user != mountedBy)
        return std::nullopt;
    QByteArray path = decodedPath(address);
    // The first folder of the address is the share, which is not part of paths in the mount.
    const QString share =
        attributes.value(QStringLiteral("share"), attributes.value(QStringLiteral("volume")));
    if (!share.isEmpty()) {
        const QByteArray first =
            path.left(path.indexOf('/', 1) < 0 ? path.size() : path.indexOf('/', 1));
        if (QString::fromUtf8(first.mid(1)).compare(share, Qt::CaseInsensitive) != 0)
            return std::nullopt;
        path.remove(0, first.size());
    }
    if (!leadsTo(prefix, path))
        return std::nullopt;
    return Match{.path = (folder + path.mid(prefix.size())).toStdString(),
                 .closeness = 2 * prefix.size() + (user == mountedBy ? 1 : 0)};
}

bool GvfsMount::isOfServer(const QUrl& address) const {
    const QByteArray scheme = address.scheme().toLatin1();
    const Protocol protocol = protocolOf(scheme);
    const QString type = attributes.value(QStringLiteral("type"));
    const QString host =
        attributes.value(QStringLiteral("host"), attributes.value(QStringLiteral("server")));
    const int port =
        attributes.value(QStringLiteral("port"), QString::number(protocol.port)).toInt();
    const bool isEncrypted = attributes.value(QStringLiteral("ssl")) == u"true";
    return type == QLatin1String(protocol.type) &&
           host.compare(address.host(), Qt::CaseInsensitive) == 0 &&
           port == address.port(protocol.port) &&
           (type != u"dav" || isEncrypted == (scheme == "davs"));
}

QList<GvfsMount> gvfsMountsIn(const QDBusMessage& reply) {
    QList<GvfsMount> mounts;
    if (reply.type() != QDBusMessage::ReplyMessage ||
        reply.signature() != u"a(sossssssbay(aya{sv})ay)")
        return mounts;
    const auto list = reply.arguments().at(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        GvfsMount mount;
        list >> mount;
        mounts << mount;
    }
    list.endArray();
    return mounts;
}

std::optional<std::filesystem::path> pathInMounts(const QList<GvfsMount>& mounts,
                                                  const QUrl& address) {
    std::optional<GvfsMount::Match> best;
    for (const GvfsMount& mount : mounts) {
        auto match = mount.match(address);
        if (match && (!best || match->closeness > best->closeness))
            best = std::move(match);
    }
    if (!best)
        return std::nullopt;
    return std::move(best->path);
}

} // namespace brisklet
