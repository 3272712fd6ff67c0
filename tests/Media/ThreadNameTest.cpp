#include "Media/FFmpeg/Decoder.h"
#include "Media/Threading/ThreadName.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <latch>
#include <map>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace media {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::Eq;
using testing::Ge;
using testing::SizeIs;
using testing::StartsWith;

/// The names of this process's threads, by their numbers.
std::map<std::string, std::string> threadNames() {
    std::map<std::string, std::string> names;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task"))
        std::getline(std::ifstream(task.path() / "comm"), names[task.path().filename()]);
    return names;
}

std::string ownName() {
    return threadNames().at(std::to_string(::gettid()));
}

TEST(ThreadName, isThatOfTheThreadAndOfThoseItStartsMeanwhile) {
    const std::string before = ownName();
    std::latch end(1);
    std::string inherited;
    std::jthread started;
    {
        const ThreadName name("fifteen letters");
        EXPECT_EQ(ownName(), "fifteen letters");
        started = std::jthread([&] {
            end.wait();
            inherited = ownName();
        });
    }
    end.count_down();
    started.join();
    EXPECT_EQ(inherited, "fifteen letters");
    EXPECT_EQ(ownName(), before);
}

/// They had the program's name, so that top -H did not tell which work takes the time. From release
/// 6 on libav names most of its threads itself, by the codec.
TEST(ThreadName, tellsTheThreadsOfADecoder) {
    AVCodecParameters parameters{};
    parameters.codec_type = AVMEDIA_TYPE_VIDEO;
    parameters.codec_id = AV_CODEC_ID_H264;
    const auto before = threadNames();
    const ffmpeg::Decoder decoder(parameters, {1, 600}, 3);
    std::vector<std::string> started;
    for (const auto& [number, name] : threadNames()) {
        if (!before.contains(number))
            started.push_back(name);
    }
    // The thread sanitizer starts one of its own, which takes the name too.
    EXPECT_THAT(started, SizeIs(Ge(3)));
    EXPECT_THAT(started, Each(AnyOf(Eq("decode-video"), StartsWith("av:h264:"))));
}

} // namespace
} // namespace media
