#include "Media/Process/Wire/Channel.h"

#include "Media/Faults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/socket.h>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace media::process {
namespace {

Message textMessage(std::string text) {
    return {std::move(text), {}};
}

Message withDescriptors(std::size_t count) {
    Message message = textMessage("descriptors");
    for (std::size_t i = 0; i < count; ++i)
        message.descriptors.emplace_back(::open("/", O_PATH | O_CLOEXEC));
    return message;
}

/// Sends past all checks.
bool sendRaw(int socket, const std::string& bytes, const std::vector<int>& descriptors = {}) {
    iovec part{const_cast<char*>(bytes.data()), bytes.size()};
    std::vector<char> control(CMSG_SPACE(descriptors.size() * sizeof(int)));
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (!descriptors.empty()) {
        header.msg_control = control.data();
        header.msg_controllen = control.size();
        const std::size_t size = descriptors.size() * sizeof(int);
        const cmsghdr head{CMSG_LEN(size), SOL_SOCKET, SCM_RIGHTS};
        std::memcpy(control.data(), &head, sizeof head);
        std::memcpy(control.data() + CMSG_LEN(0), descriptors.data(), size);
    }
    return ::sendmsg(socket, &header, MSG_NOSIGNAL) >= 0;
}

/// Both ends of a channel, and what is open when a test is over.
class ChannelTest : public testing::Test {
protected:
    ChannelTest() : ChannelTest(Channel::makePair()) {}

    Leftovers m_leftovers;
    Channel m_ours;
    Channel m_theirs;

private:
    explicit ChannelTest(Channel::Pair pair)
        : m_ours(std::move(pair.ours)), m_theirs(std::move(pair.theirs)) {}
};

TEST_F(ChannelTest, keepsTheBoundsOfMessages) {
    for (const char* text : {"one", "two", "three"})
        ASSERT_TRUE(m_ours.send(textMessage(text)));
    for (const char* text : {"one", "two", "three"}) {
        const auto message = m_theirs.receive();
        ASSERT_TRUE(message);
        EXPECT_EQ(message->bytes, text);
        EXPECT_TRUE(message->descriptors.empty());
    }
    EXPECT_FALSE(m_theirs.waitFor(std::chrono::milliseconds(0)));
}

TEST_F(ChannelTest, carriesMessagesUpToItsLongest) {
    std::string text(Channel::kMostBytes, 'x');
    text.back() = 'y';
    ASSERT_TRUE(m_ours.send(textMessage(text)));
    EXPECT_TRUE(m_theirs.waitFor(std::chrono::milliseconds(0)));
    const auto message = m_theirs.receive();
    ASSERT_TRUE(message);
    EXPECT_EQ(message->bytes, text);
}

TEST_F(ChannelTest, doesNotSendWhatIsTooLong) {
    EXPECT_THROW(static_cast<void>(m_ours.send(textMessage(std::string(65'537, 'x')))), BadMessage);
    EXPECT_THROW(static_cast<void>(m_ours.send(withDescriptors(5))), BadMessage);
    EXPECT_FALSE(m_theirs.waitFor(std::chrono::milliseconds(0)));
}

TEST_F(ChannelTest, carriesDescriptorsThatProgramsStartedLaterDoNotGet) {
    for (std::size_t count = 1; count <= Channel::kMostDescriptors; ++count) {
        ASSERT_TRUE(m_ours.send(withDescriptors(count)));
        const auto message = m_theirs.receive();
        ASSERT_TRUE(message);
        ASSERT_EQ(message->descriptors.size(), count);
        for (const Descriptor& descriptor : message->descriptors)
            EXPECT_EQ(::fcntl(descriptor.number(), F_GETFD), FD_CLOEXEC);
    }
}

TEST_F(ChannelTest, ofHostileLengthEnds) {
    ASSERT_TRUE(sendRaw(m_ours.number(), std::string(65'537, 'x')));
    EXPECT_FALSE(m_theirs.receive());
}

TEST_F(ChannelTest, withTooManyDescriptorsEndsAndKeepsNone) {
    const Descriptor file(::open("/", O_PATH | O_CLOEXEC));
    for (const std::size_t count : {5U, 6U, 100U, 253U}) {
        const Leftovers before;
        ASSERT_TRUE(sendRaw(m_ours.number(), "x", std::vector<int>(count, file.number())));
        EXPECT_FALSE(m_theirs.receive()) << count;
        EXPECT_EQ(before.complaint(), "");
    }
}

TEST_F(ChannelTest, takesAnEmptyMessageForItsEnd) {
    ASSERT_TRUE(sendRaw(m_ours.number(), ""));
    EXPECT_FALSE(m_theirs.receive());
}

TEST_F(ChannelTest, givesOutWhatWasSentBeforeItsOtherEndWasGone) {
    ASSERT_TRUE(m_ours.send(textMessage("last")));
    m_ours.takeSocket().close();
    const auto message = m_theirs.receive();
    ASSERT_TRUE(message);
    EXPECT_EQ(message->bytes, "last");
    EXPECT_TRUE(m_theirs.waitFor(std::chrono::milliseconds(0)));
    EXPECT_FALSE(m_theirs.receive());
    EXPECT_FALSE(m_theirs.receive());
    EXPECT_FALSE(m_theirs.send(textMessage("to nobody")));
}

TEST_F(ChannelTest, rousesWhoWaitsWhenItsOtherEndIsGone) {
    std::jthread other([this] { m_ours.takeSocket().close(); });
    EXPECT_FALSE(m_theirs.receive());
}

/// What waits unread has unread descriptors too.
TEST_F(ChannelTest, lostWithUnreadDescriptorsKeepsNone) {
    const Leftovers before;
    {
        auto [ours, theirs] = Channel::makePair();
        ASSERT_TRUE(ours.send(withDescriptors(3)));
    }
    EXPECT_EQ(before.complaint(), "");
}

TEST_F(ChannelTest, neverWaitsForAReader) {
    int count = 0;
    while (m_ours.send(textMessage(std::string(1000, 'x'))))
        ASSERT_LT(++count, 100'000) << "there is no end to what waits unread";
    EXPECT_GT(count, 64);
    for (int i = 0; i < count; ++i)
        ASSERT_TRUE(m_theirs.receive());
    EXPECT_TRUE(m_ours.send(textMessage("again")));
}

TEST_F(ChannelTest, waitsForAReaderWhereItIsAskedTo) {
    constexpr int kMessages = 3000;
    std::jthread sender([this] {
        for (int i = 0; i < kMessages; ++i)
            EXPECT_TRUE(m_ours.sendWaiting(textMessage(std::string(1000, 'x'))));
    });
    for (int i = 0; i < kMessages; ++i)
        ASSERT_TRUE(m_theirs.receive());
    sender.join();
    EXPECT_FALSE(m_theirs.waitFor(std::chrono::milliseconds(0)));
}

TEST_F(ChannelTest, waitsForNobodyWhoIsGone) {
    std::jthread sender([this] {
        while (m_ours.sendWaiting(textMessage(std::string(1000, 'x')))) {
        }
    });
    ASSERT_TRUE(m_theirs.receive());
    m_theirs.takeSocket().close();
    sender.join();
    EXPECT_FALSE(m_ours.sendWaiting(textMessage("to nobody")));
}

TEST_F(ChannelTest, isSentOverByManyWhileOneReceives) {
    constexpr int kThreads = 4;
    constexpr int kMessages = 500;
    std::vector<std::jthread> senders;
    senders.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        senders.emplace_back([this, thread] {
            for (int i = 0; i < kMessages; ++i) {
                const std::string text(static_cast<std::size_t>(i + 1),
                                       static_cast<char>('a' + thread));
                while (!m_ours.send(textMessage(text)))
                    std::this_thread::yield();
            }
        });
    }
    std::array<std::size_t, kThreads> lengths{};
    for (int i = 0; i < kThreads * kMessages; ++i) {
        const auto message = m_theirs.receive();
        ASSERT_TRUE(message);
        const char sender = message->bytes.at(0);
        EXPECT_EQ(message->bytes, std::string(message->bytes.size(), sender));
        EXPECT_EQ(message->bytes.size(), ++lengths.at(static_cast<std::size_t>(sender - 'a')));
    }
}

} // namespace
} // namespace media::process
