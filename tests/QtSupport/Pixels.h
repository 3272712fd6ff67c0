#pragma once

#include <QBackingStore>
#include <QColor>
#include <QDir>
#include <QEvent>
#include <QImage>
#include <QObject>
#include <QPaintEvent>
#include <QPixmap>
#include <QRegion>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace testsupport {

/// What a view paints, itself and its children, at the scale of its screen.
class Pixels final {
public:
    explicit Pixels(QWidget& view) : m_image(view.grab().toImage()) {
        m_image.convertTo(QImage::Format_ARGB32);
    }

    [[nodiscard]] double scale() const { return m_image.devicePixelRatioF(); }

    /// The colour of the pixel of the screen that holds a point of the view.
    [[nodiscard]] QColor at(double x, double y) const {
        return m_image.pixelColor(static_cast<int>(x * scale()), static_cast<int>(y * scale()));
    }

    [[nodiscard]] const QImage& image() const { return m_image; }

private:
    QImage m_image;
};

/// Whether no channel differs by more than `tolerance` of 255.
inline bool isNear(const QColor& a, const QColor& b, int tolerance = 3) {
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())}) <= tolerance;
}

/// `opacity` of black over a colour.
inline QColor underBlack(const QColor& color, double opacity) {
    const auto part = [opacity](int channel) { return qRound(channel * (1 - opacity)); };
    return {part(color.red()), part(color.green()), part(color.blue())};
}

/// What the screen shows of a window: everything that was painted in parts. Null where the platform
/// does not paint on images.
inline QImage onScreen(const QWidget& window) {
    const QPaintDevice* device = window.backingStore()->paintDevice();
    if (device->devType() != QInternal::Image)
        return {};
    return static_cast<const QImage*>(device)->convertToFormat(QImage::Format_RGB32);
}

/// What the window would show if it were painted at once.
inline QImage paintedAtOnce(QWidget& window) {
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Remembers what parts of a view are painted.
class PaintedRegion final : public QObject {
public:
    explicit PaintedRegion(QWidget& view) { view.installEventFilter(this); }

    [[nodiscard]] const QRegion& region() const { return m_region; }

    /// Points of area.
    [[nodiscard]] int area() const {
        int sum = 0;
        for (const QRect& rect : m_region)
            sum += rect.width() * rect.height();
        return sum;
    }

    void clear() { m_region = QRegion(); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    QRegion m_region;
};

/// Keeps a picture of a view for people to look at, where BRISKLET_PICTURES names a folder.
inline void keepPicture(QWidget& view, const QString& name) {
    const QString folder = qEnvironmentVariable("BRISKLET_PICTURES");
    if (!folder.isEmpty())
        view.grab().save(QDir(folder).filePath(
            QStringLiteral("%1@%2x.png").arg(name).arg(view.devicePixelRatioF())));
}

} // namespace testsupport
