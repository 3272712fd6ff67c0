#include "AppFixture.h"

#include "Platform/Updater/Updater.h"

#include <QSettings>
#include <QTcpServer>
#include <QTcpSocket>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

/// Counts who comes, and answers nobody.
class Door final : public QTcpServer {
public:
    Door() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            ++visits;
            nextPendingConnection()->abort();
        });
    }

    int visits = 0;
};

/// The program with a feed, whose user has agreed to checks. Its first look is at once.
class UpdatesByItselfTest : public testing::Test {
protected:
    UpdaterConfiguration configuration(const Door& server) {
        ++m_count;
        const auto file = m_folder / (std::to_string(m_count) + ".ini");
        auto settings = std::make_shared<QSettings>(QString::fromStdString(file.string()),
                                                    QSettings::IniFormat);
        settings->setValue(QStringLiteral("automaticChecks"), true);
        return {.feed =
                    QUrl(QStringLiteral("http://127.0.0.1:%1/feed.xml").arg(server.serverPort())),
                .currentVersion = QStringLiteral("1.2"),
                .settings = settings,
                .firstLook = std::chrono::milliseconds(0)};
    }

    testsupport::TemporaryFolder m_folder;
    int m_count = 0;
};

TEST_F(UpdatesByItselfTest, areLookedForOnlyUnderTheReleasedIdentifier) {
    Door quiet;
    std::vector<std::unique_ptr<BriskletApp>> others;
    for (const char* identifier :
         {"com.quorvan.brisklet.devel", "com.quorvan.Brisklet", "com.quorvan.briskle", ""}) {
        others.push_back(
            std::make_unique<BriskletApp>(QString::fromLatin1(identifier), configuration(quiet)));
        EXPECT_FALSE(others.back()->updater().isStarted()) << identifier;
        EXPECT_TRUE(others.back()->updater().canCheckForUpdates()) << "by command they can be";
    }
    // Made last, so the others would have asked by the time it has.
    Door asked;
    BriskletApp released(QStringLiteral("com.quorvan.brisklet"), configuration(asked));
    EXPECT_TRUE(released.updater().isStarted());
    ASSERT_TRUE(pumpUntil([&asked] { return asked.visits > 0; }));
    ASSERT_TRUE(pumpUntil([&released] { return released.updater().canCheckForUpdates(); }));
    EXPECT_EQ(quiet.visits, 0);
}

} // namespace
} // namespace brisklet
