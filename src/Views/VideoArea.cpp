#include "Views/VideoArea.h"

#include "Models/EditState.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/Painting/RoundCorners.h"
#include "Views/PlayerContainerView.h"
#include "Views/PlayerLayerView.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPaintEvent>

#include <algorithm>
#include <utility>

namespace brisklet {

namespace {

constexpr int kCropHandleSize = 12;

/// Covers one corner of its parent outside the rounding with the colour of the window.
class Corner final : public QWidget {
public:
    explicit Corner(QWidget* parent) : QWidget(parent) {
        setFixedSize(kVideoCornerRadius, kVideoCornerRadius);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        paintRoundCorners(painter, parentWidget()->rect().translated(-pos()), kVideoCornerRadius,
                          palette().color(QPalette::Window));
    }
};

/// The picture only: the corners are nothing but paint.
class VideoAreaAccessible final : public QAccessibleWidget {
public:
    explicit VideoAreaAccessible(VideoArea* area) : QAccessibleWidget(area), m_area(*area) {}

    int childCount() const override { return 1; }

    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(&m_area.player()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == &m_area.player() ? 0 : -1;
    }

private:
    /// Outlives its interface, which it owns.
    VideoArea& m_area;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* area = qobject_cast<VideoArea*>(object);
    return area != nullptr ? new VideoAreaAccessible(area) : nullptr;
}

/// The rectangle whose edges are the nearest whole points.
QRect onWholePoints(const QRectF& rect) {
    const QPoint topLeft(qRound(rect.left()), qRound(rect.top()));
    return {topLeft,
            QSize(qRound(rect.right()), qRound(rect.bottom())) - QSize(topLeft.x(), topLeft.y())};
}

} // namespace

QRectF fittedPicture(media::Size picture, QSizeF area) {
    const media::Size shown =
        picture.width == 0 && picture.height == 0 ? media::Size{16, 9} : picture;
    const media::Rect fitted = media::fitAspect(shown, {0, 0, area.width(), area.height()});
    return {fitted.x, fitted.y, fitted.width, fitted.height};
}

VideoArea::VideoArea(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_player(new PlayerContainerView(nullptr, this)),
      m_cropOverlay(new CropOverlayView(m_state, kCropHandleSize, parent)) {
    // Once for the program: installing a factory that is there already does nothing.
    QAccessible::installFactory(makeInterface);
    std::ranges::generate(m_corners, [this] { return new Corner(this); });
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    const EditState* model = m_state.get();
    connect(model, &EditState::videoURLChanged, this, &VideoArea::showPlayer);
    connect(model, &EditState::displaySizeChanged, this, &VideoArea::layOut);
    connect(model, &EditState::rotationChanged, this, &VideoArea::showRotation);
    showPlayer();
    showRotation();
}

VideoArea::~VideoArea() {
    m_state->disconnect(this);
}

void VideoArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
}

void VideoArea::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    layOut();
}

/// Asks for the player only once there is a video: asking for it creates it.
void VideoArea::showPlayer() {
    if (m_state->videoURL())
        m_player->setPlayer(m_state->playerController().player());
}

void VideoArea::showRotation() {
    m_player->layerView().setRotation(m_state->rotation());
    layOut();
}

void VideoArea::layOut() {
    // The player is on whole points, and the overlay uses the same rectangle.
    const QRect picture = onWholePoints(fittedPicture(m_state->rotatedDisplaySize(), size()));
    m_player->setGeometry(picture);
    // Beyond this view, so that the handles at the edges of the picture are whole.
    const int reach = m_cropOverlay->reach();
    m_cropOverlay->setGeometry(geometry().adjusted(-reach, -reach, reach, reach));
    m_cropOverlay->setVideoRect(picture.translated(reach, reach));
    m_cropOverlay->setArea(rect().translated(reach, reach), kVideoCornerRadius);
    m_corners[0]->move(0, 0);
    m_corners[1]->move(width() - kVideoCornerRadius, 0);
    m_corners[2]->move(width() - kVideoCornerRadius, height() - kVideoCornerRadius);
    m_corners[3]->move(0, height() - kVideoCornerRadius);
}

void VideoArea::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), Qt::black);
}

} // namespace brisklet
