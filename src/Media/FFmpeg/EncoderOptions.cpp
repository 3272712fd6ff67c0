#include "Media/FFmpeg/EncoderOptions.h"

#include "Media/FFmpeg/CaughtWarnings.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ClassicLocale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

extern "C" {
#include <libavutil/opt.h>
}

namespace media::ffmpeg {

namespace {

/// The range of constant rate factors in both encoders.
constexpr double kLeastFactor = 0;
constexpr double kMostFactor = 51;

template<typename Number>
std::string numberText(Number number) {
    // Longer than the shortest form of any number.
    std::array<char, 32> text = {};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end.ptr};
}

struct ValueText {
    std::string operator()(int value) const { return numberText(value); }

    std::string operator()(double value) const { return numberText(value); }

    std::string operator()(const std::pair<int, int>& values) const {
        return numberText(values.first) + "," + numberText(values.second);
    }

    std::string operator()(const std::string& value) const { return value; }
};

[[noreturn]] void throwRefused(const AVCodecContext& context, const std::string& name,
                               const std::string& value) {
    throw Error(ErrorKind::settingRefused, {context.codec->name, name + "=" + value});
}

} // namespace

std::string textOf(const EncoderParameter::Value& value) {
    return std::visit(ValueText(), value);
}

void EncoderOptions::set(const char* name, int value) const {
    if (av_opt_set_int(m_context.priv_data, name, value, 0) < 0)
        throwRefused(m_context, name, textOf(value));
}

void EncoderOptions::setPreset(EncoderPreset preset) const {
    const char* const name =
        std::ranges::find(kEncoderPresets, preset, &std::pair<EncoderPreset, const char*>::first)
            ->second;
    if (av_opt_set(m_context.priv_data, "preset", name, 0) < 0)
        throwRefused(m_context, "preset", name);
}

void EncoderOptions::setConstantRateFactor(double factor) const {
    // The encoders would silently clamp other numbers.
    const bool isKnown = factor >= kLeastFactor && factor <= kMostFactor;
    if (!isKnown || av_opt_set_double(m_context.priv_data, "crf", factor, 0) < 0)
        throwRefused(m_context, "crf", textOf(factor));
}

void EncoderOptions::add(const EncoderParameter& parameter) {
    const auto same = std::ranges::find(m_parameters, parameter.name, &EncoderParameter::name);
    if (same != m_parameters.end())
        same->value = parameter.value;
    else
        m_parameters.push_back(parameter);
}

void EncoderOptions::addAll(const EncoderParameters& parameters) {
    for (const EncoderParameter& parameter : parameters)
        add(parameter);
}

void EncoderOptions::open(const char* option) const {
    const ClassicLocale classic;
    handOver(option);
    const CaughtWarnings warnings;
    const int result = avcodec_open2(&m_context, m_context.codec, nullptr);
    // libav only warns about a parameter that the encoder refuses, in words that differ between
    // releases, and opens the encoder without it.
    for (const EncoderParameter& parameter : m_parameters) {
        if (warnings.mention(parameter.name))
            throwRefused(m_context, parameter.name, textOf(parameter.value));
    }
    check(result);
}

void EncoderOptions::handOver(const char* option) const {
    AVDictionary* entries = nullptr;
    int result = 0;
    for (const EncoderParameter& parameter : m_parameters) {
        result = std::min(result, av_dict_set(&entries, parameter.name.c_str(),
                                              textOf(parameter.value).c_str(), 0));
    }
    const DictionaryPtr owner(entries);
    check(result);
    check(av_opt_set_dict_val(m_context.priv_data, option, entries, 0));
}

} // namespace media::ffmpeg
