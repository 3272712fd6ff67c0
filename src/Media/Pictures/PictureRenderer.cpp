#include "Media/Pictures/PictureRenderer.h"

#include "Media/Pixels/CanvasPainter.h"
#include "Media/Pixels/RecentlyUsed.h"
#include "Media/Pixels/ScreenMapping.h"

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
        int depth = 8;
        int chromaShift = 0;
        friend bool operator==(const Key&, const Key&) = default;
    };

    struct MappingKey {
        PlanarFormat picture;
        ScreenColours colours;
        int chromaShift = 0;
        friend bool operator==(const MappingKey&, const MappingKey&) = default;
    };

    [[nodiscard]] std::unique_ptr<CanvasPainter> painterFor(const Key& key) const;
    void paint(const Key& key, const PlanarPicture& picture, const std::array<Plane, 3>& canvas);
    const std::shared_ptr<Helpers>& helpers();
    PreviewPicturePtr mapped(const AVFrame& frame, const PlanarPicture& picture, ImageSize size,
                             int chromaShift, const ScreenColours& colours);

    Size m_naturalSize;
    AffineTransform m_upright;
    PlanarReader m_reader;
    RecentlyUsed<Key, CanvasPainter> m_painters{4};
    /// Kept from the first picture on that is large or whose colours are mapped.
    std::shared_ptr<Helpers> m_helpers;
    RecentlyUsed<MappingKey, ScreenMapping> m_mappings{2};
    /// The picture in the source's colours, before they are mapped to the screen's.
    std::array<PlaneBuffer, 3> m_unmapped;
    /// The latest stated peak luminance, in multiples of 100 cd/m²; 1000 cd/m² until one is stated.
    float m_peak = 10;
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
                              .depth = key.depth,
                              .chromaShift = key.chromaShift,
                              .chromaLocation =
                                  key.chromaShift > 0 ? AVCHROMA_LOC_TOPLEFT : AVCHROMA_LOC_LEFT,
                              .filter = Filter::cubic,
                              .dithers = true};
    return std::make_unique<CanvasPainter>(key.picture, mapping, canvas);
}

void PictureRenderer::Private::paint(const Key& key, const PlanarPicture& picture,
                                     const std::array<Plane, 3>& canvas) {
    CanvasPainter& painter = m_painters.get(key, [&] { return painterFor(key); });
    if (!PreviewPicture::isLarge(key.image.width, key.image.height)) {
        painter.paint(picture, canvas);
        return;
    }
    helpers()->run(3, [&](int plane, int) {
        painter.paintPlane(static_cast<unsigned>(plane), picture, canvas);
    });
}

const std::shared_ptr<Helpers>& PictureRenderer::Private::helpers() {
    if (!m_helpers)
        m_helpers = Helpers::shared();
    return m_helpers;
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
    const int shift = isCoarse ? 1 : 0;
    const auto colours = format.family == Family::grey ? std::nullopt : coloursToMap(frame);
    if (colours)
        return mapped(frame, picture, size, shift, *colours);
    auto preview =
        std::make_shared<PreviewPicture>(PreviewPicture::Format{.width = size.width,
                                                                .height = size.height,
                                                                .kind = kindOf(format.family),
                                                                .chromaShift = shift,
                                                                .matrix = matrixOf(frame),
                                                                .isFullRange = format.isFullRange});
    paint({format, size, 8, shift}, picture, preview->planes());
    return preview;
}

PreviewPicturePtr PictureRenderer::Private::mapped(const AVFrame& frame,
                                                   const PlanarPicture& picture, ImageSize size,
                                                   int chromaShift, const ScreenColours& colours) {
    PlanarFormat format = picture.format;
    std::array<Plane, 3> canvas;
    for (unsigned index = 0; index < 3; ++index)
        canvas[index] = m_unmapped[index].reserve(size.width, size.height, format.depth);
    paint({format, size, format.depth, 0}, picture, canvas);

    format.width = size.width;
    format.height = size.height;
    format.chromaShiftX = format.chromaShiftY = 0;
    auto preview = std::make_shared<PreviewPicture>(PreviewPicture::Format{
        .width = size.width,
        .height = size.height,
        // Chroma of an odd width or height cannot be halved here.
        .chromaShift = size.width % 2 == 0 && size.height % 2 == 0 ? chromaShift : 0,
        .matrix = AVCOL_SPC_BT709,
        .isFullRange = true});
    const MappingKey key{format, colours, preview->format().chromaShift};
    m_peak = statedPeak(frame).value_or(m_peak);
    m_mappings
        .get(key,
             [&] {
                 return std::make_unique<ScreenMapping>(format, colours, key.chromaShift,
                                                        helpers());
             })
        .run({canvas[0], canvas[1], canvas[2]}, preview->planes(), m_peak);
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
