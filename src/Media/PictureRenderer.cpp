#include "Media/PictureRenderer.h"

#include "Media/Pixels/CanvasPainter.h"
#include "Media/Pixels/RecentlyUsed.h"

#include <algorithm>
#include <cmath>

namespace media {

using namespace pixels;

namespace {

AVColorSpace matrixOf(const AVFrame& frame) {
    if (frame.colorspace != AVCOL_SPC_UNSPECIFIED && frame.colorspace != AVCOL_SPC_RESERVED)
        return frame.colorspace;
    return frame.height < 720 ? AVCOL_SPC_SMPTE170M : AVCOL_SPC_BT709;
}

PreviewPicture::Kind kindOf(Family family) {
    switch (family) {
    case Family::grey:
        return PreviewPicture::Kind::grey;
    case Family::rgb:
        return PreviewPicture::Kind::rgb;
    case Family::yuv:
        break;
    }
    return PreviewPicture::Kind::yuv;
}

} // namespace

ImageSize fittedSize(Size natural, int maxWidth, int maxHeight) {
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

class PictureRenderer::Private {
public:
    enum class Chroma { everywhere, asTheSource };

    explicit Private(const AssetTrack& track)
        : m_naturalSize(track.naturalSize), m_upright(track.preferredTransform) {}

    PreviewPicturePtr render(const AVFrame& frame, int maxWidth, int maxHeight, Chroma chroma);

private:
    struct Key {
        PlanarFormat picture;
        ImageSize image;
        int chromaShift = 0;
        friend bool operator==(const Key&, const Key&) = default;
    };

    std::unique_ptr<CanvasPainter> painterFor(const Key& key) const;

    Size m_naturalSize;
    AffineTransform m_upright;
    PlanarReader m_reader;
    RecentlyUsed<Key, CanvasPainter> m_painters{4};
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
                              .chromaShift = key.chromaShift,
                              .chromaLocation =
                                  key.chromaShift > 0 ? AVCHROMA_LOC_TOPLEFT : AVCHROMA_LOC_LEFT,
                              .filter = Filter::cubic,
                              .dithers = true};
    return std::make_unique<CanvasPainter>(key.picture, mapping, canvas);
}

PreviewPicturePtr PictureRenderer::Private::render(const AVFrame& frame, int maxWidth,
                                                   int maxHeight, Chroma chroma) {
    const PlanarPicture picture = m_reader.read(frame);
    const PlanarFormat& format = picture.format;
    const Size oriented =
        m_upright.apply(Rect{0, 0, m_naturalSize.width, m_naturalSize.height}).size();
    const ImageSize size = fittedSize(oriented, maxWidth, maxHeight);
    const bool isCoarse = chroma == Chroma::asTheSource && format.family == Family::yuv &&
                          format.chromaShiftX > 0 && format.chromaShiftY > 0;
    const Key key{format, size, isCoarse ? 1 : 0};
    auto preview =
        std::make_shared<PreviewPicture>(PreviewPicture::Format{.width = size.width,
                                                                .height = size.height,
                                                                .kind = kindOf(format.family),
                                                                .chromaShift = key.chromaShift,
                                                                .matrix = matrixOf(frame),
                                                                .isFullRange = format.isFullRange});
    m_painters.get(key, [&] { return painterFor(key); }).paint(picture, preview->planes());
    return preview;
}

PictureRenderer::PictureRenderer(const AssetTrack& track) : d(std::make_unique<Private>(track)) {}

PictureRenderer::~PictureRenderer() = default;

ImagePtr PictureRenderer::render(const AVFrame& frame, int maxWidth, int maxHeight) {
    return d->render(frame, maxWidth, maxHeight, Private::Chroma::everywhere)->image();
}

PreviewPicturePtr PictureRenderer::preview(const AVFrame& frame, int maxWidth, int maxHeight) {
    return d->render(frame, maxWidth, maxHeight, Private::Chroma::asTheSource);
}

} // namespace media
