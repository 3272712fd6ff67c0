#pragma once

#include "Media/EncoderSettings.h"
#include "Media/FFmpeg/Handles.h"

#include <string>

namespace media::ffmpeg {

/// Collects the options of a libav encoder and opens it, but only if it accepts all of them. This
/// is the one place where settings become text, which is the same in every locale. Use from one
/// thread at a time.
class EncoderOptions final {
public:
    /// `context` is an encoder's that is not open yet; it must outlive this object.
    explicit EncoderOptions(AVCodecContext& context) : m_context(context) {}

    /// Sets an option of libav's wrapper. Throws Error if it has no integer option of that name.
    void set(const char* name, int value) const;
    /// Throws Error if the encoder does not know it.
    void setPreset(EncoderPreset preset) const;
    /// Throws Error unless it is from 0 to 51.
    void setConstantRateFactor(double factor) const;

    /// Adds parameters of the encoder library itself. One replaces an earlier one of the same name.
    void add(const EncoderParameter& parameter);
    void addAll(const EncoderParameters& parameters);

    /// Passes the parameters on in `option`, such as "x264-params", and opens the encoder. Throws
    /// Error, also if the encoder refuses one of them.
    void open(const char* option) const;

private:
    void handOver(const char* option) const;

    AVCodecContext& m_context;
    EncoderParameters m_parameters;
};

/// A value in the form that encoders read: "0.85", "1,1".
std::string textOf(const EncoderParameter::Value& value);

} // namespace media::ffmpeg
