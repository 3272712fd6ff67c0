#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "Media/Process/Client/ForkServer.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "Media/Process/Client/RemoteImageGenerator.h"
#include "TestSupport/Fixture.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace media::process {
namespace {

/// Leaves this process so many descriptors, as long as it lives.
class FewDescriptors {
public:
    explicit FewDescriptors(rlim_t count) {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        // Those that are free lie above all that are open, without a gap.
        for (;;) {
            Descriptor filler(::open("/", O_PATH | O_CLOEXEC));
            if (static_cast<rlim_t>(filler.number()) >= kAboveAll)
                break;
            m_fillers.push_back(std::move(filler));
        }
        const rlimit few{kAboveAll + count, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    }

    ~FewDescriptors() { ::setrlimit(RLIMIT_NOFILE, &m_before); }

    FewDescriptors(const FewDescriptors&) = delete;
    FewDescriptors& operator=(const FewDescriptors&) = delete;

private:
    static constexpr rlim_t kAboveAll = 100;

    rlimit m_before{};
    std::vector<Descriptor> m_fillers;
};

/// The sentence of the Error that it fails with; "done" without one. Others go through.
template<typename Action>
std::string outcomeOf(Action action) {
    const std::string error = errorOf(action);
    return error.empty() ? "done" : error;
}

TEST(FewDescriptors, areSaidToBeTheReasonWhyAVideoDoesNotOpen) {
    const auto path = testsupport::makeFixture({}).path;
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    static_cast<void>(server.fork());
    const Leftovers before;
    std::string outcome;
    for (rlim_t count = 0; outcome != "done"; ++count) {
        ASSERT_LT(count, 30U);
        std::shared_ptr<const RemoteAsset> asset;
        {
            const FewDescriptors few(count);
            outcome = outcomeOf([&] { asset = RemoteAsset::open(server, path, {}); });
        }
        const bool isSaid = outcome.find("Too many open files") != std::string::npos;
        EXPECT_TRUE(isSaid || outcome == "done") << count << ": " << outcome;
        asset.reset();
        EXPECT_EQ(before.complaint(), "") << count;
    }
}

TEST(FewDescriptors, areSaidToBeTheReasonWhyNothingNewIsDecoded) {
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const auto asset = RemoteAsset::open(server, testsupport::makeFixture({}).path, {});
    const auto make = [&asset] {
        static_cast<void>(asset->makeFrameSource([](const playback::CachedFrame&) {}));
        static_cast<void>(asset->makeSoundReader());
        static_cast<void>(RemoteImageGenerator(asset));
    };
    for (const rlim_t count : {0U, 1U}) {
        const FewDescriptors few(count);
        EXPECT_EQ(errorOf(make), "The file can’t be read: Too many open files.");
    }
    EXPECT_EQ(errorOf(make), "");
}

} // namespace
} // namespace media::process
