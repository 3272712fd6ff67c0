#include "Media/Playback/DecoderBudget.h"

#include <gtest/gtest.h>

namespace media::playback {
namespace {

constexpr std::size_t kHalf = DecoderBudget::kBytesOfAll / 2;

/// A budget that counts how often it was woken.
class CountingBudget {
public:
    [[nodiscard]] int wakes() const { return m_wakes; }

    DecoderBudget budget{[this] { ++m_wakes; }};

private:
    int m_wakes = 0;
};

TEST(DecoderBudget, allKeepTheirPicturesUpToTheBound) {
    CountingBudget a;
    CountingBudget b;
    a.budget.use(kHalf);
    b.budget.use(kHalf);
    EXPECT_FALSE(a.budget.isExceeded());
    EXPECT_FALSE(b.budget.isExceeded());
    EXPECT_EQ(a.wakes() + b.wakes(), 0);
}

TEST(DecoderBudget, theOneUsedLongestAgoIsAskedToLetGo) {
    CountingBudget a;
    CountingBudget b;
    CountingBudget c;
    a.budget.use(kHalf);
    b.budget.use(kHalf);
    a.budget.use(kHalf);
    c.budget.use(kHalf);
    EXPECT_TRUE(b.budget.isExceeded());
    EXPECT_EQ(b.wakes(), 1);
    EXPECT_FALSE(a.budget.isExceeded());
    c.budget.use(kHalf);
    EXPECT_EQ(b.wakes(), 1) << "once is enough";
}

TEST(DecoderBudget, oneThatIsUsedAgainNeedNotLetGo) {
    CountingBudget a;
    CountingBudget b;
    a.budget.use(kHalf + 1);
    b.budget.use(kHalf);
    ASSERT_TRUE(a.budget.isExceeded());
    a.budget.use(kHalf + 1);
    EXPECT_FALSE(a.budget.isExceeded());
    EXPECT_TRUE(b.budget.isExceeded());
}

TEST(DecoderBudget, theOneUsedLastKeepsWhateverItHas) {
    CountingBudget a;
    a.budget.use(3 * kHalf);
    EXPECT_FALSE(a.budget.isExceeded());
}

TEST(DecoderBudget, whatHasLetGoOrIsGoneCountsForNothing) {
    CountingBudget a;
    CountingBudget b;
    a.budget.use(kHalf);
    {
        CountingBudget gone;
        gone.budget.use(kHalf);
    }
    a.budget.release();
    b.budget.use(2 * kHalf);
    EXPECT_FALSE(a.budget.isExceeded());
    EXPECT_FALSE(b.budget.isExceeded());
    EXPECT_EQ(a.wakes() + b.wakes(), 0);
}

} // namespace
} // namespace media::playback
