#include "Media/Playback/DecoderShare.h"

#include <gtest/gtest.h>

namespace media::playback {
namespace {

constexpr std::size_t kHalf = DecoderShare::kBytesOfAll / 2;

/// A share that counts how often it was woken.
class CountingShare {
public:
    [[nodiscard]] int wakes() const { return m_wakes; }

    DecoderShare share{[this] { ++m_wakes; }};

private:
    int m_wakes = 0;
};

TEST(DecoderShare, allKeepTheirPicturesUpToTheBound) {
    CountingShare a;
    CountingShare b;
    a.share.use(kHalf);
    b.share.use(kHalf);
    EXPECT_FALSE(a.share.isTooMuch());
    EXPECT_FALSE(b.share.isTooMuch());
    EXPECT_EQ(a.wakes() + b.wakes(), 0);
}

TEST(DecoderShare, theOneUsedLongestAgoIsAskedToLetGo) {
    CountingShare a;
    CountingShare b;
    CountingShare c;
    a.share.use(kHalf);
    b.share.use(kHalf);
    a.share.use(kHalf);
    c.share.use(kHalf);
    EXPECT_TRUE(b.share.isTooMuch());
    EXPECT_EQ(b.wakes(), 1);
    EXPECT_FALSE(a.share.isTooMuch());
    c.share.use(kHalf);
    EXPECT_EQ(b.wakes(), 1) << "once is enough";
}

TEST(DecoderShare, oneThatIsUsedAgainNeedNotLetGo) {
    CountingShare a;
    CountingShare b;
    a.share.use(kHalf + 1);
    b.share.use(kHalf);
    ASSERT_TRUE(a.share.isTooMuch());
    a.share.use(kHalf + 1);
    EXPECT_FALSE(a.share.isTooMuch());
    EXPECT_TRUE(b.share.isTooMuch());
}

TEST(DecoderShare, theOneUsedLastKeepsWhateverItHas) {
    CountingShare a;
    a.share.use(3 * kHalf);
    EXPECT_FALSE(a.share.isTooMuch());
}

TEST(DecoderShare, whatHasLetGoOrIsGoneCountsForNothing) {
    CountingShare a;
    CountingShare b;
    a.share.use(kHalf);
    {
        CountingShare gone;
        gone.share.use(kHalf);
    }
    a.share.letGo();
    b.share.use(2 * kHalf);
    EXPECT_FALSE(a.share.isTooMuch());
    EXPECT_FALSE(b.share.isTooMuch());
    EXPECT_EQ(a.wakes() + b.wakes(), 0);
}

} // namespace
} // namespace media::playback
