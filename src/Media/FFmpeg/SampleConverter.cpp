#include "Media/FFmpeg/SampleConverter.h"

#include "Media/FFmpeg/Check.h"

extern "C" {
#include <libavutil/opt.h>
}

#include <algorithm>
#include <utility>

namespace media::ffmpeg {

namespace {

/// What libswresample can take.
constexpr int kMostChannels = 64;

} // namespace

ChannelLayout::ChannelLayout(const AVChannelLayout& layout) {
    check(av_channel_layout_copy(&m_layout, &layout));
}

ChannelLayout& ChannelLayout::operator=(const ChannelLayout& other) {
    if (this != &other)
        check(av_channel_layout_copy(&m_layout, &other.m_layout));
    return *this;
}

ChannelLayout::~ChannelLayout() {
    av_channel_layout_uninit(&m_layout);
}

ChannelLayout ChannelLayout::usual(int channels) {
    ChannelLayout result;
    av_channel_layout_default(&result.m_layout, channels);
    return result;
}

ChannelLayout ChannelLayout::specified(const AVChannelLayout& layout) {
    return layout.order == AV_CHANNEL_ORDER_UNSPEC ? usual(layout.nb_channels)
                                                   : ChannelLayout(layout);
}

bool ChannelLayout::isSameAs(const AVChannelLayout& other) const {
    return av_channel_layout_compare(&m_layout, &other) == 0;
}

SampleConverter::SampleConverter(AVSampleFormat sampleFormat, int sampleRate,
                                 const AVChannelLayout& layout)
    : m_sampleFormat(sampleFormat), m_sampleRate(sampleRate), m_layout(layout) {}

bool SampleConverter::accepts(const AVFrame& frame) const {
    return m_context && frame.format == m_inputFormat && frame.sample_rate == m_inputRate &&
           m_inputLayout.isSameAs(frame.ch_layout);
}

FramePtr SampleConverter::convert(const AVFrame& frame) {
    if (!m_context)
        begin(frame);
    return run(&frame);
}

FramePtr SampleConverter::finish() {
    if (!m_context)
        return nullptr;
    FramePtr rest = m_inputRate == m_sampleRate ? nullptr : run(nullptr);
    m_context.reset();
    return rest;
}

FramePtr SampleConverter::silence(int samples) const {
    FramePtr block = makeBlock(samples);
    check(av_samples_set_silence(block->extended_data, 0, samples, layout().nb_channels,
                                 m_sampleFormat));
    return block;
}

void SampleConverter::begin(const AVFrame& frame) {
    SwrContextPtr context = makeContext(frame);
    // Layouts without a known way of mixing: the channels are taken in the order they have.
    if (swr_init(context.get()) < 0) {
        context = makeContext(frame);
        matchByIndex(*context, frame.ch_layout.nb_channels);
        check(swr_init(context.get()));
    }
    m_context = std::move(context);
    m_inputFormat = frame.format;
    m_inputRate = frame.sample_rate;
    m_inputLayout = ChannelLayout(frame.ch_layout);
}

SwrContextPtr SampleConverter::makeContext(const AVFrame& frame) const {
    ChannelLayout input = ChannelLayout::specified(frame.ch_layout);
    ChannelLayout output = m_layout;
    SwrContext* context = nullptr;
    check(swr_alloc_set_opts2(&context, &output.layout(), m_sampleFormat, m_sampleRate,
                              &input.layout(), static_cast<AVSampleFormat>(frame.format),
                              frame.sample_rate, 0, nullptr));
    return SwrContextPtr(context);
}

void SampleConverter::matchByIndex(SwrContext& context, int inputChannels) {
    // As many as libswresample looks at, whatever the layouts say.
    m_channelMap.assign(kMostChannels, 0);
    for (int i = 0; i < std::min(layout().nb_channels, kMostChannels); ++i)
        m_channelMap[static_cast<std::size_t>(i)] = i < inputChannels ? i : -1;
    if (av_opt_set_int(&context, "used_channel_count", layout().nb_channels, 0) < 0)
        check(av_opt_set_chlayout(&context, "used_chlayout", &layout(), 0));
    check(swr_set_channel_mapping(&context, m_channelMap.data()));
}

FramePtr SampleConverter::makeBlock(int samples) const {
    FramePtr block = makeFrame();
    block->format = m_sampleFormat;
    block->sample_rate = m_sampleRate;
    block->time_base = {1, m_sampleRate};
    block->nb_samples = samples;
    check(av_channel_layout_copy(&block->ch_layout, &layout()));
    check(av_frame_get_buffer(block.get(), 0));
    return block;
}

FramePtr SampleConverter::run(const AVFrame* frame) {
    const int room = check(swr_get_out_samples(m_context.get(), frame ? frame->nb_samples : 0));
    if (room == 0)
        return nullptr;
    FramePtr block = makeBlock(room);
    auto** input = frame ? const_cast<const std::uint8_t**>(frame->extended_data) : nullptr;
    block->nb_samples = check(swr_convert(m_context.get(), block->extended_data, room, input,
                                          frame ? frame->nb_samples : 0));
    return block->nb_samples > 0 ? std::move(block) : nullptr;
}

} // namespace media::ffmpeg
