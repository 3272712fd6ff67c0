#include "TestSupport/Fixture.h"

#include "TestSupport/ClickTrack.h"
#include "TestSupport/DisplayRotation.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/NumberedPicture.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>

namespace testsupport {
namespace {

/// Part of every name, so that files of an older recipe are not taken for today's.
constexpr int kRecipeVersion = 2;

using Arguments = std::vector<std::string>;

void append(Arguments& arguments, const Arguments& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
}

std::string shortest(double value) {
    std::ostringstream stream;
    stream.precision(12);
    stream << value;
    return stream.str();
}

const char* nameOf(VideoCodec codec) {
    constexpr std::array kNames = {"h264",  "h264-10", "hevc",   "hevc-10", "vp9",
                                   "mpeg2", "mpeg4",   "prores", "mjpeg"};
    return kNames.at(static_cast<std::size_t>(codec));
}

std::string encoderOf(AudioCodec codec, const std::string& container) {
    switch (codec) {
    case AudioCodec::containerDefault:
        return container == "webm" ? "libopus" : "aac";
    case AudioCodec::aac:
        return "aac";
    case AudioCodec::opus:
        return "libopus";
    case AudioCodec::mp3:
        return "libmp3lame";
    case AudioCodec::mp2:
        return "mp2";
    case AudioCodec::pcm:
        return "pcm_s16le";
    }
    throw std::logic_error("unknown audio codec");
}

int frameCountOf(const Recipe& recipe) {
    return std::max(1, static_cast<int>(std::lround(recipe.duration * recipe.frameRate.value())));
}

Arguments x265Arguments(const Recipe& recipe) {
    const std::string group = std::to_string(recipe.groupOfPictures);
    return {"-c:v",
            "libx265",
            "-preset",
            "ultrafast",
            "-crf",
            "20",
            "-x265-params",
            "log-level=error:scenecut=0:keyint=" + group + ":min-keyint=" + group +
                ":bframes=" + std::to_string(recipe.bFrames) +
                ":b-adapt=0:open-gop=" + (recipe.isOpenGroup ? "1" : "0")};
}

Arguments x264Arguments(const Recipe& recipe) {
    return {"-c:v",          "libx264",
            "-preset",       "superfast",
            "-crf",          "20",
            "-sc_threshold", "0",
            "-x264-params",  std::string("b-adapt=0:open-gop=") + (recipe.isOpenGroup ? "1" : "0")};
}

Arguments vp9Arguments(const Recipe& recipe) {
    Arguments arguments = {"-c:v", "libvpx-vp9", "-crf", "30", "-b:v", "0", "-deadline"};
    if (recipe.bFrames > 0)
        append(arguments, {"good", "-cpu-used", "5", "-lag-in-frames", "16", "-auto-alt-ref", "1"});
    else
        append(arguments, {"realtime", "-cpu-used", "8", "-lag-in-frames", "0"});
    return arguments;
}

Arguments mpegArguments(const Recipe& recipe, const char* encoder) {
    // Closed groups go together with scene detection only when that is as good as off.
    Arguments arguments = {"-c:v", encoder, "-q:v", "4", "-sc_threshold", "1000000000"};
    if (!recipe.isOpenGroup)
        append(arguments, {"-flags", "+cgop"});
    return arguments;
}

Arguments videoEncoderArguments(const Recipe& recipe) {
    switch (recipe.codec) {
    case VideoCodec::h264:
    case VideoCodec::h264TenBit:
        return x264Arguments(recipe);
    case VideoCodec::hevc:
    case VideoCodec::hevcTenBit:
        return x265Arguments(recipe);
    case VideoCodec::vp9:
        return vp9Arguments(recipe);
    case VideoCodec::mpeg2:
        return mpegArguments(recipe, "mpeg2video");
    case VideoCodec::mpeg4:
        return mpegArguments(recipe, "mpeg4");
    case VideoCodec::proRes:
        return {"-c:v", "prores_ks"};
    case VideoCodec::mjpeg:
        return {"-c:v", "mjpeg", "-q:v", "4"};
    }
    throw std::logic_error("unknown video codec");
}

std::string pixelFormatOf(const Recipe& recipe) {
    if (!recipe.pixelFormat.empty())
        return recipe.pixelFormat;
    switch (recipe.codec) {
    case VideoCodec::h264TenBit:
    case VideoCodec::hevcTenBit:
        return "yuv420p10le";
    case VideoCodec::proRes:
        return "yuv422p10le";
    case VideoCodec::mjpeg:
        return "yuvj420p";
    default:
        return "yuv420p";
    }
}

/// Five frames in the time of eight, each up to a few milliseconds beside its place: on no grid,
/// and never in another order.
std::string variableTimesFilter(const Recipe& recipe) {
    const std::string period = std::to_string(recipe.frameRate.denominator) + "/" +
                               std::to_string(recipe.frameRate.numerator);
    return ",settb=1/90000,setpts='round((floor(N/5)*8+eq(mod(N,5),1)+2*eq(mod(N,5),2)+"
           "5*eq(mod(N,5),3)+6*eq(mod(N,5),4))*90000*" +
           period + "+mod(N*373,480))'";
}

Arguments videoOutputArguments(const Recipe& recipe) {
    std::string filter = "setsar=" + std::to_string(recipe.pixelAspect.numerator) + "/" +
                         std::to_string(recipe.pixelAspect.denominator);
    Arguments arguments = {"-fps_mode", "passthrough"};
    if (recipe.hasVariableFrameRate) {
        filter += variableTimesFilter(recipe);
        append(arguments, {"-enc_time_base", "1:90000"});
    }
    const std::string group = std::to_string(recipe.groupOfPictures);
    append(arguments,
           {"-vf", filter, "-pix_fmt", pixelFormatOf(recipe), "-g", group, "-keyint_min", group});
    const bool takesBFrames = recipe.codec != VideoCodec::vp9 &&
                              recipe.codec != VideoCodec::proRes &&
                              recipe.codec != VideoCodec::mjpeg;
    if (takesBFrames)
        append(arguments, {"-bf", std::to_string(recipe.bFrames)});
    append(arguments, videoEncoderArguments(recipe));
    const bool isHevc = recipe.codec == VideoCodec::hevc || recipe.codec == VideoCodec::hevcTenBit;
    if (isHevc && (recipe.container == "mp4" || recipe.container == "mov"))
        append(arguments, {"-tag:v", "hvc1"});
    return arguments;
}

Arguments containerArguments(const Recipe& recipe) {
    Arguments arguments;
    // The sound's priming lies before 0, where a transport stream cannot begin.
    const double offset =
        recipe.container == "ts" ? std::max(0.1, recipe.startOffset) : recipe.startOffset;
    if (offset != 0)
        append(arguments, {"-output_ts_offset", shortest(offset)});
    if (recipe.container == "ts")
        append(arguments, {"-muxdelay", "0", "-muxpreload", "0"});
    return arguments;
}

double audioDurationOf(const Recipe& recipe) {
    if (recipe.audioDuration >= 0)
        return recipe.audioDuration;
    const double factor = recipe.hasVariableFrameRate ? 1.6 : 1;
    return frameCountOf(recipe) / recipe.frameRate.value() * factor - recipe.audioStart;
}

void writeClicks(const Recipe& recipe, int track, const std::filesystem::path& path) {
    const std::vector<std::int16_t> samples = drawClicks({.sampleRate = recipe.sampleRate,
                                                          .start = recipe.audioStart,
                                                          .duration = audioDurationOf(recipe),
                                                          .clickPhase = 0.1 * track});
    std::ofstream file(path, std::ios::binary);
    for (const std::int16_t sample : samples) {
        for (int channel = 0; channel < recipe.channels; ++channel)
            file.write(reinterpret_cast<const char*>(&sample), sizeof sample);
    }
    if (!file.flush())
        throw std::runtime_error("Cannot write " + path.string());
}

Arguments audioInputArguments(const Recipe& recipe, const std::filesystem::path& path) {
    return {"-f",  "s16le",
            "-ar", std::to_string(recipe.sampleRate),
            "-ac", std::to_string(recipe.channels),
            "-i",  path.string()};
}

Arguments audioOutputArguments(const Recipe& recipe) {
    constexpr std::array kLanguages = {"eng", "fra", "deu", "spa", "ita"};
    Arguments arguments;
    for (int track = 0; track < recipe.audioTracks; ++track) {
        append(arguments, {"-map", std::to_string(track + 1) + ":a:0",
                           "-metadata:s:a:" + std::to_string(track),
                           std::string("language=") +
                               kLanguages.at(static_cast<std::size_t>(track) % kLanguages.size())});
        // Newer releases of ffmpeg do not move raw sound by -itsoffset.
        if (recipe.audioStart != 0)
            append(arguments, {"-filter:a:" + std::to_string(track),
                               "asetpts=PTS+" + shortest(recipe.audioStart) + "/TB"});
    }
    if (recipe.audioTracks > 0) {
        const std::string encoder = encoderOf(recipe.audioCodec, recipe.container);
        append(arguments, {"-c:a", encoder});
        if (encoder != "pcm_s16le")
            append(arguments, {"-b:a", "192k"});
    }
    return arguments;
}

/// The raw pictures, one after the other, as ffmpeg's standard input.
InputSource numberedPictures(const Recipe& recipe) {
    const bool isTurned = recipe.displayRotation % 180 != 0;
    const int uprightWidth = isTurned ? recipe.height : recipe.width;
    const int uprightHeight = isTurned ? recipe.width : recipe.height;
    return [=, number = 0, count = frameCountOf(recipe)]() mutable {
        if (number == count)
            return std::string();
        const GreyPicture picture =
            turnedLeft(drawNumber(number, uprightWidth, uprightHeight), recipe.displayRotation);
        ++number;
        return std::string(picture.pixels.begin(), picture.pixels.end());
    };
}

void generate(const Recipe& recipe, const std::filesystem::path& path) {
    const TemporaryFolder folder;
    Arguments arguments = {"ffmpeg",
                           "-v",
                           "error",
                           "-y",
                           "-f",
                           "rawvideo",
                           "-pix_fmt",
                           "gray",
                           "-s",
                           std::to_string(recipe.width) + "x" + std::to_string(recipe.height),
                           "-r",
                           std::to_string(recipe.frameRate.numerator) + "/" +
                               std::to_string(recipe.frameRate.denominator),
                           "-i",
                           "pipe:0"};
    for (int track = 0; track < recipe.audioTracks; ++track) {
        const std::filesystem::path clicks = folder / (std::to_string(track) + ".raw");
        writeClicks(recipe, track, clicks);
        append(arguments, audioInputArguments(recipe, clicks));
    }
    append(arguments, {"-map", "0:v:0"});
    append(arguments, audioOutputArguments(recipe));
    append(arguments, videoOutputArguments(recipe));
    append(arguments, containerArguments(recipe));
    append(arguments, recipe.additionalArguments);
    arguments.push_back("file:" + path.string());
    runProcessOrThrow(arguments, {.input = numberedPictures(recipe)});
    if (recipe.displayRotation != 0)
        setDisplayRotation(path, recipe.displayRotation, recipe.width, recipe.height);
}

Fixture inspect(const std::filesystem::path& path) {
    Fixture fixture;
    fixture.path = path;
    fixture.frames = readNumberedFrames(path);
    if (fixture.frames.empty())
        throw std::runtime_error(path.string() + " shows no picture.");
    fixture.clockStart = fixture.frames.front().seconds;
    const std::size_t audioTracks = probe(path).streamsOf("audio").size();
    for (std::size_t track = 0; track < audioTracks; ++track) {
        fixture.audio.push_back(readHeardTrack(path, static_cast<int>(track)));
        fixture.clockStart = std::min(fixture.clockStart, fixture.audio.back().start);
    }
    for (NumberedFrame& frame : fixture.frames)
        frame.seconds -= fixture.clockStart;
    for (HeardTrack& track : fixture.audio) {
        track.start -= fixture.clockStart;
        track.end -= fixture.clockStart;
        for (double& click : track.clicks)
            click -= fixture.clockStart;
    }
    return fixture;
}

void check(bool isTrue, const Recipe& recipe, const std::string& what) {
    if (!isTrue)
        throw std::runtime_error(recipe.fileName() + " did not come out right: " + what);
}

void checkAgainstRecipe(const Recipe& recipe, const Fixture& fixture) {
    check(static_cast<int>(fixture.frames.size()) == frameCountOf(recipe), recipe,
          std::to_string(fixture.frames.size()) + " frames");
    for (std::size_t i = 0; i < fixture.frames.size(); ++i) {
        check(fixture.frames[i].number == static_cast<int>(i), recipe,
              "frame " + std::to_string(i) + " shows " + std::to_string(fixture.frames[i].number));
    }
    const double videoStart = fixture.frames.front().seconds;
    const double period = 1 / recipe.frameRate.value();
    for (std::size_t i = 0; !recipe.hasVariableFrameRate && i < fixture.frames.size(); ++i) {
        const double place = videoStart + static_cast<double>(i) * period;
        check(std::abs(fixture.frames[i].seconds - place) < 0.0011, recipe,
              "frame " + std::to_string(i) + " at " + std::to_string(fixture.frames[i].seconds));
    }
    // A transport stream also has to keep its decoding times from becoming negative.
    const double tolerance = recipe.container == "ts" ? 0.2 : 0.1;
    check(std::abs(fixture.clockStart - recipe.startOffset) < tolerance, recipe,
          "starts at " + std::to_string(fixture.clockStart));
    check(static_cast<int>(fixture.audio.size()) == recipe.audioTracks, recipe, "audio tracks");
    // WebM as ffmpeg writes it has the picture late by the Opus encoder's delay.
    const double clickTolerance = recipe.container == "webm" ? 0.008 : 0.001;
    for (std::size_t track = 0; track < fixture.audio.size(); ++track) {
        for (const double click : fixture.audio[track].clicks) {
            const double place = click - videoStart - 0.1 * static_cast<double>(track);
            check(std::abs(place - std::round(place)) < clickTolerance, recipe,
                  "a click at " + std::to_string(click - videoStart));
        }
    }
}

void save(const Fixture& fixture, const std::filesystem::path& path) {
    std::ofstream file(path);
    file.precision(12);
    file << "clock " << fixture.clockStart << '\n';
    for (const NumberedFrame& frame : fixture.frames)
        file << "frame " << frame.number << ' ' << frame.seconds << ' ' << frame.duration << '\n';
    for (const HeardTrack& track : fixture.audio) {
        file << "audio " << track.start << ' ' << track.end << '\n';
        for (const double click : track.clicks)
            file << "click " << click << '\n';
    }
    if (!file.flush())
        throw std::runtime_error("Cannot write " + path.string());
}

Fixture loadSaved(const std::filesystem::path& path) {
    Fixture fixture;
    std::ifstream file(path);
    for (std::string word; file >> word;) {
        if (word == "clock") {
            file >> fixture.clockStart;
        } else if (word == "frame") {
            NumberedFrame& frame = fixture.frames.emplace_back();
            file >> frame.number >> frame.seconds >> frame.duration;
        } else if (word == "audio") {
            HeardTrack& track = fixture.audio.emplace_back();
            file >> track.start >> track.end;
        } else if (word == "click") {
            file >> fixture.audio.back().clicks.emplace_back();
        }
    }
    return fixture;
}

} // namespace

std::string Recipe::fileName() const {
    std::ostringstream name;
    name << nameOf(codec) << '-' << width << 'x' << height << '-' << frameRate.numerator << 'f'
         << frameRate.denominator << '-' << shortest(duration) << "s-g" << groupOfPictures << 'b'
         << bFrames << (isOpenGroup ? "open" : "") << (hasVariableFrameRate ? "-vfr" : "") << "-at"
         << shortest(startOffset) << "-par" << pixelAspect.numerator << 'x'
         << pixelAspect.denominator << "-rot" << displayRotation << '-' << pixelFormat << "-a"
         << audioTracks << encoderOf(audioCodec, container) << sampleRate << 'x' << channels << '-'
         << shortest(audioStart) << '-' << shortest(audioDuration);
    if (!additionalArguments.empty()) {
        std::string all;
        for (const std::string& argument : additionalArguments)
            all += argument + '\n';
        name << "-x" << std::hex << std::hash<std::string>()(all) << std::dec;
    }
    name << "-v" << kRecipeVersion << '.' << container;
    return name.str();
}

Fixture makeFixture(const Recipe& recipe) {
    const std::filesystem::path path = cachedMedia(
        recipe.fileName(), [&](const std::filesystem::path& to) { generate(recipe, to); });
    const std::filesystem::path truth =
        cachedMedia(recipe.fileName() + ".txt", [&](const std::filesystem::path& to) {
            try {
                const Fixture fixture = inspect(path);
                checkAgainstRecipe(recipe, fixture);
                save(fixture, to);
            } catch (...) {
                std::filesystem::remove(path);
                throw;
            }
        });
    Fixture fixture = loadSaved(truth);
    fixture.path = path;
    return fixture;
}

} // namespace testsupport
