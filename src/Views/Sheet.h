#pragma once

#include <QDialog>

namespace brisklet {

/// A dialog over its window, drawn as a sheet: without a title bar, so that no window manager gives
/// it buttons to minimise or maximise it. Moves by a drag of its background. Main thread.
class Sheet : public QDialog {
    Q_OBJECT

public:
    explicit Sheet(QWidget* window);

    /// What makes another dialog look like one.
    static Qt::WindowFlags flags() { return Qt::Dialog | Qt::FramelessWindowHint; }

    static void paintFrame(QWidget& sheet);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace brisklet
