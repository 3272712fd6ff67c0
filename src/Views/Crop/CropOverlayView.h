#pragma once

#include "Views/Crop/CropGeometry.h"
#include "Views/DragEscape.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <variant>

namespace brisklet {

class EditState;

/// The crop editor over the picture: darkens what is cut away, and has the crop moved by a drag
/// inside it and resized by eight handles, or by keys while it has the focus. Hidden, and so out of
/// the way of the mouse, while there is no crop; presses beside the crop go on to the parent.
///
///     no drag ──press, 10 points of way──▶ drag ──release, end of the crop, turn──▶ no drag
///
/// Escape during a drag puts the crop back as it was before.
///
/// Main thread.
class CropOverlayView final : public QWidget {
    Q_OBJECT

public:
    /// `handleSize` is the diameter of a handle in points.
    explicit CropOverlayView(std::shared_ptr<EditState> state, int handleSize = 12,
                             QWidget* parent = nullptr);

    /// Where the picture lies, in this view's coordinates. Without an area nothing can be dragged.
    [[nodiscard]] const QRectF& videoRect() const { return m_geometry.videoRect; }

    void setVideoRect(const QRectF& rect);

    /// Where the crop lies, in this view's coordinates; empty without one.
    [[nodiscard]] QRectF cropViewRect() const;

    /// Size and place of the crop in pixels of the picture, as people read it; empty without one.
    [[nodiscard]] QString cropText() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Move {};

    /// What a drag does.
    using Grip = std::variant<Move, CropHandle>;

    struct Drag {
        Grip grip;
        QPointF pressedAt;
        /// The crop when the drag really began, after the first few points of way.
        std::optional<media::Rect> start;
    };

    void followCrop();
    void repaintDifference(const QRectF& before, const QRectF& now);
    [[nodiscard]] std::optional<Grip> gripAt(const QPointF& point) const;
    void dragBy(const QPointF& translation);
    void endDrag();
    void takeDragBack();
    void write(const media::Rect& crop);
    void showCursor(const QPointF& point);
    void announce();

    std::shared_ptr<EditState> m_state;
    CropGeometry m_geometry;
    std::optional<Drag> m_drag;
    DragEscape m_escape{*this};
    /// What was asked to be painted last.
    QRectF m_shown;
    bool m_isFocusShown = false;
    QString m_announced;
};

} // namespace brisklet
