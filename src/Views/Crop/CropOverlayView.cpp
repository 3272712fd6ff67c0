#include "Views/Crop/CropOverlayView.h"

#include "Models/EditState.h"
#include "Views/Crop/CropKeys.h"
#include "Views/Crop/CropOverlayAccessible.h"
#include "Views/Crop/CropPainting.h"
#include "Views/FocusReasons.h"

#include <QAccessible>
#include <QCursor>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>
#include <utility>

namespace brisklet {

namespace {

/// How far the pointer must move for a press to become a drag, points.
constexpr double kDragDistance = 10;

Qt::CursorShape cursorOf(CropHandle handle) {
    switch (handle) {
    case CropHandle::topLeft:
    case CropHandle::bottomRight:
        return Qt::SizeFDiagCursor;
    case CropHandle::topRight:
    case CropHandle::bottomLeft:
        return Qt::SizeBDiagCursor;
    case CropHandle::top:
    case CropHandle::bottom:
        return Qt::SizeVerCursor;
    case CropHandle::left:
    case CropHandle::right:
        return Qt::SizeHorCursor;
    }
    return Qt::ArrowCursor;
}

} // namespace

CropOverlayView::CropOverlayView(std::shared_ptr<EditState> state, int handleSize, QWidget* parent)
    : QWidget(parent), m_state(std::move(state)), m_geometry{.handleSize = 1.0 * handleSize} {
    installCropOverlayAccessibility();
    //: For screen readers, a noun: the frame around what is kept of the picture.
    setAccessibleName(tr("Crop"));
    setMouseTracking(true);
    // By Tab only: a click must not take the arrow keys away from the frame steps.
    setFocusPolicy(Qt::TabFocus);
    connect(m_state.get(), &EditState::cropRectChanged, this, &CropOverlayView::followCrop);
    connect(m_state.get(), &EditState::lossMessageChanged, this, &CropOverlayView::followCrop);
    connect(m_state.get(), &EditState::displaySizeChanged, this, &CropOverlayView::announce);
    connect(m_state.get(), &EditState::rotationChanged, this, &CropOverlayView::endDrag);
    connect(&m_escape, &DragEscape::interrupted, this, &CropOverlayView::endDrag);
    followCrop();
}

void CropOverlayView::setVideoRect(const QRectF& rect) {
    if (rect == m_geometry.videoRect)
        return;
    m_geometry.videoRect = rect;
    m_shown = cropViewRect();
    update();
}

void CropOverlayView::setArea(const QRectF& area, double cornerRadius) {
    m_geometry.area = area;
    m_geometry.cornerRadius = cornerRadius;
    update();
}

QRectF CropOverlayView::cropViewRect() const {
    const auto& crop = m_state->cropRect();
    return crop ? m_geometry.toView(*crop) : QRectF();
}

QString CropOverlayView::cropText() const {
    const auto& crop = m_state->cropRect();
    if (!crop)
        return {};
    const media::Size size = m_state->rotatedDisplaySize();
    const auto pixels = [](double fraction, double whole) {
        return QString::number(std::lround(fraction * whole));
    };
    //: For screen readers: width, height and the distances from left and top, in pixels.
    return tr("%1×%2 at %3, %4")
        .arg(pixels(crop->width, size.width), pixels(crop->height, size.height),
             pixels(crop->x, size.width), pixels(crop->y, size.height));
}

int CropOverlayView::reach() const {
    return static_cast<int>(std::ceil(CropPainting::reach(m_geometry)));
}

QList<ShortcutGroup> CropOverlayView::shortcutGroups() const {
    return {{tr("Crop, by mouse"),
             {{tr("Drag inside it"), tr("Move the crop")},
              {tr("Drag a handle"), tr("Resize the crop")},
              {tr("Esc during a drag"), tr("Take the drag back")}}},
            {tr("Crop, reached by Tab"), CropKey::shortcuts()}};
}

void CropOverlayView::followCrop() {
    // Without a picture there is nothing to crop.
    const bool isWanted = m_state->cropRect() && !m_state->isVideoLost();
    if (!isWanted) {
        endDrag();
        // Hiding would pass the focus on to another widget, where the same keys do other things.
        clearFocus();
    }
    repaintDifference(std::exchange(m_shown, cropViewRect()), cropViewRect());
    setVisible(isWanted);
    announce();
}

void CropOverlayView::repaintDifference(const QRectF& before, const QRectF& now) {
    if (before.isEmpty() || now.isEmpty()) {
        update();
        return;
    }
    // What is dark before and after, or clear before and after, need not be painted again. The
    // handles extend beyond the border.
    const double reach = CropPainting::reach(m_geometry);
    const auto border = [reach](const QRectF& rect) {
        const QRegion outside(rect.adjusted(-reach, -reach, reach, reach).toAlignedRect());
        return outside - QRegion(rect.adjusted(reach, reach, -reach, -reach).toRect());
    };
    const QRegion uncovered = QRegion(before.toAlignedRect()) ^ QRegion(now.toAlignedRect());
    update(uncovered + border(before) + border(now));
}

std::optional<CropOverlayView::Grip> CropOverlayView::gripAt(const QPointF& point) const {
    const QRectF crop = cropViewRect();
    if (const auto handle = m_geometry.handleAt(point, crop))
        return *handle;
    if (crop.contains(point))
        return Move{};
    return std::nullopt;
}

void CropOverlayView::mousePressEvent(QMouseEvent* event) {
    const auto grip = gripAt(event->position());
    if (event->button() != Qt::LeftButton || !grip) {
        event->ignore();
        return;
    }
    m_drag = Drag{.grip = *grip,
                  .pressedAt = event->position(),
                  .gesture = std::make_unique<EditGesture>(m_state)};
    m_escape.begin([this] { takeDragBack(); });
    showCursor(event->position());
}

void CropOverlayView::mouseMoveEvent(QMouseEvent* event) {
    // If a dialog took the pointer meanwhile, the release of the button went to it.
    if (!(event->buttons() & Qt::LeftButton))
        endDrag();
    if (m_drag)
        dragBy(event->position() - m_drag->pressedAt);
    else
        showCursor(event->position());
}

void CropOverlayView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    endDrag();
    showCursor(event->position());
}

void CropOverlayView::dragBy(const QPointF& translation) {
    if (!m_drag->start) {
        if (std::hypot(translation.x(), translation.y()) < kDragDistance)
            return;
        m_drag->start = m_state->cropRect();
    }
    const auto by = m_geometry.toPicture(translation);
    if (!by || !m_drag->start)
        return;
    // From where the drag began, so that rounding errors do not add up.
    const media::Rect start = *m_drag->start;
    if (const auto* handle = std::get_if<CropHandle>(&m_drag->grip))
        m_state->resizeCrop(start, *handle, *by);
    else
        m_state->moveCrop(start, *by);
}

void CropOverlayView::endDrag() {
    m_drag.reset();
    m_escape.end();
}

void CropOverlayView::takeDragBack() {
    const auto drag = std::exchange(m_drag, std::nullopt);
    if (drag->start)
        m_state->setCropRect(*drag->start);
    showCursor(mapFromGlobal(QCursor::pos()));
}

void CropOverlayView::showCursor(const QPointF& point) {
    const auto grip = m_drag ? std::optional<Grip>(m_drag->grip) : gripAt(point);
    if (!grip)
        unsetCursor();
    else if (const auto* handle = std::get_if<CropHandle>(&*grip))
        setCursor(cursorOf(*handle));
    else
        setCursor(m_drag ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

bool CropOverlayView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        // The arrows step frames for the window; while the crop has the focus they are its own.
        const auto* key = static_cast<QKeyEvent*>(event);
        if (CropKey::of(key->key(), key->modifiers())) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void CropOverlayView::keyPressEvent(QKeyEvent* event) {
    const auto key = CropKey::of(event->key(), event->modifiers());
    const auto crop = m_state->cropRect();
    if (!key || !crop) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!std::exchange(m_isFocusShown, true))
        update();
    const auto by = m_geometry.toPicture(key->translation);
    if (!by)
        return;
    if (key->handle)
        m_state->resizeCrop(*crop, *key->handle, *by);
    else
        m_state->moveCrop(*crop, *by);
}

void CropOverlayView::focusInEvent(QFocusEvent* event) {
    if (!isPassingFocus(event->reason()))
        m_isFocusShown = isKeyboardFocus(event->reason());
    update();
    QWidget::focusInEvent(event);
}

void CropOverlayView::focusOutEvent(QFocusEvent* event) {
    if (!isPassingFocus(event->reason())) {
        m_isFocusShown = false;
        m_state->history().endRun();
    }
    update();
    QWidget::focusOutEvent(event);
}

void CropOverlayView::paintEvent(QPaintEvent* /*event*/) {
    if (!m_state->cropRect())
        return;
    QPainter painter(this);
    CropPainting(painter, m_geometry, cropViewRect(), palette())
        .paint(hasFocus() && m_isFocusShown ? CropPainting::Focus::shown
                                            : CropPainting::Focus::hidden);
}

void CropOverlayView::announce() {
    if (!QAccessible::isActive())
        return;
    if (QString text = cropText(); text != m_announced) {
        m_announced = std::move(text);
        QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&changed);
    }
}

} // namespace brisklet
