#include "Platform/Appearance.h"
#include "Platform/FileTransferPortal.h"

#include "QtSupport/EventPump.h"
#include "QtSupport/PrivateBus.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QPalette>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <optional>

namespace brisklet {

/// The desktop's side of the two portals, with the answers a test gives it.
class FakePortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const QDBusConnection& bus) : m_bus(bus) {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void change(uint newScheme) {
        scheme = newScheme;
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                 QStringLiteral("org.freedesktop.portal.Settings"),
                                                 QStringLiteral("SettingChanged"));
        signal << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme")
               << QVariant::fromValue(QDBusVariant(scheme));
        m_bus.send(signal);
    }

    Q_SLOT QDBusVariant Read(const QString& /*group*/, const QString& /*key*/) {
        ++readCount;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }

    uint scheme = 0;
    int readCount = 0;

private:
    QDBusConnection m_bus;
};

class FakeDocuments final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileTransfer")

public:
    explicit FakeDocuments(QDBusConnection bus) {
        bus.registerObject(QStringLiteral("/org/freedesktop/portal/documents"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Documents"));
    }

    Q_SLOT QStringList RetrieveFiles(const QString& key, const QVariantMap& /*options*/) {
        return key == QStringLiteral("4711")
                   ? QStringList{QStringLiteral("/tmp/a b.mov"), QStringLiteral("/tmp/c.mov")}
                   : QStringList();
    }
};

namespace {

using testsupport::pumpUntil;

bool looksDark() {
    return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

class PortalsTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not here";
    }

    ~PortalsTest() override { QApplication::setPalette(QPalette()); }

    testsupport::PrivateBus m_bus;
};

TEST_F(PortalsTest, turnsDarkWithADarkDesktopAndLightAgainWithIt) {
    FakePortal portal(m_bus.connect());
    portal.scheme = 1;
    ASSERT_FALSE(looksDark());
    const Appearance appearance(m_bus.connect());
    EXPECT_TRUE(pumpUntil(looksDark));
    portal.change(2);
    EXPECT_TRUE(pumpUntil([] { return !looksDark(); }));
    portal.change(1);
    EXPECT_TRUE(pumpUntil(looksDark));
    portal.change(0);
    EXPECT_TRUE(pumpUntil([] { return !looksDark(); }));
}

TEST_F(PortalsTest, leavesTheLookOfALightDesktopAlone) {
    QPalette own = QApplication::palette();
    own.setColor(QPalette::Window, QColor(0xfd, 0xf6, 0xe3));
    QApplication::setPalette(own);
    const QPalette before = QApplication::palette();
    FakePortal portal(m_bus.connect());
    QDBusConnection bus = m_bus.connect();
    const Appearance appearance(bus);
    ASSERT_TRUE(pumpUntil([&portal] { return portal.readCount == 1; }));
    portal.change(2);
    // The bus keeps the order: what came before this answer has been heard with it.
    const QDBusPendingCall last = bus.asyncCall(QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping")));
    ASSERT_TRUE(pumpUntil([&last] { return last.isFinished(); }));
    testsupport::pumpPending();
    EXPECT_EQ(QApplication::palette(), before);
}

TEST_F(PortalsTest, asksForTheFilesBehindATransfer) {
    const FakeDocuments documents(m_bus.connect());
    std::optional<QList<QUrl>> files;
    retrieveTransferredFiles(m_bus.connect(), "4711",
                             [&files](const QList<QUrl>& answer) { files = answer; });
    ASSERT_TRUE(pumpUntil([&files] { return files.has_value(); }));
    EXPECT_EQ(*files, (QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/tmp/a b.mov")),
                                   QUrl::fromLocalFile(QStringLiteral("/tmp/c.mov"))}));
}

TEST_F(PortalsTest, findsNoFilesWithoutAPortal) {
    std::optional<QList<QUrl>> files;
    retrieveTransferredFiles(m_bus.connect(), "4711",
                             [&files](const QList<QUrl>& answer) { files = answer; });
    ASSERT_TRUE(pumpUntil([&files] { return files.has_value(); }));
    EXPECT_TRUE(files->isEmpty());
}

} // namespace
} // namespace brisklet

#include "PortalsTest.moc"
