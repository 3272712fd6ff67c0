#pragma once

#include "Media/Pixels/CanvasMapping.h"
#include "Media/Pixels/PlanarReader.h"
#include "Media/Pixels/PlaneResampler.h"
#include "Media/Pixels/PlaneTurn.h"

#include <array>
#include <optional>

namespace media::pixels {

/// The planes that a picture is painted on. Range and colours are the picture's own.
struct CanvasFormat {
    int width = 0;
    int height = 0;
    int depth = 8;
    /// For canvases of YUV; 0 or 1. Planes of odd canvases have one more half sample.
    int chromaShift = 0;
    AVChromaLocation chromaLocation = AVCHROMA_LOC_LEFT;
    Filter filter = Filter::spline36;
    /// Ordered dithering, where the picture has more bits per sample.
    bool dithers = false;
};

/// Paints pictures of one format on canvases of one format. Each plane is cropped, shifted and
/// scaled in a single resample of exactly the region that the canvas shows, and then turned by
/// moving samples. What the picture does not cover is black. Chroma is resampled from the picture's
/// chroma location to the canvas's. Use from one thread at a time.
class CanvasPainter {
public:
    CanvasPainter(const PlanarFormat& picture, const CanvasMapping& mapping,
                  const CanvasFormat& canvas);

    /// Fills the planes of the canvas that have data. On a canvas of three planes a grey picture
    /// gets neutral chroma.
    void paint(const PlanarPicture& picture, const std::array<Plane, 3>& canvas);
    /// The same for one plane of the canvas, 0 to 2. Several may be painted at the same time, each
    /// by a thread of its own.
    void paintPlane(unsigned index, const PlanarPicture& picture,
                    const std::array<Plane, 3>& canvas);

    /// The part of the picture's plane that shows on the canvas, if the canvas' plane would be
    /// nothing but a copy of it.
    [[nodiscard]] std::optional<ConstPlane> unchanged(const PlanarPicture& picture,
                                                      unsigned plane) const;

private:
    /// How one plane of the canvas is made.
    struct Step {
        Span columns;
        Span rows;
        unsigned background = 0;
        /// Without one the samples from (copyX, copyY) on are taken as they are.
        std::optional<PlaneResampler> resampler;
        int copyX = 0;
        int copyY = 0;
        /// Size of the part before it is turned.
        int width = 0;
        int height = 0;
        Turn turn;
        bool isSubsampled = false;
        PlaneBuffer resampled;
    };

    void prepare(Step& step, unsigned plane, const CanvasMapping& mapping) const;
    static void prepareSamples(Step& step, const Resampling& resampling);
    void paintStep(Step& step, ConstPlane in, Plane out) const;
    void softenChromaEdges(const Step& step, Plane out) const;

    PlanarFormat m_picture;
    CanvasFormat m_canvas;
    /// The pixels of the canvas that the picture covers.
    Span m_columns;
    Span m_rows;
    std::array<Step, 3> m_steps;
};

} // namespace media::pixels
