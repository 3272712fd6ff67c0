#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/Pixels/Plane.h"

#include <array>

struct AVPixFmtDescriptor;

namespace media::pixels {

enum class Family { grey, yuv, rgb };

/// The layout and the value range of a picture's planes.
struct PlanarFormat {
    Family family = Family::yuv;
    int width = 0;
    int height = 0;
    /// Bits per sample, 8 to 16.
    int depth = 8;
    /// Base-2 logarithms of the pixels per chroma sample; 0 unless YUV.
    int chromaShiftX = 0;
    int chromaShiftY = 0;
    /// Whether black is 0 (always so for RGB).
    bool isFullRange = false;
    /// Never "unspecified".
    AVChromaLocation chromaLocation = AVCHROMA_LOC_LEFT;

    friend bool operator==(const PlanarFormat&, const PlanarFormat&) = default;
};

/// The value of black in the first plane (in RGB in each plane), and the value of chroma planes
/// where there is no colour.
unsigned blackLevel(const PlanarFormat& format);
unsigned neutralChroma(int depth);

struct PlanarPicture {
    PlanarFormat format;
    /// Y U V or R G B; only the first of a grey picture.
    std::array<ConstPlane, 3> planes;
};

/// Reads decoded frames of any pixel format as one plane per component. Values are not rounded or
/// converted, except that transparent pixels are composed over black and samples of fewer than 8
/// bits are expanded to 8. Frames that are planar already are not copied. Use from one thread at a
/// time.
class PlanarReader {
public:
    /// The planes are readable until the next call, and no longer than the frame lives. Throws
    /// Error if the pixel format cannot be read.
    PlanarPicture read(const AVFrame& frame);

private:
    PlanarPicture readNative(const AVFrame& frame, const AVPixFmtDescriptor& descriptor);
    PlanarPicture readPalette(const AVFrame& frame, PlanarFormat format);
    ConstPlane component(const AVFrame& frame, const AVPixFmtDescriptor& descriptor, int index,
                         int width, int height);
    void composeOverBlack(PlanarPicture& picture, ConstPlane alpha);
    const AVFrame& repacked(const AVFrame& frame, AVPixelFormat to);

    std::array<PlaneBuffer, 4> m_components;
    std::array<PlaneBuffer, 3> m_composed;
    PlaneBuffer m_chromaAlpha;
    ffmpeg::SwsContextPtr m_repacker;
    ffmpeg::FramePtr m_repacked;
};

} // namespace media::pixels
