#include "Platform/GvfsMount.h"

#include <QDBusMessage>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

namespace {

using brisklet::GvfsMount;
using brisklet::gvfsMountsIn;

GvfsMount mount(std::initializer_list<std::pair<const char*, const char*>> attributes,
                const char* prefix = "") {
    GvfsMount mount{.attributes = {}, .prefix = prefix, .folder = "/run/gvfs/m"};
    for (const auto& [key, value] : attributes)
        mount.attributes.insert(QString::fromLatin1(key), QString::fromUtf8(value));
    return mount;
}

/// Empty where the address belongs to none.
std::string pathOf(const QList<GvfsMount>& mounts, const char* address) {
    return pathInMounts(mounts, QUrl::fromEncoded(address)).value_or("").string();
}

TEST(GvfsMount, hasTheFilesOfItsServer) {
    const QList<GvfsMount> mounts{mount({{"type", "sftp"}, {"host", "nas"}})};
    EXPECT_EQ(pathOf(mounts, "sftp://nas/home/me/x.mp4"), "/run/gvfs/m/home/me/x.mp4");
    EXPECT_EQ(pathOf(mounts, "sftp://NAS:22/x.mp4"), "/run/gvfs/m/x.mp4");
    EXPECT_EQ(pathOf(mounts, "ssh://nas/x.mp4"), "/run/gvfs/m/x.mp4");
    EXPECT_EQ(pathOf(mounts, "sftp://nas/a%20b/caf%E9.mp4"), "/run/gvfs/m/a b/caf\xe9.mp4");
    EXPECT_EQ(pathOf(mounts, "sftp://other/x.mp4"), "");
    EXPECT_EQ(pathOf(mounts, "sftp://nas:2222/x.mp4"), "");
    EXPECT_EQ(pathOf(mounts, "sftp://me@nas/x.mp4"), "");
    EXPECT_EQ(pathOf(mounts, "ftp://nas/x.mp4"), "");
}

TEST(GvfsMount, isThatOfTheUserInTheAddressWhereOneIsNamed) {
    GvfsMount mine = mount({{"type", "sftp"}, {"host", "nas"}, {"user", "me"}});
    GvfsMount yours = mount({{"type", "sftp"}, {"host", "nas"}, {"user", "you"}});
    GvfsMount anybodys = mount({{"type", "sftp"}, {"host", "nas"}});
    yours.folder = "/run/gvfs/yours";
    anybodys.folder = "/run/gvfs/anybodys";
    EXPECT_EQ(pathOf({mine, yours}, "sftp://you@nas/x"), "/run/gvfs/yours/x");
    EXPECT_EQ(pathOf({mine, anybodys}, "sftp://nas/x"), "/run/gvfs/anybodys/x");
    EXPECT_EQ(pathOf({mine}, "sftp://nas/x"), "/run/gvfs/m/x");
    EXPECT_EQ(pathOf({mine}, "sftp://you@nas/x"), "");
}

TEST(GvfsMount, isOfOneShareOfAServer) {
    const QList<GvfsMount> mounts{
        mount({{"type", "smb-share"}, {"server", "nas"}, {"share", "films ü"}})};
    EXPECT_EQ(pathOf(mounts, "smb://nas/Films%20%C3%9C/a/x.mp4"), "/run/gvfs/m/a/x.mp4");
    EXPECT_EQ(pathOf(mounts, "smb://nas/films%20%C3%BC"), "/run/gvfs/m");
    EXPECT_EQ(pathOf(mounts, "smb://nas/other/x.mp4"), "");
    EXPECT_EQ(pathOf(mounts, "smb://nas/films%20%C3%BC%20too/x.mp4"), "");
    const QList<GvfsMount> ofUser{
        mount({{"type", "smb-share"}, {"server", "nas"}, {"share", "s"}, {"user", "me"}})};
    EXPECT_EQ(pathOf(ofUser, "smb://HOME;me@nas/s/x.mp4"), "/run/gvfs/m/x.mp4");
}

TEST(GvfsMount, beginsWhereItsPrefixEnds) {
    GvfsMount top = mount({{"type", "dav"}, {"host", "cloud"}, {"ssl", "true"}});
    GvfsMount inner = mount({{"type", "dav"}, {"host", "cloud"}, {"ssl", "true"}}, "/remote/dav");
    top.folder = "/run/gvfs/top";
    EXPECT_EQ(pathOf({top, inner}, "davs://cloud/remote/dav/x.mp4"), "/run/gvfs/m/x.mp4");
    EXPECT_EQ(pathOf({top, inner}, "davs://cloud/remote/davenport/x.mp4"),
              "/run/gvfs/top/remote/davenport/x.mp4");
    EXPECT_EQ(pathOf({inner}, "davs://cloud/x.mp4"), "");
    EXPECT_EQ(pathOf({inner}, "dav://cloud/remote/dav/x.mp4"), "");
}

TEST(GvfsMount, isOfADeviceToo) {
    const QList<GvfsMount> mounts{mount({{"type", "mtp"}, {"host", "Maker_Phone_7"}})};
    EXPECT_EQ(pathOf(mounts, "mtp://Maker_Phone_7/DCIM/x.mp4"), "/run/gvfs/m/DCIM/x.mp4");
}

TEST(GvfsMount, needsAFolderOnThisComputer) {
    GvfsMount bare = mount({{"type", "sftp"}, {"host", "nas"}});
    bare.folder.clear();
    EXPECT_EQ(pathOf({bare}, "sftp://nas/x.mp4"), "");
}

TEST(GvfsMount, isReadFromNoOtherMessage) {
    EXPECT_TRUE(gvfsMountsIn(QDBusMessage()).isEmpty());
    const auto call = QDBusMessage::createMethodCall(QStringLiteral("a.b"), QStringLiteral("/"),
                                                     QStringLiteral("a.b"), QStringLiteral("c"));
    EXPECT_TRUE(gvfsMountsIn(call.createReply(QStringLiteral("text"))).isEmpty());
}

} // namespace
