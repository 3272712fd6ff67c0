#include "Views/Crop/CropOverlayAccessible.h"

#include "Views/Crop/CropOverlayView.h"

#include <QAccessibleWidget>

namespace brisklet {

namespace {

/// The size is in the description as well: not every accessibility bridge passes on the text of a
/// value.
class CropOverlayAccessible final : public QAccessibleWidget {
public:
    explicit CropOverlayAccessible(CropOverlayView* view)
        : QAccessibleWidget(view, QAccessible::Graphic), m_view(*view) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value || kind == QAccessible::Description)
            return m_view.cropText();
        return QAccessibleWidget::text(kind);
    }

    QRect rect() const override {
        const QRect crop = m_view.cropViewRect().toAlignedRect();
        return {m_view.mapToGlobal(crop.topLeft()), crop.size()};
    }

private:
    /// Outlives its interface, which it owns.
    CropOverlayView& m_view;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* view = qobject_cast<CropOverlayView*>(object);
    return view ? new CropOverlayAccessible(view) : nullptr;
}

} // namespace

void installCropOverlayAccessibility() {
    // Installing a factory that is there already does nothing.
    QAccessible::installFactory(makeInterface);
}

} // namespace brisklet
