#include "Media/PictureRenderer.h"

#include "Media/Pixels/BgrxPacking.h"
#include "Media/Pixels/CanvasPainter.h"
#include "Media/Pixels/RecentlyUsed.h"

#include <algorithm>
#include <cmath>

namespace media {

using namespace pixels;

namespace {

struct ImageSize {
    int width = 1;
    int height = 1;
    friend bool operator==(const ImageSize&, const ImageSize&) = default;
};

/// A picture of `natural` size in no more than the pixels given (0: any number), never enlarged.
ImageSize fitted(Size natural, int maxWidth, int maxHeight) {
    double scale = 1;
    if (maxWidth > 0)
        scale = std::min(scale, maxWidth / natural.width);
    if (maxHeight > 0)
        scale = std::min(scale, maxHeight / natural.height);
    const auto side = [scale](double length, int limit) {
        const int pixels = std::max(1, static_cast<int>(std::lround(length * scale)));
        return limit > 0 ? std::min(pixels, limit) : pixels;
    };
    return {side(natural.width, maxWidth), side(natural.height, maxHeight)};
}

AVColorSpace matrixOf(const AVFrame& frame) {
    if (frame.colorspace != AVCOL_SPC_UNSPECIFIED && frame.colorspace != AVCOL_SPC_RESERVED)
        return frame.colorspace;
    return frame.height < 720 ? AVCOL_SPC_SMPTE170M : AVCOL_SPC_BT709;
}

} // namespace

class PictureRenderer::Private {
public:
    explicit Private(const AssetTrack& track)
        : m_naturalSize(track.naturalSize), m_upright(track.preferredTransform) {}

    ImagePtr render(const AVFrame& frame, int maxWidth, int maxHeight);

private:
    struct Key {
        PlanarFormat picture;
        ImageSize image;
        friend bool operator==(const Key&, const Key&) = default;
    };

    std::unique_ptr<CanvasPainter> painterFor(const Key& key) const;
    std::array<ConstPlane, 3> upright(const PlanarPicture& picture, ImageSize size);

    Size m_naturalSize;
    AffineTransform m_upright;
    PlanarReader m_reader;
    RecentlyUsed<Key, CanvasPainter> m_painters{4};
    std::array<PlaneBuffer, 3> m_planes;
    /// Chroma of a grey line.
    std::vector<std::uint8_t> m_neutral;
};

std::unique_ptr<CanvasPainter> PictureRenderer::Private::painterFor(const Key& key) const {
    const Rect oriented = m_upright.apply(Rect{0, 0, m_naturalSize.width, m_naturalSize.height});
    const AffineTransform toImage =
        m_upright.concatenated(AffineTransform::translation(-oriented.x, -oriented.y))
            .concatenated(AffineTransform::scale(key.image.width / oriented.width,
                                                 key.image.height / oriented.height));
    const CanvasMapping mapping =
        CanvasMapping::nearest(toImage, m_naturalSize, key.picture.width, key.picture.height);
    const CanvasFormat canvas{.width = key.image.width,
                              .height = key.image.height,
                              .depth = 8,
                              .chromaShift = 0,
                              .chromaLocation = AVCHROMA_LOC_LEFT,
                              .filter = Filter::cubic,
                              .dithers = true};
    return std::make_unique<CanvasPainter>(key.picture, mapping, canvas);
}

/// The picture's planes at the image's size; grey has only the first.
std::array<ConstPlane, 3> PictureRenderer::Private::upright(const PlanarPicture& picture,
                                                            ImageSize size) {
    const Key key{picture.format, size};
    CanvasPainter& painter = m_painters.get(key, [&] { return painterFor(key); });
    std::array<ConstPlane, 3> planes;
    std::array<Plane, 3> canvas;
    for (unsigned index = 0; index < 3; ++index) {
        if (index > 0 && picture.format.family == Family::grey)
            break;
        if (const auto unchanged = painter.unchanged(picture, index)) {
            planes[index] = *unchanged;
            continue;
        }
        canvas[index] = m_planes[index].reserve(size.width, size.height, 8);
        planes[index] = canvas[index];
    }
    painter.paint(picture, canvas);
    return planes;
}

ImagePtr PictureRenderer::Private::render(const AVFrame& frame, int maxWidth, int maxHeight) {
    const PlanarPicture picture = m_reader.read(frame);
    const Size oriented =
        m_upright.apply(Rect{0, 0, m_naturalSize.width, m_naturalSize.height}).size();
    const ImageSize size = fitted(oriented, maxWidth, maxHeight);
    auto planes = upright(picture, size);
    if (picture.format.family == Family::grey) {
        m_neutral.assign(static_cast<std::size_t>(size.width), 128);
        planes[1] = planes[2] = {m_neutral.data(), 0, size.width, size.height};
    }

    auto image = std::make_shared<Image>();
    image->width = size.width;
    image->height = size.height;
    image->stride = 4 * size.width;
    image->pixels.resize(static_cast<std::size_t>(image->stride) *
                         static_cast<std::size_t>(size.height));
    const YuvToRgb toRgb(matrixOf(frame), picture.format.isFullRange);
    for (int y = 0; y < size.height; ++y) {
        std::uint8_t* out = image->pixels.data() + std::ptrdiff_t{y} * image->stride;
        if (picture.format.family == Family::rgb)
            packLine(planes[0].line(y), planes[1].line(y), planes[2].line(y), out, size.width);
        else
            toRgb.convertLine(planes[0].line(y), planes[1].line(y), planes[2].line(y), out,
                              size.width);
    }
    return image;
}

PictureRenderer::PictureRenderer(const AssetTrack& track) : d(std::make_unique<Private>(track)) {}

PictureRenderer::~PictureRenderer() = default;

ImagePtr PictureRenderer::render(const AVFrame& frame, int maxWidth, int maxHeight) {
    return d->render(frame, maxWidth, maxHeight);
}

} // namespace media
