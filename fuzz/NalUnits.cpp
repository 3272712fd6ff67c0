#include "Media/FFmpeg/NalUnits.h"

#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/CodedPictures.h"
#include "Media/FFmpeg/NonReferenceDetector.h"
#include "Media/Threading/Verify.h"

#include <algorithm>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

using namespace media::ffmpeg;

namespace {

PacketPtr packetOf(const std::string& bytes) {
    PacketPtr packet = makePacket();
    allocated(av_new_packet(packet.get(), static_cast<int>(bytes.size())) == 0 ? packet->data
                                                                               : nullptr);
    std::ranges::copy(bytes, packet->data);
    return packet;
}

CodecParametersPtr parametersOf(AVCodecID codec, const std::string& extradata) {
    CodecParametersPtr parameters(allocated(avcodec_parameters_alloc()));
    parameters->codec_type = AVMEDIA_TYPE_VIDEO;
    parameters->codec_id = codec;
    parameters->extradata = static_cast<std::uint8_t*>(
        allocated(av_mallocz(extradata.size() + AV_INPUT_BUFFER_PADDING_SIZE)));
    parameters->extradata_size = static_cast<int>(extradata.size());
    std::ranges::copy(extradata, parameters->extradata);
    return parameters;
}

void expectUnitsInside(const AVPacket& packet, unsigned lengthBytes) {
    int total = 0;
    int count = 0;
    for (NalUnits units(packet, lengthBytes); const auto unit = units.next();) {
        static_cast<void>(firstNumberIn(*unit, kHevcUnitHeader));
        total += static_cast<int>(unit->size());
        media::verify(unit->empty() || unit->data() >= packet.data, "units lie in their packet");
        media::verify(total <= packet.size && ++count <= packet.size + 1, "units come to an end");
    }
}

} // namespace

/// What packets of a video say of themselves, before any decoder has seen them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    silenceLog();
    FuzzedDataProvider input(data, size);
    const AVCodecID codec = input.PickValueInArray(
        {AV_CODEC_ID_H264, AV_CODEC_ID_HEVC, AV_CODEC_ID_MPEG2VIDEO, AV_CODEC_ID_MPEG4});
    const auto parameters = parametersOf(codec, input.ConsumeRandomLengthString(256));
    NonReferenceDetector detector(*parameters);
    CodedPictures pictures(*parameters);
    while (input.remaining_bytes() > 0) {
        const bool isCorrupt = input.ConsumeBool();
        if (input.ConsumeProbability<float>() < 0.1F)
            detector.restart();
        const PacketPtr packet = packetOf(input.ConsumeRandomLengthString(2048));
        packet->flags = isCorrupt ? AV_PKT_FLAG_CORRUPT : 0;
        for (const unsigned lengthBytes : {0U, 1U, 2U, 3U, 4U})
            expectUnitsInside(*packet, lengthBytes);
        const Discardable discardable = detector.inspect(*packet);
        media::verify(!isCorrupt || discardable != Discardable::entirely, "damaged ones are kept");
        const auto picture = pictures.next(*packet);
        media::verify(!picture || picture->halves > 0, "pictures last");
    }
    return 0;
}
