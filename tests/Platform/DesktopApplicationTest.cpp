#include "Platform/DesktopApplication.h"

#include "QtSupport/EventPump.h"
#include "QtSupport/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

using brisklet::DesktopApplication;
using testsupport::pumpUntil;
using Role = DesktopApplication::Role;

const QString kName = QStringLiteral("com.quorvan.brisklet");

class DesktopApplicationTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not here";
        m_application = std::make_unique<DesktopApplication>(m_bus.connect(), kName);
    }

    /// A call as a launcher makes it.
    bool call(const QString& method, const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(kName, QStringLiteral("/com/quorvan/brisklet"),
                                           QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        const QDBusPendingCall pending = m_bus.connect().asyncCall(message);
        return pumpUntil([&pending] { return pending.isFinished(); }) && !pending.isError();
    }

    testsupport::PrivateBus m_bus;
    std::unique_ptr<DesktopApplication> m_application;
};

TEST_F(DesktopApplicationTest, ownsTheNameOfTheFirst) {
    EXPECT_EQ(m_application->claim({}, {}), Role::owner);
}

TEST_F(DesktopApplicationTest, servesItsInterface) {
    ASSERT_EQ(m_application->claim({}, {}), Role::owner);
    QSignalSpy activated(m_application.get(), &DesktopApplication::activated);
    QSignalSpy opened(m_application.get(), &DesktopApplication::filesOpened);
    QSignalSpy acted(m_application.get(), &DesktopApplication::actionActivated);
    const QVariantMap data{{QStringLiteral("activation-token"), QStringLiteral("token")}};

    EXPECT_TRUE(call(QStringLiteral("Activate"), {data}));
    ASSERT_EQ(activated.size(), 1);
    EXPECT_EQ(activated[0][0].toMap(), data);

    const QStringList uris{QStringLiteral("file:///tmp/b.mov"),
                           QStringLiteral("file:///tmp/caf%E9%20%23.mov"), QString()};
    EXPECT_TRUE(call(QStringLiteral("Open"), {uris, data}));
    ASSERT_EQ(opened.size(), 1);
    const auto files = opened[0][0].value<QList<QUrl>>();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[1].toEncoded(), "file:///tmp/caf%E9%20%23.mov");

    EXPECT_TRUE(call(QStringLiteral("ActivateAction"),
                     {QStringLiteral("new-window"), QVariantList(), data}));
    ASSERT_EQ(acted.size(), 1);
    EXPECT_EQ(acted[0][0].toString(), QStringLiteral("new-window"));
    EXPECT_FALSE(call(QStringLiteral("Explode"), {}));
}

TEST_F(DesktopApplicationTest, isAloneWithoutABus) {
    DesktopApplication application(
        QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere"),
                                      QStringLiteral("no-bus")),
        kName);
    EXPECT_EQ(application.claim({}, {}), Role::alone);
}

TEST_F(DesktopApplicationTest, refusesToStartBesideAnOwnerThatDoesNotServe) {
    QDBusConnection other = m_bus.connect();
    ASSERT_TRUE(other.registerService(kName));
    EXPECT_THROW(m_application->claim({}, {}), std::runtime_error);
}

TEST_F(DesktopApplicationTest, takesThePlaceOfAnOwnerThatHasEnded) {
    {
        QDBusConnection other = m_bus.connect();
        ASSERT_TRUE(other.registerService(kName));
        QDBusConnection::disconnectFromBus(other.name());
    }
    EXPECT_TRUE(pumpUntil([this] { return m_application->claim({}, {}) == Role::owner; }));
}

TEST_F(DesktopApplicationTest, givesTheNameBackWithAllItWasAskedBefore) {
    ASSERT_EQ(m_application->claim({}, {}), Role::owner);
    QSignalSpy activated(m_application.get(), &DesktopApplication::activated);
    // Sent, but not yet delivered: the event loop has not run.
    QDBusMessage message = QDBusMessage::createMethodCall(
        kName, QStringLiteral("/com/quorvan/brisklet"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    message << QVariantMap();
    QDBusConnection caller = m_bus.connect();
    const QDBusPendingCall pending = caller.asyncCall(message);
    // The caller's next answer comes after the bus has passed the call on.
    caller.interface();
    m_application->release();
    EXPECT_TRUE(pumpUntil([&pending] { return pending.isFinished(); }));
    EXPECT_EQ(activated.size(), pending.isError() ? 0 : 1);
    DesktopApplication next(m_bus.connect(), kName);
    EXPECT_EQ(next.claim({}, {}), Role::owner);
}

TEST_F(DesktopApplicationTest, takesTheNameAgain) {
    ASSERT_EQ(m_application->claim({}, {}), Role::owner);
    m_application->release();
    m_application->reclaim();
    QSignalSpy activated(m_application.get(), &DesktopApplication::activated);
    EXPECT_TRUE(call(QStringLiteral("Activate"), {QVariantMap()}));
    EXPECT_EQ(activated.size(), 1);
}

TEST_F(DesktopApplicationTest, passesOnWhatTheLauncherSays) {
    qputenv("XDG_ACTIVATION_TOKEN", "a token");
    qputenv("DESKTOP_STARTUP_ID", "an id");
    const QVariantMap data = DesktopApplication::launchData();
    qunsetenv("XDG_ACTIVATION_TOKEN");
    qunsetenv("DESKTOP_STARTUP_ID");
    EXPECT_EQ(data.value(QStringLiteral("activation-token")).toString(), QStringLiteral("a token"));
    EXPECT_EQ(data.value(QStringLiteral("desktop-startup-id")).toString(), QStringLiteral("an id"));
    EXPECT_TRUE(DesktopApplication::launchData().isEmpty());
}

} // namespace
