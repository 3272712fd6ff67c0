#pragma once

#include "Models/EditGesture.h"
#include "Views/Crop/CropGeometry.h"
#include "Views/DragEscape.h"
#include "Views/Shortcuts/ShortcutSource.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <variant>

namespace brisklet {

class EditState;

/// The crop editor over the picture: darkens what is cut away; a drag inside the crop moves it, a
/// drag of one of eight handles resizes it, and keys do both while the view has the focus. Hidden,
/// and so transparent to the mouse, while there is no crop; presses beside the crop go to the
/// parent.
///
///     no drag ──press and 10 points of movement──▶ drag ──release, crop removed, turn──▶ no drag
///
/// Escape during a drag restores the crop as it was before.
///
/// Main thread.
class CropOverlayView final : public QWidget, public ShortcutSource {
    Q_OBJECT

public:
    /// `handleSize` is the diameter of a handle in points.
    explicit CropOverlayView(std::shared_ptr<EditState> state, int handleSize = 12,
                             QWidget* parent = nullptr);

    /// Where the picture is, in this view's coordinates. Without an area nothing can be dragged.
    [[nodiscard]] const QRectF& videoRect() const { return m_geometry.videoRect; }

    void setVideoRect(const QRectF& rect);

    /// The area around the picture, in this view's coordinates, and the radius of its corners.
    void setArea(const QRectF& area, double cornerRadius);

    /// Where the crop is, in this view's coordinates; empty without one.
    [[nodiscard]] QRectF cropViewRect() const;

    /// Size and position of the crop in pixels of the picture, as text; empty without one.
    [[nodiscard]] QString cropText() const;

    /// How far handles extend beyond the picture, points: for them to be whole and to be gripped
    /// there, this view extends as far beyond the area of the picture.
    [[nodiscard]] int reach() const;

    [[nodiscard]] QList<ShortcutGroup> shortcutGroups() const override;

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
        /// The crop when the press became a drag; none before that.
        std::optional<media::Rect> start;
        /// Makes the drag one step to undo.
        std::unique_ptr<EditGesture> gesture;
    };

    void followCrop();
    void repaintDifference(const QRectF& before, const QRectF& now);
    [[nodiscard]] std::optional<Grip> gripAt(const QPointF& point) const;
    void dragBy(const QPointF& translation);
    void endDrag();
    void takeDragBack();
    void showCursor(const QPointF& point);
    void announce();

    std::shared_ptr<EditState> m_state;
    CropGeometry m_geometry;
    std::optional<Drag> m_drag;
    DragEscape m_escape{*this};
    /// The crop for which a repaint was requested last, in this view's coordinates.
    QRectF m_shown;
    bool m_isFocusShown = false;
    QString m_announced;
};

} // namespace brisklet
