#include "Media/ChildProcess.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "Media/ImageGenerator.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <array>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

/// The system gives the process no more than so much memory (RLIMIT_AS): what needs more fails with
/// a sentence, and works once there is more.
namespace media {
namespace {

using testsupport::inChildProcess;
using testsupport::TemporaryFolder;

/// What this process has mapped, used or not; bytes.
rlim_t mappedBytes() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

/// While it lives the process can map so many bytes more.
class MemoryLimit {
public:
    explicit MemoryLimit(rlim_t more) {
        ::getrlimit(RLIMIT_AS, &m_before);
        const rlimit limit{.rlim_cur = mappedBytes() + more, .rlim_max = m_before.rlim_max};
        ::setrlimit(RLIMIT_AS, &limit);
    }

    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

    ~MemoryLimit() { ::setrlimit(RLIMIT_AS, &m_before); }

private:
    rlimit m_before = {};
};

std::filesystem::path source() {
    return testsupport::makeFixture({.duration = 0.5}).path;
}

/// A picture of a few pixels that the file's header stretches and shears to millions of millions:
/// the second number of the matrix of a track's header is more than 32,000.
std::filesystem::path shearedSource(const TemporaryFolder& folder) {
    const auto plain = testsupport::makeFixture({.duration = 0.2, .pixelAspect = {32767, 1}}).path;
    std::ifstream in(plain, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(in), {}};
    constexpr std::size_t kMatrixInHeader = 44;
    const std::size_t header = bytes.find("tkhd");
    EXPECT_LT(header, bytes.size());
    bytes.at(header + kMatrixInHeader + 4) = 0x7f;
    std::filesystem::path path = folder / "sheared.mp4";
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

/// In megabytes: from too little for anything to enough for all.
constexpr std::array<rlim_t, 9> kLimits = {0, 1, 4, 16, 32, 64, 128, 256, 512};

class LimitedMemory : public testing::TestWithParam<rlim_t> {
protected:
    void SetUp() override {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        GTEST_SKIP() << "sanitizers map more than there is";
#endif
        // Not in the child.
        source();
    }

    /// What is wrong when `work` is done under the limit, and then again without it; empty if
    /// nothing is.
    static std::string complaintAbout(const std::function<void()>& work) {
        return inChildProcess([&work] {
            const Leftovers leftovers;
            const std::string error = failureOf([&work] {
                const MemoryLimit limit(GetParam() << 20);
                work();
            });
            std::string complaint = leftovers.complaint();
            if (!error.empty())
                complaint += media::complaintAbout(error);
            work();
            return complaint;
        });
    }
};

TEST_P(LimitedMemory, isEnoughToOpenOrASentence) {
    EXPECT_EQ(complaintAbout([] { Asset::open(source()); }), "");
}

TEST_P(LimitedMemory, isEnoughToExportOrASentence) {
    const TemporaryFolder folder;
    writeFile(folder / "out.mp4", "old");
    EXPECT_EQ(complaintAbout([&folder] {
                  const auto before = contentsOf(folder / "out.mp4");
                  const std::string error =
                      failureOf([&folder] { exportRange(source(), 0, 0.4, folder / "out.mp4"); });
                  if (error.empty())
                      return;
                  if (contentsOf(folder / "out.mp4") != before)
                      throw std::runtime_error("the older file is lost");
                  throw std::runtime_error(error);
              }),
              "");
    EXPECT_THAT(namesIn(folder.path()), testing::ElementsAre("out.mp4"));
    EXPECT_GT(contentsOf(folder / "out.mp4").size(), 1000U);
}

TEST_P(LimitedMemory, isEnoughForStillsOrNone) {
    EXPECT_EQ(complaintAbout([] {
                  const auto stills = ImageGenerator::make(Asset::open(source()))
                                          ->images({Time{}, Time{1, 5}, Time{2, 5}}, {});
                  for (const Still& still : stills) {
                      if (!still.picture && failureOf([&still] {
                                                std::rethrow_exception(still.failure);
                                            }) != std::bad_alloc().what())
                          std::rethrow_exception(still.failure);
                  }
              }),
              "");
}

// A still of such a picture took gigabytes.
TEST(ImmensePicture, isShownInLittleMemory) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "sanitizers map more than there is";
#endif
    const TemporaryFolder folder;
    const std::filesystem::path path = shearedSource(folder);
    ASSERT_GT(Asset::open(path)->tracks(MediaType::video).front().preferredTransform.b, 32000);
    EXPECT_EQ(inChildProcess([&path] {
                  return failureOf([&path] {
                      const MemoryLimit limit(rlim_t{256} << 20);
                      const auto asset = Asset::open(path);
                      const auto generator = ImageGenerator::make(asset);
                      generator->setMaximumSize(160, 160);
                      generator->image(Time{});
                  });
              }),
              "");
}

INSTANTIATE_TEST_SUITE_P(, LimitedMemory, testing::ValuesIn(kLimits),
                         [](const auto& limit) { return std::to_string(limit.param) + "MB"; });

} // namespace
} // namespace media
