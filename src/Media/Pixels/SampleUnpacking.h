#pragma once

#include "Media/Pixels/Plane.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
}

namespace media::pixels {

/// Depth in bits of the samples that unpackComponent() makes of a component: its own, but 8 where
/// it has fewer and 16 where it is a floating-point number.
int unpackedDepth(const AVPixFmtDescriptor& format, int component);

/// Whether the component lies in memory as a plane of unpackedDepth() already.
bool isPlane(const AVPixFmtDescriptor& format, int component);

/// Copies component `index` of every pixel into a plane of its own, whatever the layout in memory.
/// Samples of fewer than 8 bits are scaled to 0 … 255, floating-point ones from 0 … 1 to 0 … 65535;
/// others keep their value. Not for palettes and Bayer patterns.
void unpackComponent(const AVFrame& frame, const AVPixFmtDescriptor& format, int index, Plane out);

/// Splits a picture of palette entries into planes of 8 bits: red, green, blue over black.
void unpackPalette(const AVFrame& frame, const Plane& red, const Plane& green, const Plane& blue);

/// Whether every sample of the plane has all its bits set.
bool isOpaque(ConstPlane alpha, int depth);

/// The mean alpha of the pixels that share one chroma sample, 2^shiftX by 2^shiftY of them.
void averageAlpha(ConstPlane alpha, int depth, int shiftX, int shiftY, Plane out);

/// out = base + (in − base) × alpha, rounded: the samples over a background where they have the
/// value `base`. All three planes are of one size and depth; `in` may be `out`.
void composeOver(ConstPlane in, ConstPlane alpha, int depth, unsigned base, Plane out);

} // namespace media::pixels
