#include "AppFixture.h"

#include "OtherStart.h"
#include "QtSupport/PrivateBus.h"
#include "TestSupport/SlowDisk.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace brisklet {
namespace {

using testsupport::environmentOn;
using testsupport::OtherStart;
using testsupport::pumpUntil;

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

    /// What the program answers to a call from elsewhere.
    QDBusMessage call(const QString& method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            BriskletApp::sessionName(), QStringLiteral("/com/quorvan/brisklet"),
            QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        const QDBusPendingCall pending = m_bus.connect().asyncCall(message);
        EXPECT_TRUE(pumpUntil([&pending] { return pending.isFinished(); }));
        return pending.reply();
    }

    bool showsVideos(qsizetype count) {
        return m_app->windows().size() == count &&
               std::ranges::all_of(m_app->windows(), [](const WindowRootView* window) {
                   return window->state()->videoURL().has_value();
               });
    }

    bool showVideos(qsizetype count) {
        return pumpUntil([this, count] { return showsVideos(count); });
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

TEST_F(SessionTest, opensAWindowForTheActionAndForNoOther) {
    const QDBusConnection caller = m_bus.connect();
    const auto act = [&caller](const char* action) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("com.quorvan.brisklet"), QStringLiteral("/com/quorvan/brisklet"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
        message << QString::fromLatin1(action) << QVariantList() << QVariantMap();
        const QDBusPendingCall call = caller.asyncCall(message);
        EXPECT_TRUE(pumpUntil([&call] { return call.isFinished(); }));
        EXPECT_FALSE(call.isError());
    };
    act("quit");
    EXPECT_EQ(m_app->windows().size(), 1);
    act("new-window");
    EXPECT_EQ(m_app->windows().size(), 2);
}

TEST_F(SessionTest, bringsTheWindowInUseToTheFrontForALaterStartWithoutFiles) {
    WindowRootView* second = openWindow();
    openWindow();
    ASSERT_TRUE(testsupport::showActive(*second));
    second->showMinimized();
    ASSERT_TRUE(handsOver({}));
    EXPECT_TRUE(pumpUntil([second] { return !second->isMinimized(); }));
    EXPECT_TRUE(pumpUntil([second] { return QApplication::activeWindow() == second; }));
    EXPECT_EQ(m_app->windows().size(), 3);
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

/// Runs the program as main() does, until it ends by itself (0) or there is what is waited for (1).
int runUntil(const std::function<bool()>& condition) {
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&condition] {
        if (condition())
            QCoreApplication::exit(1);
    });
    look.start(std::chrono::milliseconds(10));
    return QApplication::exec();
}

/// Hears what is called on a bus, without the event loop of this process.
class CallMonitor {
public:
    explicit CallMonitor(const testsupport::PrivateBus& bus) {
        m_process.start(QStringLiteral("dbus-monitor"),
                        {QStringLiteral("--address"), bus.address(),
                         QStringLiteral("type=method_call,interface=org.freedesktop.Application")});
        // It says first that it has become a monitor.
        m_isRunning = m_process.waitForStarted() && waitFor("NameLost");
    }

    CallMonitor(const CallMonitor&) = delete;
    CallMonitor& operator=(const CallMonitor&) = delete;

    ~CallMonitor() {
        m_process.kill();
        m_process.waitForFinished();
    }

    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    bool waitFor(const QByteArray& text) {
        while (!m_heard.contains(text)) {
            if (!m_process.waitForReadyRead())
                return false;
            m_heard += m_process.readAllStandardOutput();
        }
        return true;
    }

private:
    QProcess m_process;
    QByteArray m_heard;
    bool m_isRunning = false;
};

/// Lets another process hand a file over at the moment when a window is about to close: the call is
/// here when this one comes to close it, and has not been looked at.
class HandOverAtClose final : public QObject {
public:
    HandOverAtClose(WindowRootView& window, std::function<void()> handOver)
        : m_handOver(std::move(handOver)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Close)
            std::exchange(m_handOver, [] {})();
        return false;
    }

private:
    std::function<void()> m_handOver;
};

// Each file gets a window: a mistaken or hostile caller could fill the memory with them.
TEST_F(SessionTest, opensSomeOfTenThousandFilesAndSaysSo) {
    QStringList uris;
    for (int number = 0; number < 10'000; ++number)
        uris << QStringLiteral("file:///nowhere/%1%0A<b>.mp4").arg(number);
    EXPECT_EQ(call(QStringLiteral("Open"), {uris, QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(m_app->windows().size(), 50);
    bool isSaid = false;
    for (const WindowRootView* window : m_app->windows())
        isSaid = isSaid || window->state()->errorMessage() ==
                               QStringLiteral("At most 50 videos are opened at once.");
    EXPECT_TRUE(isSaid);
}

TEST_F(SessionTest, refusesCallsOfWrongTypes) {
    const QVariantMap data;
    const QString text = QStringLiteral("a\n<b>b</b>");
    for (const char* method : {"Activate", "Open", "ActivateAction", "Explode"}) {
        for (const QVariantList& arguments :
             {QVariantList{}, QVariantList{7}, QVariantList{text, text},
              QVariantList{QStringList{text}, text}, QVariantList{data, data},
              QVariantList{text, data, QVariantList()},
              QVariantList{QVariantList{1, text}, data}}) {
            const bool isActivation = QByteArrayView(method) == "Activate" &&
                                      arguments.value(0).toMap() == data && !arguments.isEmpty() &&
                                      arguments[0].typeId() == QMetaType::QVariantMap;
            if (isActivation)
                continue;
            EXPECT_EQ(call(QString::fromLatin1(method), arguments).type(),
                      QDBusMessage::ErrorMessage)
                << method << " " << arguments.size();
        }
    }
    EXPECT_EQ(m_app->windows().size(), 1);
}

TEST_F(SessionTest, saysWhatIsWrongWithStrangeFiles) {
    std::ofstream(m_folder / "closed.mp4") << "no video";
    const QString own = QString::fromLatin1(urlOf(m_folder.path()).toEncoded());
    for (const QString& uri :
         {QStringLiteral("file:///home/somebody%20else/video.mp4"),
          QStringLiteral("file:///dev/null"), QStringLiteral("file:///a%00b%0Ac%1B%5B31m.mp4"),
          QStringLiteral("file://<b>x</b>/&amp;"), QStringLiteral("javascript:alert(1)"),
          QStringLiteral("file:///<b>x</b>%0A&amp;.mp4"), own + QStringLiteral("/closed.mp4"), own,
          QStringLiteral("::"), QStringLiteral("x").repeated(100'000)}) {
        SCOPED_TRACE(uri.left(60).toStdString());
        WindowRootView* window = m_app->windows().first();
        EXPECT_EQ(call(QStringLiteral("Open"), {QStringList{uri}, QVariantMap()}).type(),
                  QDBusMessage::ReplyMessage);
        ASSERT_TRUE(pumpUntil([&] { return window->state()->errorMessage().has_value(); }));
        for (const auto* label : window->findChildren<QLabel*>()) {
            const bool isName = label->text().contains(u'“');
            EXPECT_TRUE(!isName || label->textFormat() == Qt::PlainText);
        }
        window->state()->clearErrorMessage();
        testsupport::pumpPending();
        ASSERT_EQ(m_app->windows().size(), 1);
    }
}

TEST_F(SessionTest, saysThatAFileMayNotBeRead) {
    const testsupport::SlowDisk disk(1'000'000);
    if (!disk.isThere())
        GTEST_SKIP() << "no file system of our own can be mounted here";
    const QUrl file = urlOf(disk.holding(pathOf(video(1))));
    disk.setPrivate(true);
    EXPECT_EQ(call(QStringLiteral("Open"),
                   {QStringList{QString::fromLatin1(file.toEncoded())}, QVariantMap()})
                  .type(),
              QDBusMessage::ReplyMessage);
    const auto state = m_app->windows().first()->state();
    ASSERT_TRUE(pumpUntil([&state] { return state->errorMessage().has_value(); }));
    EXPECT_EQ(*state->errorMessage(),
              QStringLiteral("Couldn't open “%1”: You don’t have permission to read this file.")
                  .arg(displayName(file)));
    EXPECT_EQ(m_app->windows().size(), 1);
}

// A file was lost when the empty window it went into was being closed at that very moment.
TEST_F(SessionTest, opensAWindowForAFileThatArrivesWhileTheLastEmptyOneCloses) {
    CallMonitor monitor(m_bus);
    if (!monitor.isRunning())
        GTEST_SKIP() << "dbus-monitor is not here";
    std::unique_ptr<OtherStart> other;
    bool hasArrived = false;
    const HandOverAtClose handOver(*m_app->windows().first(), [&] {
        const QStringList files{video(1).toLocalFile()};
        other = std::make_unique<OtherStart>(environmentOn(m_bus, {}), files);
        hasArrived = monitor.waitFor("member=Open");
        // What this process asks next is answered after that.
        m_session->bus().interface()->registeredServiceNames();
    });
    QTimer::singleShot(0, m_app->windows().first(), &QWidget::close);
    EXPECT_EQ(runUntil([&] { return other && other->hasEnded() && showsVideos(1); }), 1)
        << "The program has ended.";
    EXPECT_TRUE(hasArrived);
    EXPECT_EQ(other->exitCode(), 0);
    // And it goes on as it was.
    ASSERT_TRUE(handsOver({video(2).toLocalFile()}));
    EXPECT_TRUE(showVideos(2));
}

// A process that has decided to end still runs for a moment. Whoever looked it up before may call
// it then, and must not believe that it has taken a file.
TEST_F(SessionTest, refusesAFileThatArrivesAfterTheDecisionToEnd) {
    QDBusConnection caller = m_bus.connect();
    std::optional<QDBusPendingCall> pending;
    const QObject watch;
    // After the program's own slot, so right after its decision.
    QObject::connect(qApp, &QApplication::lastWindowClosed, &watch, [&] {
        QDBusMessage message = QDBusMessage::createMethodCall(
            m_session->bus().baseService(), QStringLiteral("/com/quorvan/brisklet"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"));
        message << QStringList{video(1).toString()} << QVariantMap();
        pending = caller.asyncCall(message);
        // What that connection asks next is answered after that.
        caller.interface()->registeredServiceNames();
    });
    QTimer::singleShot(0, m_app->windows().first(), &QWidget::close);
    EXPECT_EQ(runUntil([] { return false; }), 0);
    ASSERT_TRUE(pending);
    ASSERT_TRUE(pumpUntil([&] { return pending->isFinished(); }));
    EXPECT_TRUE(pending->isError());
    EXPECT_TRUE(m_app->windows().isEmpty());
    // Whoever was refused finds the name free.
    DesktopApplication next(m_bus.connect(), BriskletApp::sessionName());
    EXPECT_EQ(next.claim({video(1)}, {}), DesktopApplication::Role::owner);
}

} // namespace
} // namespace brisklet
