#include "OtherStart.h"
#include "PrivateDisplay.h"
#include "QtSupport/EventPump.h"
#include "QtSupport/PrivateBus.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

namespace {

using testsupport::environmentOn;
using testsupport::OtherStart;
using testsupport::pumpUntil;

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
        ASSERT_TRUE(pumpUntil([&] { return closing->state() == QProcess::NotRunning; }));
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

TEST_F(RealSessionTest, loadsTheEngineWithTheFirstFileAndNeverADecoder) {
    const auto program = start({});
    ASSERT_TRUE(
        pumpUntil([&] { return m_display.titles() == QStringList(QStringLiteral("Brisklet")); }));
    EXPECT_TRUE(program->hasLoaded("libQt6Core"));
    EXPECT_FALSE(program->hasLoaded("libcubeb"));
    const QStringList files = makeFiles(1);
    const auto other = start(files);
    ASSERT_TRUE(pumpUntil([&] { return m_display.titles() == namesOf(files); }));
    EXPECT_TRUE(program->hasLoaded("libcubeb"));
    EXPECT_FALSE(program->hasLoaded("libavcodec"));
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
