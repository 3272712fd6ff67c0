#pragma once

#include "Media/Geometry.h"

#include <QRectF>
#include <QWidget>

#include <array>
#include <memory>

namespace brisklet {

class CropOverlayView;
class EditState;
class PlayerContainerView;

/// Of the area, points.
inline constexpr int kVideoCornerRadius = 8;

/// Where a picture of `picture` pixels is in an area of `area` points: whole, centred, as large as
/// possible. A picture of unknown size (0 × 0) counts as 16:9.
QRectF fittedPicture(media::Size picture, QSizeF area);

/// The picture on black with round corners. The crop is over it, a child of the same parent, since
/// its handles extend beyond this view. Main thread.
class VideoArea final : public QWidget {
    Q_OBJECT

public:
    VideoArea(std::shared_ptr<EditState> state, QWidget* parent);
    ~VideoArea() override;

    [[nodiscard]] PlayerContainerView& player() const { return *m_player; }

    [[nodiscard]] CropOverlayView& cropOverlay() const { return *m_cropOverlay; }

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    void showPlayer();
    void showRotation();

    std::shared_ptr<EditState> m_state;
    PlayerContainerView* m_player;
    CropOverlayView* m_cropOverlay;
    /// Top left, top right, bottom right, bottom left.
    std::array<QWidget*, 4> m_corners{};
};

} // namespace brisklet
