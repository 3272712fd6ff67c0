#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/Geometry.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <functional>

namespace media::test {

/// The value of a channel at a place of a picture, 0 … 1; channels 0 to 2 are Y U V or R G B (U and
/// V without colour at 0.5), 3 is alpha. Places are in pixels from the outer edge of the first.
using ChannelFunction = std::function<double(int channel, double x, double y)>;

/// Waves so long that any good resample must return the value of the function itself, different
/// and without symmetry in each channel; opaque.
double waves(int channel, double x, double y);

/// The same value everywhere.
ChannelFunction flat(double first, double second = 0.5, double third = 0.5, double alpha = 1);

struct PictureTags {
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;
    AVColorSpace matrix = AVCOL_SPC_UNSPECIFIED;
    AVChromaLocation location = AVCHROMA_LOC_UNSPECIFIED;
};

/// A picture of any pixel format that libavutil can write, each sample the value of the function
/// at the sample's own place.
ffmpeg::FramePtr drawPicture(AVPixelFormat format, int width, int height,
                             const ChannelFunction& value, const PictureTags& tags = {});

/// A picture in a planar YUV format with independent random samples.
ffmpeg::FramePtr drawNoise(AVPixelFormat format, int width, int height);

/// Place of sample (column, row) of a plane in pixels.
Point samplePlace(const AVPixFmtDescriptor& format, AVChromaLocation location, int plane,
                  int column, int row);

/// The level, not rounded, that stands for a value of 0 … 1.
double levelOf(double value, int depth, bool isChroma, bool isFullRange);

int planeWidth(const AVFrame& frame, int plane);
int planeHeight(const AVFrame& frame, int plane);
/// A sample of a planar format in native words.
int sampleOf(const AVFrame& frame, int plane, int column, int row);

/// One of the eight orientations of a picture, kept at the origin: bit 0 mirrors it left to right,
/// then bits 1 and 2 turn it clockwise by quarters.
AffineTransform orientation(int index, Size size);

} // namespace media::test
