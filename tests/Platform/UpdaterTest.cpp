#include "FaultySystem/FaultySystem.h"
#include "UpdaterFixture.h"

#include <QTimeZone>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <sys/file.h>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

TEST_F(UpdaterTest, offersDownloadsChecksAndOpensANewerRelease) {
    install();
    EXPECT_EQ(m_driver.failure, QString());
    EXPECT_EQ(m_driver.offered->shortVersion, QStringLiteral("1.3 beta"));
    EXPECT_EQ(m_driver.offered->releaseNotes, QStringLiteral("New\nFaster & smaller"));
    EXPECT_EQ(m_driver.downloaded, m_package.size());
    EXPECT_TRUE(m_driver.opened.endsWith(QStringLiteral("/brisklet_1.3_amd64.deb")));
    QFile package(m_driver.opened);
    ASSERT_TRUE(package.open(QIODevice::ReadOnly));
    EXPECT_EQ(package.readAll(), m_package);
    EXPECT_TRUE(m_updater->canCheckForUpdates());
}

TEST_F(UpdaterTest, takesTheNewestReleaseThatRunsHere) {
    serveFeed(item("1.2.1") + item("1.10") + item("1.9") +
              item("2.0", "<sparkle:minimumSystemVersion>13</sparkle:minimumSystemVersion>"));
    check();
    ASSERT_TRUE(m_driver.offered);
    EXPECT_EQ(m_driver.offered->version, QStringLiteral("1.10"));
}

TEST_F(UpdaterTest, saysWhenThereIsNothingNewer) {
    serveFeed(item("1.2") + item("1.1.9") + item("1.2b1"));
    check();
    EXPECT_TRUE(m_driver.isUpToDate);
    expectNothingChanged();
}

TEST_F(UpdaterTest, refusesAFeedThatIsNoFeed) {
    for (const char* body : {"", "<html><body>Hello</body></html>", "<rss><channel><item>",
                             "<rss version=\"2.0\"></rss>", "\x01\x02\x03"}) {
        m_driver.failure.clear();
        m_driver.checkingCount = 0;
        m_server.answers[QStringLiteral("/feed.xml")] = {.body = body};
        check();
        EXPECT_EQ(m_driver.failure,
                  QStringLiteral("Couldn’t check for updates: The update feed is damaged."));
        expectNothingChanged();
    }
}

TEST_F(UpdaterTest, refusesAFeedThatExpandsWithoutEnd) {
    QByteArray document = "<?xml version=\"1.0\"?><!DOCTYPE rss [<!ENTITY a \"aaaaaaaaaa\">";
    for (char name = 'b'; name < 'm'; ++name) {
        const QByteArray former = QByteArray("&") + static_cast<char>(name - 1) + ';';
        document += QByteArray("<!ENTITY ") + name + " \"" + former.repeated(10) + "\">";
    }
    document += "]><rss><channel><item><description>&l;</description></item></channel></rss>";
    m_server.answers[QStringLiteral("/feed.xml")] = {.body = document};
    check();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("Couldn’t check for updates: The update feed is damaged."));
}

TEST_F(UpdaterTest, refusesAHugeAndAnEndlessFeed) {
    m_server.answers[QStringLiteral("/feed.xml")] = {.body = QByteArray(2 << 20, ' ')};
    check();
    EXPECT_EQ(m_driver.failure, QStringLiteral("Couldn’t check for updates: The server sends "
                                               "more than it should."));
    m_driver.failure.clear();
    m_driver.checkingCount = 0;
    m_server.answers[QStringLiteral("/feed.xml")] = {.body = QByteArray(65536, ' '),
                                                     .isEndless = true};
    check();
    EXPECT_EQ(m_driver.failure, QStringLiteral("Couldn’t check for updates: The server sends "
                                               "more than it should."));
    expectNothingChanged();
}

TEST_F(UpdaterTest, canBeCancelledWhileAServerSaysNothing) {
    m_server.answers[QStringLiteral("/feed.xml")] = {.isSilent = true};
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, false);
    m_updater->checkForUpdates();
    EXPECT_FALSE(m_updater->canCheckForUpdates());
    ASSERT_TRUE(pumpUntil([this] { return m_server.requestCount == 1; }));
    m_driver.cancel();
    EXPECT_TRUE(m_updater->canCheckForUpdates());
    pumpPending();
    EXPECT_FALSE(m_driver.isSettled());
}

TEST_F(UpdaterTest, refusesPlainHttpToOtherMachines) {
    m_configuration.feed = QUrl(QStringLiteral("http://updates.invalid/feed.xml"));
    check();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("Couldn’t check for updates: “http://updates.invalid/feed.xml” is "
                             "not a secure address."));
    expectNothingChanged();
}

TEST_F(UpdaterTest, refusesARedirectionToPlainHttp) {
    m_server.answers[QStringLiteral("/feed.xml")] = {
        .status = "302 Found", .headers = "Location: http://updates.invalid/feed.xml\r\n"};
    check();
    EXPECT_TRUE(m_driver.failure.contains(QStringLiteral("not a secure address")))
        << m_driver.failure.toStdString();
    expectNothingChanged();
}

TEST_F(UpdaterTest, followsASafeRedirectionAndNoEndlessOne) {
    m_server.answers[QStringLiteral("/moved.xml")] = m_server.answers[QStringLiteral("/feed.xml")];
    m_server.answers[QStringLiteral("/feed.xml")] = {.status = "302 Found",
                                                     .headers = "Location: /moved.xml\r\n"};
    check();
    EXPECT_TRUE(m_driver.offered);
    m_driver.forget();
    m_server.answers[QStringLiteral("/feed.xml")].headers = "Location: /feed.xml\r\n";
    check();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("Couldn’t check for updates: The server “127.0.0.1” redirects "
                             "without end."));
}

TEST_F(UpdaterTest, saysThatThereIsNoSuchFeed) {
    m_server.answers.clear();
    check();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("Couldn’t check for updates: The server “127.0.0.1” answers with an "
                             "error (status 404)."));
    expectNothingChanged();
}

TEST_F(UpdaterTest, refusesAPackageOfAnotherLength) {
    m_server.answers[QStringLiteral("/brisklet_1.3_amd64.deb")].body.chop(1);
    install();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("The update is incomplete. It hasn’t been installed."));
    expectNothingChanged();
    m_driver.forget();
    m_server.answers[QStringLiteral("/brisklet_1.3_amd64.deb")].body += "..";
    install();
    EXPECT_EQ(m_driver.failure, QStringLiteral("The update couldn’t be downloaded: The server "
                                               "sends more than it should."));
    expectNothingChanged();
}

TEST_F(UpdaterTest, refusesAPackageThatWasChanged) {
    m_server.answers[QStringLiteral("/brisklet_1.3_amd64.deb")].body[500000] = '!';
    install();
    EXPECT_TRUE(m_driver.failure.contains(QStringLiteral("isn’t genuine")));
    expectNothingChanged();
}

TEST_F(UpdaterTest, refusesAPackageOfAnotherKey) {
    crypto_sign_keypair(bytes(m_publicKey), bytes(m_secretKey));
    serveFeed(item("1.3"));
    install();
    EXPECT_TRUE(m_driver.failure.contains(QStringLiteral("isn’t genuine")));
    expectNothingChanged();
}

TEST_F(UpdaterTest, leavesOutReleasesWithoutASignature) {
    serveFeed("<item><sparkle:version>1.3</sparkle:version>" + enclosure(m_package.size(), "bm8=") +
              "</item>");
    check();
    EXPECT_TRUE(m_driver.isUpToDate);
}

TEST_F(UpdaterTest, leavesNothingBehindWhenTheDownloadIsCancelled) {
    m_server.answers[QStringLiteral("/brisklet_1.3_amd64.deb")].isSilent = true;
    check();
    m_driver.choose(UpdateChoice::install);
    ASSERT_TRUE(pumpUntil([this] { return m_server.requestCount == 2; }));
    m_driver.cancel();
    pumpPending();
    EXPECT_EQ(m_driver.failure, QString());
    expectNothingChanged();
}

/// What a program left there that was killed, and packages that were opened long ago.
TEST_F(UpdaterTest, removesWhatIsOfNoUseAnyMore) {
    const QDir folder(m_configuration.downloadFolder);
    ASSERT_TRUE(folder.mkpath(QStringLiteral(".")));
    const auto hold = [&folder](QFile& file, const char* name) {
        file.setFileName(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write("content") > 0 && file.flush();
    };
    QFile abandoned;
    QFile downloading;
    QFile fresh;
    QFile old;
    ASSERT_TRUE(hold(abandoned, "1.deb.part") && hold(downloading, "2.deb.part") &&
                hold(fresh, "3.deb") && hold(old, "4.deb"));
    ASSERT_EQ(::flock(downloading.handle(), LOCK_EX), 0);
    ASSERT_TRUE(old.setFileTime(QDateTime::currentDateTimeUtc().addDays(-2),
                                QFileDevice::FileModificationTime));
    m_configuration.firstLook = std::chrono::milliseconds(0);
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, true);
    EXPECT_TRUE(pumpUntil([&] { return !abandoned.exists(); }));
    EXPECT_EQ(folder.entryList(QDir::Files),
              (QStringList{QStringLiteral("2.deb.part"), QStringLiteral("3.deb")}));
}

TEST_F(UpdaterTest, leavesTheDownloadOfAnotherProgramAlone) {
    const QString name =
        m_configuration.downloadFolder + QStringLiteral("/brisklet_1.3_amd64.deb.part");
    ASSERT_TRUE(QDir().mkpath(m_configuration.downloadFolder));
    QFile other(name);
    ASSERT_TRUE(other.open(QIODevice::ReadWrite));
    ASSERT_EQ(::flock(other.handle(), LOCK_EX), 0);
    ASSERT_EQ(other.write("half"), 4);
    ASSERT_TRUE(other.flush());
    install();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("The update can’t be stored: It is being downloaded already."));
    EXPECT_EQ(other.size(), 4);
    EXPECT_TRUE(other.exists());
    other.close();
    m_driver.forget();
    install();
    EXPECT_EQ(m_driver.failure, QString());
    EXPECT_FALSE(other.exists());
}

/// Each call to the system about the package fails once.
class UpdaterWithAFault : public UpdaterTest {
protected:
    /// Installs while the call with that number fails; how many there were.
    int installWithFaultAt(int number, const testsupport::SystemAnswer& answer) {
        const std::string folder = m_configuration.downloadFolder.toStdString();
        int calls = 0;
        testsupport::setSystemJudge([&](const testsupport::SystemCall& call) {
            const bool isFailing = pathOf(call).starts_with(folder) && calls++ == number;
            return isFailing ? answer : testsupport::SystemAnswer{};
        });
        install();
        testsupport::setSystemJudge({});
        return calls;
    }

    /// After each fault the package is whole or gone; how many were told.
    int faultsTold(std::initializer_list<testsupport::SystemAnswer> answers) {
        const int calls = installWithFaultAt(-1, {});
        EXPECT_TRUE(QFile::remove(m_driver.opened));
        RecordProperty("points", calls * static_cast<int>(answers.size()));
        int told = 0;
        for (const testsupport::SystemAnswer& answer : answers) {
            for (int number = 0; number < calls; ++number) {
                SCOPED_TRACE(testing::Message() << "call " << number << ", error " << answer.error);
                m_driver.forget();
                installWithFaultAt(number, answer);
                m_driver.failure.isEmpty() ? expectWholePackage() : expectSentence();
                told += m_driver.failure.isEmpty() ? 0 : 1;
                EXPECT_EQ(
                    QDir(m_configuration.downloadFolder).entryList(QDir::Files | QDir::Hidden),
                    QStringList());
            }
        }
        m_driver.forget();
        install();
        EXPECT_EQ(m_driver.failure, QString());
        return told;
    }

private:
    void expectWholePackage() const {
        QFile package(m_driver.opened);
        ASSERT_TRUE(package.open(QIODevice::ReadOnly));
        EXPECT_EQ(package.readAll(), m_package);
        ASSERT_TRUE(package.remove());
    }

    void expectSentence() const {
        const QString& failure = m_driver.failure;
        EXPECT_TRUE(failure.startsWith(QStringLiteral("The update c"))) << failure.toStdString();
        EXPECT_FALSE(failure.contains(QStringLiteral("nknown"))) << failure.toStdString();
    }

    static std::string pathOf(const testsupport::SystemCall& call) {
        if (call.descriptor < 0)
            return std::string(call.path);
        const auto link = "/proc/self/fd/" + std::to_string(call.descriptor);
        std::error_code ignored;
        return std::filesystem::read_symlink(link, ignored).string();
    }
};

TEST_F(UpdaterWithAFault, installsTheWholePackageOrLeavesNothing) {
    EXPECT_GT(faultsTold({{.error = ENOSPC}, {.error = EIO, .isDone = true}}), 7);
}

/// The other faults.
class ExhaustiveUpdaterWithAFault : public UpdaterWithAFault {};

TEST_F(ExhaustiveUpdaterWithAFault, installsTheWholePackageOrLeavesNothing) {
    EXPECT_GT(faultsTold({{.error = EDQUOT}, {.error = EIO}, {.error = EINTR}, {.most = 1}}), 10);
}

TEST_F(UpdaterTest, checksByItselfOnceADayAndOnlyWhenAllowed) {
    serveFeed(item("1.2"));
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, true);
    const QDateTime noon(QDate(2030, 1, 1), QTime(12, 0), QTimeZone::utc());
    m_updater->checkIfDue(noon);
    EXPECT_TRUE(m_updater->canCheckForUpdates()) << "The user has not agreed.";
    m_configuration.settings->setValue(QStringLiteral("automaticChecks"), true);
    m_updater->checkIfDue(noon);
    EXPECT_FALSE(m_updater->canCheckForUpdates());
    ASSERT_TRUE(pumpUntil([this] { return m_updater->canCheckForUpdates(); }));
    m_updater->checkIfDue(noon.addSecs(qint64{23} * 3600));
    EXPECT_TRUE(m_updater->canCheckForUpdates());
    m_updater->checkIfDue(noon.addSecs(qint64{24} * 3600));
    EXPECT_FALSE(m_updater->canCheckForUpdates());
    ASSERT_TRUE(pumpUntil([this] { return m_updater->canCheckForUpdates(); }));
    EXPECT_EQ(m_server.requestCount, 2);
    EXPECT_FALSE(m_driver.isSettled()) << "What a check by itself finds not to be there is silent.";
}

/// It never checked again, where the clock had been a year ahead once.
TEST_F(UpdaterTest, checksByItselfThoughTheClockWasSetBack) {
    serveFeed(item("1.2"));
    m_configuration.settings->setValue(QStringLiteral("automaticChecks"), true);
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, false);
    const QDateTime noon(QDate(2030, 1, 1), QTime(12, 0), QTimeZone::utc());
    m_updater->checkIfDue(noon.addYears(1));
    ASSERT_TRUE(pumpUntil([this] { return m_updater->canCheckForUpdates(); }));
    m_updater->checkIfDue(noon);
    EXPECT_FALSE(m_updater->canCheckForUpdates());
    ASSERT_TRUE(pumpUntil([this] { return m_updater->canCheckForUpdates(); }));
    EXPECT_EQ(m_server.requestCount, 2);
}

TEST_F(UpdaterTest, asksOnTheSecondStartWhetherItMayCheckByItself) {
    m_configuration.firstLook = std::chrono::milliseconds(0);
    const QString hasRun = QStringLiteral("hasRunBefore");
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, true);
    ASSERT_TRUE(pumpUntil([&] { return m_configuration.settings->value(hasRun).toBool(); }));
    EXPECT_FALSE(m_driver.automaticAnswer);
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, true);
    ASSERT_TRUE(pumpUntil([this] { return m_driver.automaticAnswer != nullptr; }));
    EXPECT_EQ(m_server.requestCount, 0);
    m_driver.automaticAnswer(true);
    ASSERT_TRUE(pumpUntil([this] { return m_driver.offered.has_value(); }));

    // Who has said no is neither asked again nor kept up to date.
    m_driver.forget();
    m_configuration.settings->setValue(QStringLiteral("automaticChecks"), false);
    const int before = m_server.requestCount;
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, true);
    Updater other(m_configuration, m_driver, false);
    other.checkForUpdates();
    ASSERT_TRUE(pumpUntil([this] { return m_driver.isSettled(); }));
    EXPECT_FALSE(m_driver.automaticAnswer);
    EXPECT_EQ(m_server.requestCount, before + 1);
}

TEST_F(UpdaterTest, leavesOutReleasesForOtherSystems) {
    const auto forSystem = [this](const QByteArray& version, const QByteArray& system) {
        return item(version).replace("<enclosure ", "<enclosure sparkle:os=\"" + system + "\" ");
    };
    serveFeed(forSystem("1.4", "macos") + forSystem("1.3", "linux") + forSystem("1.5", "windows"));
    check();
    ASSERT_TRUE(m_driver.offered);
    EXPECT_EQ(m_driver.offered->version, QStringLiteral("1.3"));
}

TEST_F(UpdaterTest, refusesAPackageThatIsTooLarge) {
    serveFeed("<item><sparkle:version>1.3</sparkle:version>" +
              enclosure(qint64{1025} * 1024 * 1024, signatureOf(m_package)) + "</item>");
    install();
    EXPECT_EQ(m_driver.failure, QStringLiteral("The update is too large."));
    EXPECT_EQ(m_server.requestCount, 1) << "It isn't asked for.";
    expectNothingChanged();
}

TEST_F(UpdaterTest, keepsTheFailureOfACheckByItselfToItself) {
    m_server.answers.clear();
    m_configuration.settings->setValue(QStringLiteral("automaticChecks"), true);
    m_updater = std::make_unique<Updater>(m_configuration, m_driver, true);
    m_updater->checkIfDue(QDateTime(QDate(2030, 1, 1), QTime(12, 0), QTimeZone::utc()));
    ASSERT_FALSE(m_updater->canCheckForUpdates());
    ASSERT_TRUE(pumpUntil([this] { return m_updater->canCheckForUpdates(); }));
    EXPECT_EQ(m_server.requestCount, 1);
    EXPECT_FALSE(m_driver.isSettled());
}

TEST_F(UpdaterTest, offersASkippedReleaseOnlyByCommand) {
    check();
    m_driver.choose(UpdateChoice::skipThisVersion);
    m_driver.forget();
    m_configuration.settings->setValue(QStringLiteral("automaticChecks"), true);
    m_updater->checkIfDue(QDateTime(QDate(2030, 1, 1), QTime(12, 0), QTimeZone::utc()));
    ASSERT_FALSE(m_updater->canCheckForUpdates());
    ASSERT_TRUE(pumpUntil([this] { return m_updater->canCheckForUpdates(); }));
    EXPECT_FALSE(m_driver.offered);
    check();
    EXPECT_TRUE(m_driver.offered);
    m_driver.choose(UpdateChoice::remindLater);
    m_driver.forget();
    m_updater->checkIfDue(QDateTime(QDate(2030, 1, 3), QTime(12, 0), QTimeZone::utc()));
    ASSERT_TRUE(pumpUntil([this] { return m_driver.offered.has_value(); }));
}

TEST_F(UpdaterTest, doesNothingWithoutAFeed) {
    m_configuration.feed = QUrl();
    Updater updater(m_configuration, m_driver, true);
    EXPECT_FALSE(updater.canCheckForUpdates());
    EXPECT_FALSE(updater.isStarted());
    updater.checkForUpdates();
    pumpPending();
    EXPECT_EQ(m_driver.checkingCount, 0);
}

TEST_F(UpdaterTest, neverStartsByItselfWhenItIsNotTold) {
    EXPECT_FALSE(Updater(m_configuration, m_driver, false).isStarted());
    EXPECT_TRUE(Updater(m_configuration, m_driver, true).isStarted());
}

} // namespace
} // namespace brisklet
