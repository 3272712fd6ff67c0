#include "Media/Export/ExportRun.h"
#include "Media/ChildProcess.h"
#include "Media/ExportFixture.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/Pictures/DecodingImageGenerator.h"
#include "Media/Process/Server/Confinement.h"
#include "Media/Process/Server/NumaNodes.h"
#include "Media/Reading/OpenedAsset.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <clocale>
#include <fcntl.h>
#include <functional>
#include <sched.h>
#include <string>
#include <string_view>
#include <utility>

/// Decoders and encoders do behind the walls what they do without them.
namespace media {
namespace {

using testsupport::inChildProcess;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

struct Clip {
    const char* name;
    Recipe recipe;
};

void PrintTo(const Clip& clip, std::ostream* out) {
    *out << clip.name;
}

std::string nameOf(const testing::TestParamInfo<Clip>& info) {
    return info.param.name;
}

Recipe av1Recipe() {
    return {.container = "mp4",
            .duration = 1,
            .additionalArguments = {"-c:v", "libaom-av1", "-cpu-used", "8", "-usage", "realtime"}};
}

class ConfinedWork : public testing::TestWithParam<Clip> {
protected:
    void SetUp() override { m_source = makeFixture(GetParam().recipe).path; }

    /// What a helper does, in a process of its own; its sum, and the new file.
    std::pair<std::string, std::string> workAfter(const std::function<void()>& prepare) const {
        const auto output = m_folder / "out.mp4";
        const std::string said = inChildProcess([&]() -> std::string {
            const auto file = ffmpeg::SourceFile::open(m_source);
            Descriptor created(
                ::open(output.c_str(), O_CREAT | O_TRUNC | O_RDWR | O_CLOEXEC, 0600));
            prepare();
            const auto asset =
                OpenedAsset::open(ffmpeg::SourceFile::adopt(file->duplicate(), m_source));
            std::string seen = hashOf(stillsOf(asset)) + " " + hashOf(soundOf(*asset));
            exportTo(std::move(created), asset);
            return seen;
        });
        return {said, contentsOf(output)};
    }

private:
    static std::string hashOf(std::string_view bytes) {
        return std::to_string(bytes.size()) + ":" +
               std::to_string(std::hash<std::string_view>()(bytes));
    }

    static std::string stillsOf(const std::shared_ptr<const Asset>& asset) {
        DecodingImageGenerator generator(asset);
        generator.setMaximumSize(160, 160);
        std::string bytes;
        const std::vector<Time> times = {{0, 600}, {300, 600}, {550, 600}};
        for (const Still& still : generator.images(times, [] {})) {
            if (still.failure)
                std::rethrow_exception(still.failure);
            bytes.append(still.picture->image->pixels.begin(), still.picture->image->pixels.end());
        }
        return bytes;
    }

    static std::string soundOf(const OpenedAsset& asset) {
        const auto reader = asset.makeSoundReader();
        std::string bytes;
        for (;;) {
            const auto samples = std::as_bytes(reader->next({}));
            if (samples.empty())
                return bytes;
            bytes.append(reinterpret_cast<const char*>(samples.data()), samples.size());
        }
    }

    static void exportTo(Descriptor file, const std::shared_ptr<const Asset>& asset) {
        OutputWriter writer(std::move(file));
        ExportRun run(compositionOf(asset), std::nullopt, {}, writer, FileType::mpeg4);
        std::atomic<double> progress = 0;
        run.writeMedia({}, progress);
        run.complete({});
    }

    std::filesystem::path m_source;
    testsupport::TemporaryFolder m_folder;
};

/// As a helper and the process that it is forked from do.
void confine() {
    process::learnNumaNodes();
    process::confine();
}

void useOneProcessor() {
    cpu_set_t processors;
    ::sched_getaffinity(0, sizeof processors, &processors);
    std::size_t first = 0;
    while (CPU_ISSET(first, &processors) == 0)
        ++first;
    CPU_ZERO(&processors);
    CPU_SET(first, &processors);
    ::sched_setaffinity(0, sizeof processors, &processors);
}

TEST_P(ConfinedWork, isTheSameAsInTheOpen) {
    const auto open = workAfter([] {});
    ASSERT_EQ(open.first.find("exception"), std::string::npos) << open.first;
    EXPECT_GT(open.second.size(), 1000U);
    EXPECT_TRUE(workAfter(&confine) == open) << "with threads";
}

TEST_P(ConfinedWork, isTheSameOnOneProcessor) {
    const auto open = workAfter(&useOneProcessor);
    EXPECT_GT(open.second.size(), 1000U);
    EXPECT_TRUE(workAfter([] {
                    useOneProcessor();
                    confine();
                }) == open);
}

TEST_P(ConfinedWork, isTheSameWithADecimalComma) {
    const auto prepare = [] {
        // There is one thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
        if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
            throw std::runtime_error("no such locale");
        confine();
    };
    const auto german = workAfter(prepare);
    if (german.first == "exception: no such locale")
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    EXPECT_TRUE(german == workAfter([] {}));
}

INSTANTIATE_TEST_SUITE_P(
    Clips, ConfinedWork,
    testing::Values(Clip{"h264", {.duration = 1}},
                    Clip{"hevcTenBit", {.codec = VideoCodec::hevcTenBit, .duration = 1}},
                    Clip{"vp9", {.codec = VideoCodec::vp9, .container = "webm", .duration = 1}},
                    Clip{"av1", av1Recipe()},
                    Clip{"mpeg2", {.codec = VideoCodec::mpeg2, .container = "ts", .duration = 1}},
                    Clip{"proRes",
                         {.codec = VideoCodec::proRes, .container = "mov", .duration = 1}}),
    &nameOf);

} // namespace
} // namespace media
