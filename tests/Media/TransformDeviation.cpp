#include "TransformDeviation.h"

#include <algorithm>
#include <cmath>

namespace media::test {

AVPixFmtDescriptor descriptorOf(AVPixelFormat format) {
    return *av_pix_fmt_desc_get(format);
}

Canvas canvasOf(int turn, Size natural, Rect region, double scale) {
    const AffineTransform transform =
        orientation(turn, natural)
            .concatenated(AffineTransform::translation(-region.x, -region.y))
            .concatenated(AffineTransform::scale(scale, scale));
    return {transform, static_cast<int>(region.width * scale) / 2 * 2,
            static_cast<int>(region.height * scale) / 2 * 2};
}

Deviation deviationFrom(const ChannelFunction& value, const AVFrame& frame, const Canvas& canvas,
                        Size source, double margin) {
    const AVPixFmtDescriptor format = descriptorOf(static_cast<AVPixelFormat>(frame.format));
    const int depth = format.comp[0].depth;
    const AffineTransform toSource = canvas.toCanvas.inverted();
    const Rect inner = Rect{0, 0, source.width, source.height}.insetBy(margin, margin);
    Deviation deviation;
    for (int plane = 0; plane < 3; ++plane) {
        double& worst = plane > 0 ? deviation.chroma : deviation.luma;
        for (int row = 0; row < planeHeight(frame, plane); ++row) {
            for (int column = 0; column < planeWidth(frame, plane); ++column) {
                const Point place =
                    toSource.apply(samplePlace(format, frame.chroma_location, plane, column, row));
                if (!inner.contains(Rect{place.x, place.y, 0, 0}))
                    continue;
                const double expected = levelOf(value(plane, place.x, place.y), depth, plane > 0,
                                                frame.color_range == AVCOL_RANGE_JPEG);
                const double difference = std::abs(sampleOf(frame, plane, column, row) - expected);
                worst = std::max(worst, difference / std::exp2(depth - 8));
            }
        }
    }
    return deviation;
}

} // namespace media::test
