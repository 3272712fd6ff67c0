#pragma once

#include "Media/EncoderSettings.h"
#include "Media/FFmpeg/Handles.h"

#include <string>

namespace media::ffmpeg {

/// Collects what a libav encoder is asked for, and opens it only with all of it. This is the one
/// place where settings become text, the same in every locale. Use from one thread at a
/// time.
class EncoderOptions final {
public:
    /// Of an encoder that is not open yet; it must outlive this object.
    explicit EncoderOptions(AVCodecContext& context) : m_context(context) {}

    /// An option of libav's part of the encoder. Throws Error if it has none of that name and kind.
    void set(const char* name, int value) const;
    /// Throws Error if the encoder does not know it.
    void setPreset(EncoderPreset preset) const;
    /// Throws Error unless it is from 0 to 51.
    void setConstantRateFactor(double factor) const;

    /// Parameters of the encoding library itself. A later one takes the place of one of its name.
    void add(const EncoderParameter& parameter);
    void addAll(const EncoderParameters& parameters);

    /// Hands the parameters over under `option`, such as "x264-params", and opens the encoder.
    /// Throws Error, also if the encoder does not take one of them.
    void open(const char* option) const;

private:
    void handOver(const char* option) const;

    AVCodecContext& m_context;
    EncoderParameters m_parameters;
};

/// A value as encoders read it: "0.85", "1,1".
std::string textOf(const EncoderParameter::Value& value);

} // namespace media::ffmpeg
