#pragma once

#include <QLabel>

namespace brisklet {

/// One line of text whose digits do not move when a number changes. Main thread.
class TabularLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brisklet
