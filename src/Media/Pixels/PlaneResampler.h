#pragma once

#include "Media/Pixels/CanvasMapping.h"
#include "Media/Pixels/Plane.h"

#include <zimg.h>

#include <memory>
#include <vector>

namespace media::pixels {

/// The interpolation between samples.
enum class Filter {
    /// Cubic (Catmull-Rom): quick, for the screen.
    cubic,
    /// Spline over 36 samples: sharp, with little ringing, for pictures that are kept.
    spline36,
};

/// What a PlaneResampler does to a plane.
struct Resampling {
    int width = 0;
    int height = 0;
    int depth = 8;
    /// Along the plane's own axes. The resampler does not mirror.
    AxisSampling x;
    AxisSampling y;
    int newDepth = 8;
    /// How the depth changes: if set 0 … 2^depth − 1 is scaled to 0 … 2^newDepth − 1, else values
    /// are multiplied by a power of two (limited range, and chroma in any range).
    bool isFullRange = false;
    Filter filter = Filter::spline36;
    /// Ordered dithering instead of plain rounding.
    bool dithers = false;
};

/// Crops, shifts, scales and changes the depth of one plane in one pass, by zimg. Positions outside
/// of the plane show its border mirrored. Planes and scales too small for zimg's filters are
/// computed here, to the same formulas. Use from one thread at a time.
class PlaneResampler {
public:
    explicit PlaneResampler(const Resampling& resampling);

    /// `in` has the size and depth said at construction, `out` is x.count × y.count at the new one.
    void run(ConstPlane in, Plane out);

private:
    struct GraphDeleter {
        void operator()(zimg_filter_graph* graph) const noexcept { zimg_filter_graph_free(graph); }
    };

    /// The weights that make up the samples of one axis: `taps` of them for each, over the source
    /// samples named in `indices`.
    struct Kernel {
        int taps = 0;
        std::vector<int> indices;
        std::vector<float> weights;
    };

    void buildGraph();
    void runGraph(ConstPlane in, Plane out);
    void runDirectly(ConstPlane in, Plane out);
    static Kernel kernel(const AxisSampling& sampling, int length, Filter filter);

    Resampling m_resampling;
    /// Lines at the top of the source that the graph does not read.
    int m_skippedLines = 0;
    std::unique_ptr<zimg_filter_graph, GraphDeleter> m_graph;
    AlignedBuffer m_graphMemory;
    PlaneBuffer m_alignedIn;
    PlaneBuffer m_alignedOut;
    Kernel m_kernelX;
    Kernel m_kernelY;
};

} // namespace media::pixels
