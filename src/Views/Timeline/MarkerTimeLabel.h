#pragma once

#include "Views/Painting/TabularLabel.h"

namespace brisklet {

/// The exact time of a marker in a small frame, over whatever is beside the marker. Transparent to
/// the mouse. Main thread.
class MarkerTimeLabel final : public TabularLabel {
    Q_OBJECT

public:
    explicit MarkerTimeLabel(QWidget* parent);

    /// Shows `text` above `strip`, centred at `x`, as far as it is inside the parent; below the
    /// strip where there is no room above. Both in the coordinates of the parent.
    void showBeside(const QRect& strip, double x, const QString& text);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brisklet
