#include "TestSupport/Inspection.h"

#include "TestSupport/ClickTrack.h"
#include "TestSupport/NumberedPicture.h"
#include "TestSupport/Process.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <span>
#include <sstream>
#include <stdexcept>

namespace testsupport {
namespace {

/// The size at which numbers are read: ten pixels for each side of a field.
constexpr int kReadWidth = 60;
constexpr int kReadHeight = 40;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(std::move(line));
    return lines;
}

std::optional<double> parseNumber(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc())
        return std::nullopt;
    const std::string_view rest(end, static_cast<std::size_t>(text.data() + text.size() - end));
    if (rest.empty())
        return value;
    if (rest.front() != '/' && rest.front() != ':')
        return std::nullopt;
    const std::optional<double> divisor = parseNumber(rest.substr(1));
    if (!divisor || *divisor == 0)
        return std::nullopt;
    return value / *divisor;
}

/// The number after `name` in a line of one of ffmpeg's info filters.
std::optional<double> valueAfter(const std::string& line, std::string_view name) {
    const std::size_t at = line.find(name);
    if (at == std::string::npos)
        return std::nullopt;
    const std::size_t begin = line.find_first_not_of(' ', at + name.size());
    if (begin == std::string::npos)
        return std::nullopt;
    return parseNumber(
        std::string_view(line).substr(begin, line.find_first_of(" ,", begin) - begin));
}

std::string withoutQuotes(std::string_view value) {
    if (value.size() >= 2 && value.front() == '"')
        value = value.substr(1, value.size() - 2);
    std::string plain;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) {
            ++i;
            plain += value[i] == 'n' ? '\n' : value[i];
        } else {
            plain += value[i];
        }
    }
    return plain;
}

std::string urlFor(const std::filesystem::path& path) {
    return "file:" + path.string();
}

/// What the info filter printed of each frame: its time, in seconds.
std::vector<double> videoFrameTimes(const std::string& log) {
    std::vector<double> times;
    double timeBase = 0;
    for (const std::string& line : linesOf(log)) {
        if (line.find("Parsed_showinfo") == std::string::npos)
            continue;
        if (const auto value = valueAfter(line, "config in time_base:"))
            timeBase = *value;
        else if (const auto pts = valueAfter(line, " pts:"))
            times.push_back(*pts * timeBase);
    }
    return times;
}

double durationAt(const std::vector<ProbedPacket>& packets, double seconds) {
    for (const ProbedPacket& packet : packets) {
        if (std::abs(packet.pts - seconds) < 1e-5)
            return packet.duration;
    }
    return 0;
}

struct HeardFrame {
    double start = 0;
    std::size_t samples = 0;
    int sampleRate = 0;
};

std::vector<HeardFrame> heardFrames(const std::string& log) {
    std::vector<HeardFrame> frames;
    for (const std::string& line : linesOf(log)) {
        if (line.find("Parsed_ashowinfo") == std::string::npos)
            continue;
        const auto pts = valueAfter(line, " pts:");
        const auto rate = valueAfter(line, " rate:");
        const auto count = valueAfter(line, " nb_samples:");
        if (pts && rate && count) {
            frames.push_back(
                {*pts / *rate, static_cast<std::size_t>(*count), static_cast<int>(*rate)});
        }
    }
    return frames;
}

std::vector<float> floatsOf(const std::string& bytes) {
    std::vector<float> values(bytes.size() / sizeof(float));
    std::memcpy(values.data(), bytes.data(), values.size() * sizeof(float));
    return values;
}

/// When the sample with this index is heard.
double timeOfSample(const std::vector<HeardFrame>& frames, std::size_t sample) {
    for (const HeardFrame& frame : frames) {
        if (sample < frame.samples)
            return frame.start + static_cast<double>(sample) / frame.sampleRate;
        sample -= frame.samples;
    }
    throw std::out_of_range("No frame holds this sample.");
}

void store(ProbedFile& file, std::string_view name, std::string value) {
    const auto storeNumbered = [&](std::string_view prefix, std::vector<ProbedFields>& list) {
        if (!name.starts_with(prefix))
            return false;
        name.remove_prefix(prefix.size());
        const std::size_t dot = name.find('.');
        const auto index = static_cast<std::size_t>(parseNumber(name.substr(0, dot)).value());
        list.resize(std::max(list.size(), index + 1));
        list[index].values.emplace(name.substr(dot + 1), std::move(value));
        return true;
    };
    if (storeNumbered("streams.stream.", file.streams) ||
        storeNumbered("chapters.chapter.", file.chapters))
        return;
    constexpr std::string_view kFormat = "format.";
    if (name.starts_with(kFormat))
        file.format.values.emplace(name.substr(kFormat.size()), std::move(value));
}

std::string withoutLinesThatHold(const std::string& text, std::string_view part) {
    std::string rest;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.find(part) == std::string::npos)
            rest += line + '\n';
    }
    return rest;
}

} // namespace

std::vector<NumberedFrame> readNumberedFrames(const std::filesystem::path& path,
                                              int videoTrackIndex, const std::string& filter) {
    const std::string index = std::to_string(videoTrackIndex);
    const std::string size = std::to_string(kReadWidth) + ":" + std::to_string(kReadHeight);
    const ProcessResult result = runProcessOrThrow(
        {"ffmpeg", "-nostdin", "-hide_banner", "-nostats", "-v", "info", "-copyts", "-i",
         urlFor(path), "-map", "0:v:" + index, "-vf",
         filter + ",showinfo=checksum=0,scale=" + size + ":flags=area,format=gray", "-fps_mode",
         "passthrough", "-f", "rawvideo", "pipe:1"});

    const std::vector<double> times = videoFrameTimes(result.errors);
    constexpr std::size_t kPictureSize = std::size_t{kReadWidth} * kReadHeight;
    if (result.output.size() != times.size() * kPictureSize)
        throw std::runtime_error("ffmpeg gave other pictures than it announced. " + result.errors);

    const std::vector<ProbedPacket> packets = readPackets(path, "v:" + index);
    std::vector<NumberedFrame> frames;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(result.output.data());
    for (std::size_t i = 0; i < times.size(); ++i) {
        const std::span picture(bytes + i * kPictureSize, kPictureSize);
        frames.push_back({readNumber(picture, kReadWidth, kReadHeight).value_or(-1), times[i],
                          durationAt(packets, times[i])});
    }
    return frames;
}

std::optional<int> readStillNumber(const std::filesystem::path& path) {
    const std::string size = std::to_string(kReadWidth) + ":" + std::to_string(kReadHeight);
    const ProcessResult result = runProcessOrThrow(
        {"ffmpeg", "-nostdin", "-v", "error", "-i", urlFor(path), "-frames:v", "1", "-vf",
         "scale=" + size + ":flags=area,format=gray", "-f", "rawvideo", "pipe:1"});
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(result.output.data());
    return readNumber({bytes, result.output.size()}, kReadWidth, kReadHeight);
}

HeardTrack readHeardTrack(const std::filesystem::path& path, int audioTrackIndex) {
    // One channel is enough: all channels of a generated track hold the same.
    const ProcessResult result = runProcessOrThrow(
        {"ffmpeg", "-nostdin", "-hide_banner", "-nostats", "-v", "info", "-copyts", "-i",
         urlFor(path), "-map", "0:a:" + std::to_string(audioTrackIndex), "-af",
         "ashowinfo,pan=mono|c0=c0,aformat=sample_fmts=flt", "-f", "f32le", "pipe:1"});

    const std::vector<HeardFrame> frames = heardFrames(result.errors);
    const std::vector<float> samples = floatsOf(result.output);
    HeardTrack track;
    if (frames.empty())
        return track;
    track.start = frames.front().start;
    track.end =
        frames.back().start + static_cast<double>(frames.back().samples) / frames.back().sampleRate;
    for (const std::size_t click : findClicks(samples, frames.front().sampleRate))
        track.clicks.push_back(timeOfSample(frames, click));
    return track;
}

std::vector<double> readClicks(const std::filesystem::path& path, int audioTrackIndex) {
    return readHeardTrack(path, audioTrackIndex).clicks;
}

std::string ProbedFields::text(std::string_view name) const {
    const auto found = values.find(name);
    return found == values.end() ? std::string() : found->second;
}

std::optional<double> ProbedFields::number(std::string_view name) const {
    return parseNumber(text(name));
}

std::vector<ProbedFields> ProbedFile::streamsOf(std::string_view codecType) const {
    std::vector<ProbedFields> found;
    std::ranges::copy_if(streams, std::back_inserter(found), [&](const ProbedFields& stream) {
        return stream.text("codec_type") == codecType;
    });
    return found;
}

ProbedFile probe(const std::filesystem::path& path) {
    const ProcessResult result =
        runProcessOrThrow({"ffprobe", "-v", "error", "-show_format", "-show_streams",
                           "-show_chapters", "-of", "flat", urlFor(path)});
    ProbedFile file;
    for (const std::string& line : linesOf(result.output)) {
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos)
            store(file, std::string_view(line).substr(0, equals),
                  withoutQuotes(std::string_view(line).substr(equals + 1)));
    }
    return file;
}

std::vector<ProbedPacket> readPackets(const std::filesystem::path& path,
                                      const std::string& stream) {
    const ProcessResult result = runProcessOrThrow(
        {"ffprobe", "-v", "error", "-select_streams", stream, "-show_entries",
         "packet=pts_time,dts_time,duration_time,flags", "-of", "compact=p=0", urlFor(path)});
    std::vector<ProbedPacket> packets;
    for (const std::string& line : linesOf(result.output)) {
        std::map<std::string, std::string> fields;
        std::istringstream lineStream(line);
        for (std::string field; std::getline(lineStream, field, '|');) {
            const std::size_t equals = field.find('=');
            if (equals != std::string::npos)
                fields[field.substr(0, equals)] = field.substr(equals + 1);
        }
        const auto number = [&](const char* name) { return parseNumber(fields[name]).value_or(0); };
        if (fields.contains("flags"))
            packets.push_back({number("pts_time"), number("dts_time"), number("duration_time"),
                               fields["flags"].starts_with('K')});
    }
    return packets;
}

std::string warningsWhilePlaying(const std::filesystem::path& path) {
    // In a time base as fine as any file's: in that of the average frame rate, frames of a variable
    // one fall together and ffmpeg complains about itself.
    const ProcessResult result = runProcess(
        {"ffmpeg", "-nostdin", "-v", "warning", "-i", urlFor(path), "-map", "0:v?", "-map", "0:a?",
         "-fps_mode", "passthrough", "-enc_time_base:v", "1:1000000", "-f", "null", "-"});
    // ffmpeg 9.0 says this of every file with a named track, those that it makes itself included.
    const std::string errors = withoutLinesThatHold(result.errors, "UDTA parsing failed");
    if (result.succeeded() || !errors.empty())
        return errors;
    return "ffmpeg ended with status " + std::to_string(result.exitStatus);
}

double ssim(const std::filesystem::path& first, const std::filesystem::path& second) {
    // Renumbered, because frames are compared in order, whatever their times.
    const std::string graph = "[0:v:0]settb=1/25,setpts=N[a];[1:v:0]settb=1/25,setpts=N[b];"
                              "[a][b]ssim=shortest=1";
    const ProcessResult result = runProcessOrThrow(
        {"ffmpeg", "-nostdin", "-hide_banner", "-nostats", "-v", "info", "-i", urlFor(first), "-i",
         urlFor(second), "-lavfi", graph, "-fps_mode", "passthrough", "-f", "null", "-"});
    const auto similarity = valueAfter(result.errors, " All:");
    if (!similarity)
        throw std::runtime_error("ffmpeg did not compare the pictures. " + result.errors);
    return *similarity;
}

} // namespace testsupport
