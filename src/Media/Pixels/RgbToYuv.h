#pragma once

#include "Media/Pixels/PlanarReader.h"

#include <zimg.h>

#include <array>
#include <memory>

namespace media::pixels {

/// The matrix for converting RGB when `wanted` is asked for: `wanted` itself, or BT.709 if zimg
/// cannot apply it to plain R′G′B′.
AVColorSpace usableMatrix(AVColorSpace wanted);

/// Converts RGB pictures to limited-range 16-bit YUV 4:4:4, with zimg. Use from one thread at a
/// time.
class RgbToYuv {
public:
    /// `matrix` is one that usableMatrix() gives.
    explicit RgbToYuv(AVColorSpace matrix);

    /// The planes are valid until the next call.
    PlanarPicture convert(const PlanarPicture& rgb);

private:
    struct GraphDeleter {
        void operator()(zimg_filter_graph* graph) const noexcept { zimg_filter_graph_free(graph); }
    };

    void buildGraph(const PlanarFormat& format);

    AVColorSpace m_matrix;
    PlanarFormat m_format;
    std::unique_ptr<zimg_filter_graph, GraphDeleter> m_graph;
    AlignedBuffer m_graphMemory;
    std::array<PlaneBuffer, 3> m_aligned;
    std::array<PlaneBuffer, 3> m_converted;
};

} // namespace media::pixels
