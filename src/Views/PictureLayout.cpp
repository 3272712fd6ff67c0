#include "Views/PictureLayout.h"

#include "Media/Geometry.h"

#include <algorithm>
#include <cstdlib>

namespace brisklet {

namespace {

/// The rotation by quarter turns about the origin, shifted so that the picture is at the origin
/// again.
QTransform quarterTurn(QSize image, int rotation) {
    switch ((rotation % 360 + 360) % 360) {
    case 90:
        return {0, 1, -1, 0, static_cast<qreal>(image.height()), 0};
    case 180:
        return {
            -1, 0, 0, -1, static_cast<qreal>(image.width()), static_cast<qreal>(image.height())};
    case 270:
        return {0, -1, 1, 0, 0, static_cast<qreal>(image.width())};
    default:
        return {};
    }
}

bool isNearly(QSize a, QSize b) {
    return std::abs(a.width() - b.width()) <= 1 && std::abs(a.height() - b.height()) <= 1;
}

} // namespace

PictureLayout PictureLayout::fit(QSize image, int rotation, const QRect& view) {
    if (image.isEmpty() || view.isEmpty())
        return {};
    const QSize turned = rotation % 180 == 0 ? image : image.transposed();
    const media::Rect fitted = media::fitAspect(
        {static_cast<double>(turned.width()), static_cast<double>(turned.height())},
        {0, 0, static_cast<double>(view.width()), static_cast<double>(view.height())});
    QSize size(std::max(1, qRound(fitted.width)), std::max(1, qRound(fitted.height)));
    const bool fitsAsItIs = isNearly(size, turned) && turned.width() <= view.width() &&
                            turned.height() <= view.height();
    if (fitsAsItIs)
        size = turned;

    PictureLayout layout;
    layout.isScaled = !fitsAsItIs;
    layout.rect = QRect(view.topLeft() + QPoint((view.width() - size.width()) / 2,
                                                (view.height() - size.height()) / 2),
                        size);
    layout.transform = quarterTurn(image, rotation) *
                       QTransform::fromScale(static_cast<qreal>(size.width()) / turned.width(),
                                             static_cast<qreal>(size.height()) / turned.height()) *
                       QTransform::fromTranslate(layout.rect.x(), layout.rect.y());
    return layout;
}

} // namespace brisklet
