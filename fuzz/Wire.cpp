#include "Media/Process/Wire/ExportMessages.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Threading/Verify.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

using namespace media;
using namespace media::process;

namespace {

/// What pictures and sound are read from.
SharedArea& helpersArea() {
    static SharedArea area = [] {
        constexpr std::size_t kBytes = std::size_t{1} << 20;
        SharedArea written;
        std::ranges::fill(written.ensure(kBytes), std::uint8_t{77});
        return SharedArea(std::move(*written.takeNew()));
    }();
    return area;
}

std::string bytesOf(const auto& write) {
    MessageWriter writer;
    write(writer);
    return writer.message().bytes;
}

/// Reads a value that needs nothing but the message; whatever was read is written and read again
/// the same.
void readPlain(MessageReader& reader, const auto& get) {
    const auto value = get(reader);
    const std::string bytes = bytesOf([&](MessageWriter& writer) { put(writer, value); });
    MessageReader again(Message{.bytes = bytes, .descriptors = {}});
    const auto same = get(again);
    again.expectEnd();
    verify(bytesOf([&](MessageWriter& writer) { put(writer, same); }) == bytes,
           "what was written is read");
}

void readFrame(MessageReader& reader) {
    const playback::CachedFrame frame = getFrame(reader, helpersArea());
    const PreviewPicture::Format& format = frame.picture->format();
    const auto image = frame.picture->image();
    verify(image->width == format.width && image->height == format.height,
           "a picture is drawn at its size");
}

void readImage(MessageReader& reader) {
    const TimedImage timed = getImage(reader, helpersArea());
    const Image& image = *timed.image;
    verify(image.stride >= 4 * image.width &&
               image.pixels.size() ==
                   static_cast<std::size_t>(image.stride) * static_cast<std::size_t>(image.height),
           "an image has all its lines");
}

void readSamples(MessageReader& reader) {
    volatile float last = 0;
    for (const float sample : getSamples(reader, helpersArea()))
        last = sample;
    static_cast<void>(last);
}

using Read = void (*)(MessageReader&);

constexpr std::array kReads{
    Read([](MessageReader& reader) { readPlain(reader, getTimeRange); }),
    Read([](MessageReader& reader) { readPlain(reader, getTickRange); }),
    Read([](MessageReader& reader) { readPlain(reader, getTransform); }),
    Read([](MessageReader& reader) { readPlain(reader, process::getTrack); }),
    Read([](MessageReader& reader) { readPlain(reader, getFailure); }),
    Read([](MessageReader& reader) { readPlain(reader, getGoal); }),
    Read([](MessageReader& reader) { readPlain(reader, getPreviewSize); }),
    Read([](MessageReader& reader) { readPlain(reader, getVideoComposition); }),
    Read([](MessageReader& reader) { readPlain(reader, getSettings); }),
    Read([](MessageReader& reader) { readPlain(reader, getForecast); }),
    Read(readFrame),
    Read(readImage),
    Read(readSamples),
};

} // namespace

/// A message from a damaged helper. The first byte says what is expected.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    MessageReader reader(
        Message{.bytes = {reinterpret_cast<const char*>(data) + 1, size - 1}, .descriptors = {}});
    try {
        kReads[data[0] % kReads.size()](reader);
    } catch (const BadMessage&) {
        // As it should be.
    }
    return 0;
}
