#include "AppFixture.h"

#include "OtherStart.h"
#include "Platform/DesktopMounts.h"
#include "QtSupport/PrivateBus.h"
#include "RemoteMounts.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWindow>

#include <chrono>
#include <filesystem>
#include <memory>

namespace brisklet {
namespace {

using testsupport::environmentOn;
using testsupport::OtherStart;
using testsupport::pumpUntil;

/// A file on another computer, whose path leads to another file on this one. The first was never
/// looked for: the scheme and the host of an address were dropped.
class RemoteFilesTest : public AppFixture {
protected:
    void SetUp() override {
        if (!m_bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not here";
        m_session =
            std::make_unique<DesktopApplication>(m_bus.connect(), BriskletApp::sessionName());
        ASSERT_EQ(m_session->claim({}, {}), DesktopApplication::Role::owner);
        std::filesystem::copy_file(pathOf(video(1)), m_folder / "x.mp4");
        std::filesystem::create_directories(pathOf(mounted()).parent_path());
        std::filesystem::copy_file(pathOf(video(2)), pathOf(mounted()));
        m_app->launch({}, m_session.get());
        ASSERT_TRUE(testsupport::showActive(window()));
    }

    ~RemoteFilesTest() override {
        stopExports();
        m_app.reset();
    }

    WindowRootView& window() { return *m_app->windows().first(); }

    EditState& state() { return *window().state(); }

    /// With the path of a file of this computer.
    QString address(const QString& start = QStringLiteral("sftp://nas")) const {
        return start + QString::fromStdString((m_folder / "x.mp4").string());
    }

    /// Where the file of the other computer is found on this one.
    QUrl mounted() const {
        return urlOf((m_folder / "mount").string() + (m_folder / "x.mp4").string());
    }

    testsupport::GvfsMount mount() const {
        return {.attributes = {{QStringLiteral("type"), QStringLiteral("sftp")},
                               {QStringLiteral("host"), QStringLiteral("nas")},
                               {QStringLiteral("user"), QStringLiteral("me")}},
                .folder = QByteArray::fromStdString((m_folder / "mount").string())};
    }

    /// As a desktop hands a file over.
    void openByBus(const QString& uri) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("com.quorvan.brisklet"), QStringLiteral("/com/quorvan/brisklet"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"));
        message << QStringList{uri} << QVariantMap();
        m_bus.connect().asyncCall(message);
    }

    /// As the windowing system delivers a drop: to the window, which finds the view.
    bool drop(const QString& uri) {
        QMimeData data;
        data.setUrls({QUrl(uri)});
        QWindow* target = window().windowHandle();
        const QPoint middle(target->width() / 2, target->height() / 2);
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
        return enter.isAccepted() && drop.isAccepted();
    }

    bool shows(const QUrl& file) {
        return pumpUntil(
                   [this] { return state().videoURL().has_value() || state().errorMessage(); }) &&
               state().videoURL() == file;
    }

    /// Whether the address is refused by name, and nothing is opened in its place.
    bool isRefused(const QString& uri) {
        return pumpUntil(
                   [this] { return state().videoURL().has_value() || state().errorMessage(); }) &&
               !state().videoURL() &&
               state().errorMessage() == QStringLiteral("Couldn't open “x.mp4”: “") + uri +
                                             QStringLiteral("” is not on this computer, and no "
                                                            "folder here leads to it.");
    }

    testsupport::PrivateBus m_bus;
    std::unique_ptr<DesktopApplication> m_session;
};

TEST_F(RemoteFilesTest, opensWhatGvfsHasMountedWhenTheDesktopHandsItOver) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    gvfs.mounts << mount();
    openByBus(address());
    EXPECT_TRUE(shows(mounted()));
    EXPECT_EQ(window().windowTitle(), QStringLiteral("x.mp4"));
}

TEST_F(RemoteFilesTest, opensWhatGvfsHasMountedWhenItIsDropped) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    gvfs.mounts << mount();
    ASSERT_TRUE(drop(address(QStringLiteral("sftp://me@nas"))));
    EXPECT_TRUE(shows(mounted()));
}

TEST_F(RemoteFilesTest, opensWhatGvfsHasMountedWhenItIsNamedToALaterStart) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    gvfs.mounts << mount();
    const OtherStart start(environmentOn(m_bus, {}), {address()});
    EXPECT_TRUE(shows(mounted()));
}

TEST_F(RemoteFilesTest, hasTheDesktopMountWhatIsNotMountedYet) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    testsupport::FakeKioFuse kioFuse(m_bus.connect());
    kioFuse.places.insert(address(), mounted().toLocalFile());
    openByBus(address());
    EXPECT_TRUE(shows(mounted()));
}

TEST_F(RemoteFilesTest, refusesByNameWhatTheDesktopHandsOverButCannotReach) {
    openByBus(address());
    EXPECT_TRUE(isRefused(address())) << state().errorMessage().value_or(QString()).toStdString();
}

TEST_F(RemoteFilesTest, refusesByNameWhatIsDroppedAndCannotBeReached) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    testsupport::FakeKioFuse kioFuse(m_bus.connect());
    ASSERT_TRUE(drop(address()));
    EXPECT_TRUE(isRefused(address())) << state().errorMessage().value_or(QString()).toStdString();
    EXPECT_EQ(gvfs.askCount, 1);
    EXPECT_EQ(kioFuse.asked, QList<QString>{address()});
}

TEST_F(RemoteFilesTest, refusesByNameWhatIsNamedToALaterStartAndCannotBeReached) {
    const OtherStart start(environmentOn(m_bus, {}), {address()});
    EXPECT_TRUE(isRefused(address())) << state().errorMessage().value_or(QString()).toStdString();
}

// A daemon that hangs on a dead server must not take the file, or the window, with it.
TEST_F(RemoteFilesTest, doesNotWaitForEverForADesktopThatDoesNotAnswer) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    gvfs.answers = false;
    testsupport::FakeKioFuse kioFuse(m_bus.connect());
    kioFuse.places.insert(address(), mounted().toLocalFile());
    const DesktopMounts::Limits limits{.listing = std::chrono::milliseconds(50),
                                       .mounting = std::chrono::seconds(60)};
    state().setRemoteFiles(std::make_shared<DesktopMounts>(m_session->bus(), limits));
    ASSERT_TRUE(drop(address()));
    EXPECT_TRUE(shows(mounted()));
    EXPECT_EQ(gvfs.askCount, 1);
}

TEST_F(RemoteFilesTest, takesAFileAddressWithAnotherHostForWhatItIs) {
    testsupport::FakeKioFuse kioFuse(m_bus.connect());
    const QString elsewhere = address(QStringLiteral("file://otherhost"));
    kioFuse.places.insert(elsewhere, QString::fromStdString((m_folder / "x.mp4").string()));
    openByBus(elsewhere);
    EXPECT_TRUE(isRefused(elsewhere)) << state().errorMessage().value_or(QString()).toStdString();
}

TEST_F(RemoteFilesTest, takesTheNamesOfThisComputerForThisComputer) {
    openByBus(address(QStringLiteral("file://localhost")));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    EXPECT_EQ(pathOf(*state().videoURL()), m_folder / "x.mp4");
}

TEST_F(RemoteFilesTest, asksNobodyAboutAFileOfThisComputer) {
    testsupport::FakeGvfs gvfs(m_bus.connect());
    testsupport::FakeKioFuse kioFuse(m_bus.connect());
    openByBus(address(QStringLiteral("file://")));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    EXPECT_EQ(gvfs.askCount, 0);
    EXPECT_TRUE(kioFuse.asked.isEmpty());
}

TEST_F(RemoteFilesTest, neverWritesToThePathOfAnAddressElsewhere) {
    state().load(video(1));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    const auto place = m_folder / "out.mp4";
    state().exportTo(QUrl(QStringLiteral("sftp://nas") + QString::fromStdString(place.string())));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_FALSE(std::filesystem::exists(place));
    EXPECT_EQ(state().errorMessage(), QStringLiteral("Export failed: “sftp://nas") +
                                          QString::fromStdString(place.string()) +
                                          QStringLiteral("” is not on this computer, and no "
                                                         "folder here leads to it."));
}

} // namespace
} // namespace brisklet
