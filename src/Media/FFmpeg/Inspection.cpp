#include "Media/FFmpeg/Inspection.h"

#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/Encryption.h"
#include "Media/FFmpeg/FirstPictures.h"
#include "Media/FFmpeg/LibavReleases.h"
#include "Media/FFmpeg/PrevailingRate.h"
#include "Media/FFmpeg/StatedParameters.h"
#include "Media/FFmpeg/TrackFacts.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace media::ffmpeg {

namespace {

/// The container's duration is accepted if the last packets end within this many seconds of it.
constexpr double kDurationSlack = 0.25;
/// How far before the stated end reading of the tail begins; seconds.
constexpr double kTailSeconds = 2;

/// The end of the last packet by stream index, in container time.
using Ends = std::map<int, Time>;

/// The relative difference between the average and the prevailing frame rate from which the latter
/// is used. A smaller difference loses no picture.
constexpr double kSmallestDeviation = 0.0025;

/// The field order of a decoded picture or, since single pictures of an interlaced stream may be
/// progressive, that of the container.
AVFieldOrder fieldOrderOf(const AVCodecParameters& parameters, const AVFrame& picture) {
    if (isInterlaced(picture))
        return isTopFieldFirst(picture) ? AV_FIELD_TT : AV_FIELD_BB;
    return parameters.field_order == AV_FIELD_UNKNOWN ? AV_FIELD_PROGRESSIVE
                                                      : parameters.field_order;
}

/// The starts of streams whose container states another time than that of presentation, by stream
/// index.
using CorrectedStarts = std::map<int, Timestamp>;

/// When a stream is first seen or heard.
std::optional<Timestamp> presentationStart(const AVStream& stream,
                                           const CorrectedStarts& corrected) {
    if (const auto entry = corrected.find(stream.index); entry != corrected.end())
        return entry->second;
    return Timestamp::stated(stream.start_time);
}

/// Matroska's timestamps include the samples that an Opus decoder drops at the beginning, and the
/// first packet of Vorbis, which is silent; those of other containers do not.
CorrectedStarts correctedStarts(const AVFormatContext& context, const FirstPicturesReader* reader) {
    CorrectedStarts starts;
    if (!containerTraits(*context.iformat).countsSoundPriming)
        return starts;
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        const AVStream& stream = *context.streams[i];
        const AVCodecParameters& parameters = *stream.codecpar;
        const auto stated = Timestamp::stated(stream.start_time);
        if (!stated)
            continue;
        const auto packet = [&](std::size_t number) {
            return reader ? reader->packetTime(stream.index, number) : std::nullopt;
        };
        // From its first packet: newer releases of libav exclude the dropped samples from the
        // start.
        if (parameters.codec_id == AV_CODEC_ID_OPUS) {
            starts[stream.index] = packet(0).value_or(*stated).advancedBy(av_rescale_q(
                parameters.initial_padding, {1, parameters.sample_rate}, stream.time_base));
        } else if (const auto second = packet(1)) {
            starts[stream.index] = *second;
        }
    }
    return starts;
}

/// The origin of the asset's time line: the earliest start of any audio or video stream.
Time findOrigin(const AVFormatContext& context, const CorrectedStarts& corrected,
                const std::optional<Time>& firstPicture, int pictureStream) {
    std::optional<Time> origin = firstPicture;
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        const AVStream& stream = *context.streams[i];
        const AVMediaType type = stream.codecpar->codec_type;
        const bool counts = type == AVMEDIA_TYPE_AUDIO || type == AVMEDIA_TYPE_VIDEO;
        const auto timestamp = presentationStart(stream, corrected);
        if (!counts || stream.index == pictureStream || !timestamp ||
            (stream.disposition & AV_DISPOSITION_ATTACHED_PIC))
            continue;
        const Time start = timeOf(*timestamp, stream.time_base);
        if (!origin || start < *origin)
            origin = start;
    }
    return origin.value_or(Time{0, 1});
}

/// The start of the whole file in container time: the earliest of its streams.
Time containerStart(const AVFormatContext& context) {
    if (const auto start = Timestamp::stated(context.start_time))
        return timeOf(*start, av_get_time_base_q());
    std::optional<Time> earliest;
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        const AVStream& stream = *context.streams[i];
        const auto start = Timestamp::stated(stream.start_time);
        if (start && (!earliest || timeOf(*start, stream.time_base) < *earliest))
            earliest = timeOf(*start, stream.time_base);
    }
    return earliest.value_or(Time{0, 1});
}

/// The end of the whole file as the container states it, in container time.
std::optional<Time> containerEnd(const AVFormatContext& context) {
    if (context.duration == AV_NOPTS_VALUE || context.duration <= 0)
        return std::nullopt;
    return containerStart(context) + timeOf(Timestamp(context.duration), av_get_time_base_q());
}

/// The end of a stream as the container states it, in container time.
std::optional<Time> claimedEnd(const AVFormatContext& context, const AVStream& stream) {
    if (stream.duration != AV_NOPTS_VALUE && stream.duration > 0) {
        const Timestamp start = Timestamp::stated(stream.start_time).value_or(Timestamp(0));
        return timeOf(start.advancedBy(stream.duration), stream.time_base);
    }
    return containerEnd(context);
}

/// Whether by the container's index all samples up to the stated end lie inside the file.
bool indexReachesEnd(const AVFormatContext& context, const SourceFile& file, AVStream& stream) {
    if (!containerTraits(*context.iformat).indexesEverySample)
        return false;
    const int count = avformat_index_get_entries_count(&stream);
    const auto end = claimedEnd(context, stream);
    if (count == 0 || !end)
        return false;
    const AVIndexEntry* last = avformat_index_get_entry(&stream, count - 1);
    const Time lastTime = timeOf(Timestamp(last->timestamp), stream.time_base);
    return last->pos <= file.size() - last->size && (*end - lastTime).seconds() < kTailSeconds;
}

/// Reads packets to the end of the file and notes where each stream ends.
Ends readEnds(Demuxer& demuxer, const std::stop_token& stop) {
    Ends ends;
    const PacketPtr packet = makePacket();
    while (demuxer.read(*packet, stop) == Demuxer::Status::packet) {
        const auto pts = ptsOf(*packet);
        const auto start = pts ? pts : dtsOf(*packet);
        if (start && !(packet->flags & AV_PKT_FLAG_DISCARD)) {
            const AVStream& stream = *demuxer.context().streams[packet->stream_index];
            const Time end = timeOf(start->advancedBy(packet->duration), stream.time_base);
            const auto [entry, isNew] = ends.try_emplace(packet->stream_index, end);
            if (!isNew && entry->second < end)
                entry->second = end;
        }
        av_packet_unref(packet.get());
    }
    return ends;
}

Ends measureEnds(Demuxer& demuxer, const std::vector<SourceTrack>& tracks,
                 const std::stop_token& stop) {
    std::vector<int> indexes;
    std::optional<Time> latest;
    for (const SourceTrack& track : tracks) {
        const int index = track.facts.streamIndex;
        indexes.push_back(index);
        const auto end = claimedEnd(demuxer.context(), *demuxer.context().streams[index]);
        if (end && (!latest || *latest < *end))
            latest = end;
    }
    demuxer.selectOnly(indexes);
    if (latest) {
        const Time tail = *latest - Time::fromSeconds(kTailSeconds, kComparisonTimescale);
        const AVRational timeBase = demuxer.context().streams[indexes.front()]->time_base;
        if (demuxer.seek(indexes.front(), nearestTimestamp(tail, timeBase), stop)) {
            Ends ends = readEnds(demuxer, stop);
            if (!ends.empty())
                return ends;
        }
    }
    demuxer.reopen(stop);
    return readEnds(demuxer, stop);
}

Time findDuration(Demuxer& demuxer, const SourceFile& file, const SourceInfo& info,
                  const std::stop_token& stop) {
    if (info.pictures)
        return timeOf(info.pictures->end(), info.tracks.front().timeBase) - info.origin;
    const bool isIndexed = std::ranges::all_of(info.tracks, [&](const SourceTrack& track) {
        AVFormatContext& context = demuxer.context();
        return indexReachesEnd(context, file, *context.streams[track.facts.streamIndex]);
    });
    const Ends ends = isIndexed ? Ends{} : measureEnds(demuxer, info.tracks, stop);
    Time latest = info.origin;
    for (const SourceTrack& track : info.tracks) {
        const int index = track.facts.streamIndex;
        auto end = claimedEnd(demuxer.context(), *demuxer.context().streams[index]);
        if (const auto measured = ends.find(index); measured != ends.end()) {
            if (!end || std::abs((*end - measured->second).seconds()) > kDurationSlack)
                end = measured->second;
        } else if (!isIndexed) {
            continue;
        }
        if (end && latest < *end)
            latest = *end;
    }
    // A track's duration is a sum of distances between decoding times. With reordered pictures of
    // unequal length only the duration of the whole file is that of presentation.
    const auto whole = containerEnd(demuxer.context());
    if (isIndexed && whole && latest < *whole && (*whole - latest).seconds() < kDurationSlack)
        latest = *whole;
    return latest - info.origin;
}

void describeChapters(SourceInfo& info, const AVFormatContext& context) {
    for (unsigned i = 0; i < context.nb_chapters; ++i) {
        const AVChapter& chapter = *context.chapters[i];
        SourceChapter result;
        result.range.start = timeOf(Timestamp(chapter.start), chapter.time_base) - info.origin;
        result.range.end = timeOf(Timestamp(chapter.end), chapter.time_base) - info.origin;
        if (const auto* title = av_dict_get(chapter.metadata, "title", nullptr, 0))
            result.title = title->value;
        info.chapters.push_back(std::move(result));
    }
}

void setFrameRate(SourceTrack& track, AVRational rate) {
    track.averageFrameRate = rate;
    track.facts.nominalFrameRate = static_cast<float>(av_q2d(rate));
}

/// Uses the rate that prevails between the gaps of a track where gaps make the average differ.
/// Single fields and pairs of fields have different distances too, but those are not gaps.
void findFrameRate(SourceTrack& track, const SourceInfo& info, Demuxer& demuxer,
                   FirstPicturesReader& reader, const std::stop_token& stop) {
    if (info.pictures) {
        setFrameRate(track, info.pictures->frameRate());
        return;
    }
    AVFormatContext& context = demuxer.context();
    std::vector<Timestamp> times = indexedTimes(context, *context.streams[track.facts.streamIndex]);
    if (times.empty() && !track.isInterlaced())
        times = reader.times(stop);
    const auto rate = rateBetweenGaps(std::move(times), track.timeBase);
    const double average = static_cast<double>(track.facts.nominalFrameRate);
    // Without a real difference the container's rate is more exact than its rounded timestamps.
    if (rate && std::abs(*rate - average) > kSmallestDeviation * *rate)
        track.facts.nominalFrameRate = static_cast<float>(*rate);
}

/// An index of one sample per picture that reaches the end of the file proves a constant rate. An
/// interlaced stream whose pictures lean on others may have a sample per field. Of a fragmented
/// file the index may lack samples.
void findFrameDistance(SourceTrack& track, Demuxer& demuxer, const SourceFile& file) {
    AVFormatContext& context = demuxer.context();
    AVStream& stream = *context.streams[track.facts.streamIndex];
    if ((track.isInterlaced() && !hasOnlyKeyFrames(track.parameters->codec_id)) ||
        !indexReachesEnd(context, file, stream))
        return;
    std::vector<Timestamp> times = indexedTimes(context, stream);
    const auto count = static_cast<std::int64_t>(times.size());
    const auto distance = constantDistance(std::move(times));
    if (!distance || count > stream.nb_frames)
        return;
    track.facts.frameDistance = timeOf(Timestamp(*distance), track.timeBase);
    track.facts.frameCount = count;
}

AVStream* firstVideoStream(AVFormatContext& context) {
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        AVStream* stream = context.streams[i];
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && isUsableStream(context, *stream))
            return stream;
    }
    return nullptr;
}

std::vector<SourceTrack> describeStreams(AVFormatContext& context) {
    std::vector<SourceTrack> tracks;
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        if (isUsableStream(context, *context.streams[i]))
            tracks.push_back(describeStream(context, *context.streams[i]));
    }
    return tracks;
}

/// The timecode may be in the metadata of the video stream, of a timecode track or of the file.
std::string findTimecode(const AVFormatContext& context, int pictureStream) {
    const auto of = [](const AVDictionary* metadata) -> std::string {
        const AVDictionaryEntry* entry = av_dict_get(metadata, "timecode", nullptr, 0);
        return entry ? entry->value : "";
    };
    std::string code = pictureStream >= 0 ? of(context.streams[pictureStream]->metadata) : "";
    if (code.empty())
        code = of(context.metadata);
    for (unsigned i = 0; i < context.nb_streams && code.empty(); ++i) {
        if (context.streams[i]->codecpar->codec_type == AVMEDIA_TYPE_DATA)
            code = of(context.streams[i]->metadata);
    }
    return code;
}

void describePictures(SourceTrack& track, const AVStream& stream, const FirstPicturesReader& reader,
                      const FirstPictures& first) {
    track.dynamicRange = describeDynamicRange(stream, reader.picture());
    track.fieldOrder = fieldOrderOf(*track.parameters, reader.picture());
    track.lacksPresentationTimes = first.lacksPresentationTimes;
    track.needsGeneratedTimes = first.needsGeneratedTimes;
}

DictionaryPtr copyOf(const AVDictionary* metadata) {
    AVDictionary* copy = nullptr;
    check(av_dict_copy(&copy, metadata, 0));
    return DictionaryPtr(copy);
}

} // namespace

Inspected inspect(Demuxer& demuxer, const SourceFile& file, const std::stop_token& stop) {
    const bool isStated = statesParameters(demuxer.context());
    if (!isStated)
        demuxer.findStreamInfo(stop);
    expectNoEncryption(demuxer.context());
    Inspected result;
    SourceInfo& info = result.info;
    info.pictures = PictureIndex::read(demuxer, stop);
    if (info.pictures)
        demuxer.usePictures(info.pictures);
    AVFormatContext& context = demuxer.context();
    info.format = context.iformat;
    info.metadata = copyOf(context.metadata);

    std::optional<Time> firstPicture;
    int pictureStream = -1;
    std::optional<FirstPicturesReader> reader;
    FirstPictures first;
    if (AVStream* stream = firstVideoStream(context)) {
        using Known = FirstPicturesReader::Known;
        pictureStream = stream->index;
        reader.emplace(demuxer, *stream, isStated ? Known::headers : Known::everything);
        first = reader->read(stop);
    }
    info.tracks = describeStreams(context);
    if (reader) {
        SourceTrack& video =
            *std::ranges::find(info.tracks, pictureStream,
                               [](const SourceTrack& track) { return track.facts.streamIndex; });
        describePictures(video, *context.streams[pictureStream], *reader, first);
        findFrameRate(video, info, demuxer, *reader, stop);
        findFrameDistance(video, demuxer, file);
        if (!first.lacksPresentationTimes && !first.needsGeneratedTimes)
            result.firstFrame = reader->firstFrame();
        if (first.timestamp)
            firstPicture = timeOf(*first.timestamp, video.timeBase);
    }
    const CorrectedStarts corrected = correctedStarts(context, reader ? &*reader : nullptr);
    info.origin = findOrigin(context, corrected, firstPicture, pictureStream);
    for (SourceTrack& track : info.tracks) {
        const auto start = presentationStart(*context.streams[track.facts.streamIndex], corrected);
        const bool isPicture = track.facts.streamIndex == pictureStream && firstPicture;
        track.facts.startTime = (isPicture ? *firstPicture
                                 : start   ? timeOf(*start, track.timeBase)
                                           : info.origin) -
                                info.origin;
    }
    describeChapters(info, context);
    info.timecode = findTimecode(context, pictureStream);
    info.duration = info.tracks.empty() ? Time{0, 1} : findDuration(demuxer, file, info, stop);
    return result;
}

} // namespace media::ffmpeg
