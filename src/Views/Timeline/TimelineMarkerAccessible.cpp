#include "Views/Timeline/TimelineMarkerAccessible.h"

#include "Views/Timeline/TimelineMarker.h"

#include <QAccessibleWidget>

namespace brisklet {

namespace {

/// A slider in seconds. The time as text is in the description as well: not every accessibility
/// bridge passes on the text of a value.
class TimelineMarkerAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit TimelineMarkerAccessible(TimelineMarker* marker)
        : QAccessibleWidget(marker, QAccessible::Slider), m_marker(*marker) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value || kind == QAccessible::Description)
            return m_marker.valueText();
        return QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_marker.value(); }

    void setCurrentValue(const QVariant& value) override { m_marker.setValue(value.toDouble()); }

    QVariant minimumValue() const override { return m_marker.minimum(); }

    QVariant maximumValue() const override { return m_marker.maximum(); }

    QVariant minimumStepSize() const override { return 0.0; }

private:
    /// Outlives its interface, which it owns.
    TimelineMarker& m_marker;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* marker = qobject_cast<TimelineMarker*>(object);
    return marker ? new TimelineMarkerAccessible(marker) : nullptr;
}

} // namespace

void installTimelineMarkerAccessibility() {
    // Installing a factory that is there already does nothing.
    QAccessible::installFactory(makeInterface);
}

} // namespace brisklet
