#include "Media/Asset.h"
#include "Media/Faults.h"
#include "Media/Reading/OpenedAsset.h"
#include "TestSupport/Fixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>

/// Each single call to the system goes wrong once while a video is opened: it is opened all the
/// same, or the failure is a sentence, and nothing is left open.
namespace media {
namespace {

using testsupport::SystemCall;

class LoadWithAFault : public testing::TestWithParam<FaultKind> {
protected:
    void open() const {
        const auto asset = Asset::open(m_path);
        EXPECT_EQ(asset->tracks(MediaType::video).size(), 1U);
        EXPECT_EQ(asset->tracks(MediaType::audio).size(), 1U);
        EXPECT_NEAR(asset->duration().seconds(), 2, 0.1);
    }

    [[nodiscard]] std::string complaintAfterFaultAt(long number) const {
        const Leftovers leftovers;
        const std::string error = failureOf([&] {
            runWithFault({.number = number, .answer = GetParam().answer}, [this] { open(); });
        });
        open();
        return leftovers.complaint() + (error.empty() ? "" : complaintAbout(error));
    }

    std::filesystem::path m_path = testsupport::makeFixture({.duration = 2}).path;
};

TEST_P(LoadWithAFault, opensOrSaysWhyNot) {
    const auto kinds = runWithFault({}, [this] { open(); });
    ASSERT_GT(kinds.size(), 3U);
    RecordProperty("points", static_cast<int>(kinds.size()));
    for (long number = 0; number < std::ssize(kinds); ++number)
        EXPECT_EQ(complaintAfterFaultAt(number), "")
            << "call " << number << ", kind "
            << static_cast<int>(kinds[static_cast<std::size_t>(number)]);
}

INSTANTIATE_TEST_SUITE_P(, LoadWithAFault, testing::ValuesIn(faultKinds()),
                         [](const auto& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace media
