#include "AppFixture.h"

#include "PrivateDisplay.h"
#include "QtSupport/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

QProcessEnvironment environmentOn(const testsupport::PrivateBus& bus, const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("DISPLAY"), display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       display.isEmpty() ? QStringLiteral("offscreen") : QStringLiteral("xcb"));
    return environment;
}

/// Another start of the program, in this test's session.
class OtherStart {
public:
    OtherStart(const QProcessEnvironment& environment, const QStringList& arguments,
               const QString& folder = QStringLiteral("/")) {
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(folder);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(BRISKLET_APP), arguments);
    }

    OtherStart(const OtherStart&) = delete;
    OtherStart& operator=(const OtherStart&) = delete;

    ~OtherStart() {
        m_process.terminate();
        m_process.waitForFinished();
    }

    [[nodiscard]] bool hasEnded() const { return m_process.state() == QProcess::NotRunning; }

    [[nodiscard]] int exitCode() const { return m_process.exitCode(); }

    /// Whether this file is part of the running process.
    [[nodiscard]] bool hasLoaded(const QByteArray& file) const {
        QFile maps(QStringLiteral("/proc/%1/maps").arg(m_process.processId()));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(file);
    }

private:
    QProcess m_process;
};

/// The first process is the test itself.
class SessionTest : public AppFixture {
protected:
    void SetUp() override {
        if (!m_bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not here";
        m_session =
            std::make_unique<DesktopApplication>(m_bus.connect(), BriskletApp::sessionName());
        ASSERT_EQ(m_session->claim({}, {}), DesktopApplication::Role::owner);
        m_app->launch({}, m_session.get());
        ASSERT_TRUE(testsupport::showActive(*m_app->windows().first()));
    }

    /// Whether a start with these arguments ends as one does that has handed all over.
    bool handsOver(const QStringList& arguments, const QString& folder = QStringLiteral("/")) {
        const OtherStart start(environmentOn(m_bus, {}), arguments, folder);
        return pumpUntil([&start] { return start.hasEnded(); }) && start.exitCode() == 0;
    }

    bool showVideos(qsizetype count) {
        return pumpUntil([this, count] {
            return m_app->windows().size() == count &&
                   std::ranges::all_of(m_app->windows(), [](const WindowRootView* window) {
                       return window->state()->videoURL().has_value();
                   });
        });
    }

    ~SessionTest() override {
        stopExports();
        m_app.reset();
    }

    testsupport::PrivateBus m_bus;
    std::unique_ptr<DesktopApplication> m_session;
};

TEST_F(SessionTest, takesTheFilesOfALaterStart) {
    ASSERT_TRUE(handsOver({video(1).toLocalFile(), video(2).toLocalFile()}));
    ASSERT_TRUE(showVideos(2));
    EXPECT_EQ(m_app->windows()[0]->state()->videoURL(), video(1));
    EXPECT_EQ(m_app->windows()[1]->state()->videoURL(), video(2));
}

TEST_F(SessionTest, takesNamesThatAreNoTextFromTheFolderOfTheLaterStart) {
    const auto name = m_folder / "caf\xe9 #1%.mp4";
    std::filesystem::copy_file(pathOf(video(1)), name);
    QProcess shell;
    shell.setProcessEnvironment(environmentOn(m_bus, {}));
    shell.setWorkingDirectory(QFile::decodeName(m_folder.path().c_str()));
    shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("exec \"$0\" *.mp4"),
                                       QStringLiteral(BRISKLET_APP)});
    ASSERT_TRUE(pumpUntil([&shell] { return shell.state() == QProcess::NotRunning; }));
    EXPECT_EQ(shell.exitCode(), 0);
    ASSERT_TRUE(showVideos(1));
    EXPECT_EQ(pathOf(*m_app->windows()[0]->state()->videoURL()), name);
}

TEST_F(SessionTest, opensNoOtherWindowForALaterStartWithoutFiles) {
    ASSERT_TRUE(handsOver({}));
    EXPECT_EQ(m_app->windows().size(), 1);
}

TEST_F(SessionTest, opensAWindowForTheAction) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("com.quorvan.brisklet"), QStringLiteral("/com/quorvan/brisklet"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
    message << QStringLiteral("new-window") << QVariantList() << QVariantMap();
    m_bus.connect().asyncCall(message);
    EXPECT_TRUE(pumpUntil([this] { return m_app->windows().size() == 2; }));
}

TEST_F(SessionTest, usesTheTokenOfTheLaterStartToComeToTheFront) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("com.quorvan.brisklet"), QStringLiteral("/com/quorvan/brisklet"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    message << QVariantMap{{QStringLiteral("activation-token"), QStringLiteral("a token")}};
    m_bus.connect().asyncCall(message);
    // Where the toolkit takes it from; this platform has no use for it.
    EXPECT_TRUE(pumpUntil([] { return qgetenv("XDG_ACTIVATION_TOKEN") == "a token"; }));
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

/// What a call from another process comes to, made from within this one: the moment is what counts.
class LateCall {
public:
    explicit LateCall(const testsupport::PrivateBus& bus) : m_connection(bus.connect()) {}

    /// Opens a file in the process that has `owner`, a name or the process's own. Returns when the
    /// bus has passed that on.
    void open(const QString& owner, const QUrl& file) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            owner, QStringLiteral("/com/quorvan/brisklet"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"));
        message << QStringList{QString::fromLatin1(file.toEncoded())} << QVariantMap();
        m_pending.emplace(m_connection.asyncCall(message));
        // What this connection asks next is answered after that.
        m_connection.interface()->registeredServiceNames();
    }

    [[nodiscard]] bool isAnswered() const { return m_pending && m_pending->isFinished(); }

    [[nodiscard]] bool isTaken() const { return isAnswered() && !m_pending->isError(); }

private:
    QDBusConnection m_connection;
    std::optional<QDBusPendingCall> m_pending;
};

// A file was lost when the empty window it went into was being closed at that very moment.
TEST_F(SessionTest, opensAWindowForAFileThatArrivesWhileTheLastEmptyOneCloses) {
    LateCall call(m_bus);
    call.open(BriskletApp::sessionName(), video(1));
    const QPointer<WindowRootView> first = m_app->windows().first();
    first->close();
    EXPECT_TRUE(pumpUntil([&] { return call.isAnswered() && !first; }));
    EXPECT_TRUE(call.isTaken());
    ASSERT_TRUE(showVideos(1));
    EXPECT_EQ(m_app->windows()[0]->state()->videoURL(), video(1));
    // And the program goes on as it was.
    ASSERT_TRUE(handsOver({video(2).toLocalFile()}));
    EXPECT_TRUE(showVideos(2));
}

// A file was lost when it was sent to a process that had decided to end but still ran.
TEST_F(SessionTest, refusesAFileThatArrivesAfterTheDecisionToEnd) {
    LateCall call(m_bus);
    const QString process = m_session->bus().baseService();
    // Called after the program's own slot, so right after its decision.
    const QObject watch;
    QObject::connect(qApp, &QApplication::lastWindowClosed, &watch,
                     [&] { call.open(process, video(1)); });
    m_app->windows().first()->close();
    ASSERT_TRUE(pumpUntil([&] { return call.isAnswered(); }));
    EXPECT_FALSE(call.isTaken());
    EXPECT_TRUE(m_app->windows().isEmpty());
    // Whoever was refused finds the name free.
    DesktopApplication next(m_bus.connect(), BriskletApp::sessionName());
    EXPECT_EQ(next.claim({video(1)}, {}), DesktopApplication::Role::owner);
}

/// All processes are real ones, on a display of their own.
class RealSessionTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_bus.isRunning() || !m_display.isRunning())
            GTEST_SKIP() << "dbus-daemon, Xvfb or xdotool is not here";
    }

    static bool hasPython() {
        return !QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty();
    }

    std::unique_ptr<OtherStart> start(const QStringList& arguments) {
        return std::make_unique<OtherStart>(environmentOn(m_bus, m_display.name()), arguments);
    }

    /// So many files with names of their own.
    QStringList makeFiles(int count) {
        const auto source = testsupport::makeFixture({.duration = 1}).path;
        QStringList files;
        for (int number = 0; number < count; ++number) {
            const auto file = m_folder / ("video " + std::to_string(100 + number) + ".mp4");
            std::filesystem::copy_file(source, file);
            files << QFile::decodeName(file.c_str());
        }
        return files;
    }

    static QStringList namesOf(const QStringList& files) {
        QStringList names;
        for (const QString& file : files)
            names << QFileInfo(file).fileName();
        return names;
    }

    static constexpr int kCloses = 12;
    /// Within about this time a window is closed, unless the machine is busy.
    static constexpr int kCloseMs = 100;

    testsupport::TemporaryFolder m_folder;
    testsupport::PrivateBus m_bus;
    testsupport::PrivateDisplay m_display;
};

TEST_F(RealSessionTest, opensThreeFilesInThreeWindows) {
    const QStringList files = makeFiles(3);
    const auto program = start(files);
    EXPECT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf(files); }));
    EXPECT_FALSE(program->hasEnded());
}

TEST_F(RealSessionTest, endsTwentyStartsAtOnceInOneProcessWithTwentyWindows) {
    const QStringList files = makeFiles(20);
    std::vector<std::unique_ptr<OtherStart>> starts;
    for (const QString& file : files)
        starts.push_back(start({file}));
    EXPECT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf(files); }))
        << m_display.titles().join(u'\n').toStdString();
    const auto running = [&starts] {
        return std::ranges::count_if(starts, [](const auto& each) { return !each->hasEnded(); });
    };
    EXPECT_TRUE(pumpUntil([&running] { return running() == 1; }));
    for (const auto& each : starts)
        EXPECT_EQ(each->exitCode(), 0);
}

// Whatever the moment, the file has a window in the end: in the process that was about to end, or
// in a new one.
TEST_F(RealSessionTest, losesNoFileThatIsHandedOverWhileTheLastWindowCloses) {
    if (!hasPython())
        GTEST_SKIP() << "python3 is not here";
    const QStringList files = makeFiles(kCloses + 1);
    std::vector<std::unique_ptr<OtherStart>> starts;
    starts.push_back(start({files[0]}));
    for (int i = 0; i < kCloses; ++i) {
        const QString& shown = files[i];
        const QString& next = files[i + 1];
        ASSERT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf({shown}); }))
            << i << ": " << m_display.titles().join(u'\n').toStdString();
        // The other process starts anywhere from before the window closes to after that.
        const auto closing = m_display.close(QFileInfo(shown).fileName());
        QTimer::singleShot(std::chrono::milliseconds(i * kCloseMs / kCloses), qApp,
                           [&] { starts.push_back(start({next})); });
        ASSERT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf({next}); }))
            << i << ": " << m_display.titles().join(u'\n').toStdString();
        ASSERT_EQ(closing->exitCode(), 0);
    }
}

TEST_F(RealSessionTest, endsTheNotificationOfAStartThatHandedItsFileOver) {
    if (!hasPython())
        GTEST_SKIP() << "python3 is not here";
    QProcess listener;
    listener.setProcessEnvironment(environmentOn(m_bus, m_display.name()));
    listener.start(QStringLiteral("python3"),
                   {QStringLiteral(BRISKLET_SOURCE_DIR "/tests/App/startup_messages.py")});
    QString heard;
    const auto hears = [&](const QString& message) {
        return pumpUntil([&] {
            heard += QString::fromUtf8(listener.readAllStandardOutput());
            return heard.contains(message + u'\n') || listener.state() == QProcess::NotRunning;
        });
    };
    ASSERT_TRUE(hears(QStringLiteral("listening")));
    const QStringList files = makeFiles(2);
    const auto first = start({files[0]});
    ASSERT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf({files[0]}); }));
    QProcessEnvironment environment = environmentOn(m_bus, m_display.name());
    environment.insert(QStringLiteral("DESKTOP_STARTUP_ID"),
                       QStringLiteral("launcher/a \"file\"/17-0-host_TIME4711"));
    const OtherStart second(environment, {files[1]});
    EXPECT_TRUE(hears(QStringLiteral("remove: ID=launcher/a\\ \\\"file\\\"/17-0-host_TIME4711")));
    EXPECT_EQ(listener.state(), QProcess::Running);
    listener.kill();
    listener.waitForFinished();
}

TEST_F(RealSessionTest, loadsTheMediaLibrariesWithTheFirstFile) {
    const auto program = start({});
    ASSERT_TRUE(
        pumpUntil([&] { return m_display.titles() == QStringList(QStringLiteral("Brisklet")); }));
    EXPECT_TRUE(program->hasLoaded("libQt6Core"));
    EXPECT_FALSE(program->hasLoaded("libavcodec"));
    const QStringList files = makeFiles(1);
    const auto other = start(files);
    ASSERT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf(files); }));
    EXPECT_TRUE(program->hasLoaded("libavcodec"));
}

TEST_F(RealSessionTest, startsOnItsOwnWithoutABus) {
    QProcessEnvironment environment = environmentOn(m_bus, m_display.name());
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nowhere"));
    const QStringList files = makeFiles(1);
    const OtherStart program(environment, files);
    EXPECT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf(files); }));
}

TEST_F(RealSessionTest, isStartedByTheBusForWhatItIsAsked) {
    const QDir services(qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/dbus-1/services"));
    ASSERT_TRUE(services.mkpath(QStringLiteral(".")));
    QFile service(services.filePath(QStringLiteral("com.quorvan.brisklet.service")));
    ASSERT_TRUE(service.open(QIODevice::WriteOnly));
    service.write("[D-BUS Service]\nName=com.quorvan.brisklet\nExec=" BRISKLET_APP "\n");
    service.close();
    qputenv("DISPLAY", m_display.name().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const testsupport::PrivateBus bus;
    const QStringList files = makeFiles(2);
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("com.quorvan.brisklet"), QStringLiteral("/com/quorvan/brisklet"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"));
    QStringList uris;
    for (const QString& file : files)
        uris << QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded());
    message << uris << QVariantMap();
    const QDBusPendingCall pending = bus.connect().asyncCall(message);
    EXPECT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf(files); }))
        << m_display.titles().join(u'\n').toStdString();
    EXPECT_FALSE(pending.isError());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    service.remove();
}

} // namespace
} // namespace brisklet
