#include "Support/OpenBridge.h"

#include <gmock/gmock.h>

#include <memory>
#include <thread>
#include <vector>

namespace {

using brisklet::OpenBridge;
using brisklet::OpenTarget;
using testing::ElementsAre;

QUrl file(const char* name) {
    return QUrl::fromLocalFile(QStringLiteral("/videos/") + QString::fromLatin1(name));
}

class FakeWindow final : public OpenTarget {
public:
    bool isEmpty() const override {
        ++questions;
        return loaded.empty();
    }

    void load(const QUrl& url) override { loaded.push_back(url); }

    std::vector<QUrl> loaded;
    /// How often it was asked whether it is empty.
    mutable int questions = 0;
};

class OpenBridgeTest : public testing::Test {
protected:
    ~OpenBridgeTest() override {
        OpenBridge::requestWindow = {};
        m_windows.clear();
        while (OpenBridge::takePending()) {
        }
    }

    /// What a window's root does when it appears.
    void appear() {
        const auto window = std::make_shared<FakeWindow>();
        m_windows.push_back(window);
        OpenBridge::requestWindow = [this] { appear(); };
        OpenBridge::registerState(window);
        if (const auto url = OpenBridge::takePending())
            window->load(*url);
    }

    std::vector<std::shared_ptr<FakeWindow>> m_windows;
};

TEST_F(OpenBridgeTest, putsAFileIntoAnEmptyWindowAndOpensNoOther) {
    appear();
    OpenBridge::open(file("a.mov"));
    ASSERT_EQ(m_windows.size(), 1U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("a.mov")));
}

TEST_F(OpenBridgeTest, choosesTheOldestEmptyWindow) {
    appear();
    appear();
    appear();
    m_windows[0]->load(file("shown.mov"));
    OpenBridge::open(file("a.mov"));
    EXPECT_THAT(m_windows[1]->loaded, ElementsAre(file("a.mov")));
    EXPECT_TRUE(m_windows[2]->loaded.empty());
}

TEST_F(OpenBridgeTest, opensANewWindowWhenAllShowAVideo) {
    appear();
    m_windows[0]->load(file("shown.mov"));
    OpenBridge::open(file("a.mov"));
    ASSERT_EQ(m_windows.size(), 2U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("shown.mov")));
    EXPECT_THAT(m_windows[1]->loaded, ElementsAre(file("a.mov")));
}

TEST_F(OpenBridgeTest, keepsFilesForTheFirstWindowWhichAsksForTheOthers) {
    for (const char* name : {"a.mov", "b.mov", "c.mov"})
        OpenBridge::open(file(name));
    EXPECT_TRUE(m_windows.empty());
    appear();
    ASSERT_EQ(m_windows.size(), 3U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("a.mov")));
    EXPECT_THAT(m_windows[1]->loaded, ElementsAre(file("b.mov")));
    EXPECT_THAT(m_windows[2]->loaded, ElementsAre(file("c.mov")));
    EXPECT_EQ(OpenBridge::takePending(), std::nullopt);
}

TEST_F(OpenBridgeTest, givesEachOfManyFilesOneWindowInOrder) {
    appear();
    for (const char* name : {"a.mov", "b.mov", "c.mov"})
        OpenBridge::open(file(name));
    ASSERT_EQ(m_windows.size(), 3U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("a.mov")));
    EXPECT_THAT(m_windows[1]->loaded, ElementsAre(file("b.mov")));
    EXPECT_THAT(m_windows[2]->loaded, ElementsAre(file("c.mov")));
}

TEST_F(OpenBridgeTest, neverChoosesAWindowThatIsGone) {
    appear();
    m_windows.clear();
    OpenBridge::open(file("a.mov"));
    ASSERT_EQ(m_windows.size(), 1U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("a.mov")));
}

TEST_F(OpenBridgeTest, neverChoosesAWindowThatClosesThoughItsModelLivesOn) {
    appear();
    const auto closing = m_windows[0];
    m_windows.clear();
    OpenBridge::unregisterState(*closing);
    OpenBridge::unregisterState(*closing);
    OpenBridge::open(file("a.mov"));
    EXPECT_TRUE(closing->loaded.empty());
    ASSERT_EQ(m_windows.size(), 1U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("a.mov")));
}

TEST_F(OpenBridgeTest, recordsAWindowOnceAndKeepsItsPlace) {
    appear();
    appear();
    OpenBridge::registerState(m_windows[0]);
    OpenBridge::open(file("a.mov"));
    // It is the first to be asked, and asked once.
    EXPECT_EQ(m_windows[0]->questions, 1);
    EXPECT_EQ(m_windows[1]->questions, 0);
    OpenBridge::open(file("b.mov"));
    EXPECT_EQ(m_windows[0]->questions, 2);
    OpenBridge::open(file("c.mov"));
    ASSERT_EQ(m_windows.size(), 3U);
    EXPECT_THAT(m_windows[0]->loaded, ElementsAre(file("a.mov")));
    EXPECT_THAT(m_windows[1]->loaded, ElementsAre(file("b.mov")));
    EXPECT_THAT(m_windows[2]->loaded, ElementsAre(file("c.mov")));
    // One that is recorded twice would be asked twice.
    EXPECT_EQ(m_windows[0]->questions, 3);
    EXPECT_EQ(m_windows[1]->questions, 2);
}

TEST_F(OpenBridgeTest, keepsNoWindowAlive) {
    appear();
    const std::weak_ptr<FakeWindow> weak = m_windows[0];
    m_windows.clear();
    EXPECT_TRUE(weak.expired());
}

TEST(OpenBridgeDeathTest, takesFilesOnTheMainThreadOnly) {
    EXPECT_DEATH(std::jthread([] { OpenBridge::open(QUrl()); }).join(),
                 "OpenBridge\\.cpp:[0-9]+: .*: called on another thread");
}

} // namespace
