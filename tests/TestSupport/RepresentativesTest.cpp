#include "TestSupport/Representatives.h"

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::selectRepresentatives;

/// A case is a word, its features are its letters.
std::set<std::string> letters(const std::string& word) {
    std::set<std::string> features;
    for (const char letter : word)
        features.emplace(1, letter);
    return features;
}

TEST(Representatives, haveEveryFeatureAndKeepTheOrder) {
    const auto selection =
        selectRepresentatives(std::vector<std::string>{"ab", "bc", "a", "cde", "e"}, letters);
    EXPECT_THAT(selection.representatives, ElementsAre("ab", "cde"));
    EXPECT_THAT(selection.others, ElementsAre("bc", "a", "e"));
}

TEST(Representatives, areNoneOfNothing) {
    const auto selection = selectRepresentatives(std::vector<std::string>{}, letters);
    EXPECT_THAT(selection.representatives, IsEmpty());
    EXPECT_THAT(selection.others, IsEmpty());
}

} // namespace
