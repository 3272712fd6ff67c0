#include "Views/PlayerLayerView.h"

#include "Media/Player.h"
#include "Media/Threading/Guarded.h"
#include "Support/ImageConversion.h"
#include "Views/PictureLayout.h"

#include <QPainter>

#include <utility>

namespace brisklet {

namespace {

QSize inDevicePixels(const QWidget& widget) {
    const qreal ratio = widget.devicePixelRatio();
    return {qRound(widget.width() * ratio), qRound(widget.height() * ratio)};
}

} // namespace

class PlayerLayerView::Sink final : public media::VideoSink {
public:
    explicit Sink(PlayerLayerView& view) : m_view(view) {}

    void present(const media::TimedImage& frame) override {
        const auto inbox = m_inbox.lock();
        inbox->newest = frame.image;
        // However many frames arrive before the main thread runs again, it takes only the newest.
        if (inbox->isUpdateAsked)
            return;
        // Noted only once it is done: if there is no memory for it, the frame comes again.
        QMetaObject::invokeMethod(&m_view, &PlayerLayerView::takeFrame, Qt::QueuedConnection);
        inbox->isUpdateAsked = true;
    }

    media::ImagePtr take() {
        const auto inbox = m_inbox.lock();
        inbox->isUpdateAsked = false;
        return inbox->newest;
    }

private:
    struct Inbox {
        media::ImagePtr newest;
        /// The main thread has been asked to take it.
        bool isUpdateAsked = false;
    };

    PlayerLayerView& m_view;
    media::Guarded<Inbox> m_inbox;
};

PlayerLayerView::PlayerLayerView(QWidget* parent)
    : QWidget(parent), m_sink(std::make_unique<Sink>(*this)) {}

PlayerLayerView::~PlayerLayerView() {
    setPlayer(nullptr);
}

void PlayerLayerView::setPlayer(std::shared_ptr<media::Player> player) {
    if (m_player)
        m_player->setVideoSink(nullptr);
    m_player = std::move(player);
    present({});
    m_announcedSize = QSize();
    if (!m_player)
        return;
    announceSize();
    m_player->setVideoSink(m_sink.get());
}

void PlayerLayerView::setRotation(int degrees) {
    if (m_rotation == degrees)
        return;
    m_rotation = degrees;
    announceSize();
    update();
}

QRectF PlayerLayerView::videoRect() const {
    const qreal ratio = devicePixelRatio();
    const QRect rect =
        PictureLayout::fit(m_image.size(), m_rotation, QRect({}, inDevicePixels(*this))).rect;
    return {rect.x() / ratio, rect.y() / ratio, rect.width() / ratio, rect.height() / ratio};
}

void PlayerLayerView::present(const media::TimedImage& frame) {
    m_sink->present(frame);
}

void PlayerLayerView::takeFrame() {
    m_image = toQImage(m_sink->take());
    update();
}

void PlayerLayerView::paintEvent(QPaintEvent* /*event*/) {
    // A window that moves to a screen of another density gets only a paint event.
    announceSize();
    if (m_image.isNull())
        return;
    QPainter painter(this);
    // Computed in device pixels, so that the picture's own pixels coincide with them.
    const QTransform toDevice = painter.deviceTransform();
    const QRect view = toDevice.mapRect(QRectF(rect())).toRect();
    const auto layout = PictureLayout::fit(m_image.size(), m_rotation, view);
    painter.setTransform(layout.transform * toDevice.inverted());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, layout.isScaled);
    painter.drawImage(QPointF(0, 0), m_image);
}

void PlayerLayerView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    announceSize();
}

void PlayerLayerView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    announceSize();
}

void PlayerLayerView::announceSize() {
    QSize size = inDevicePixels(*this);
    if (m_rotation % 180 != 0)
        size.transpose();
    if (!m_player || size.isEmpty() || size == m_announcedSize)
        return;
    m_announcedSize = size;
    m_player->setPreviewSize(size.width(), size.height());
}

} // namespace brisklet
