#pragma once

#include <QDialog>

#include <optional>

namespace brisklet {

/// The look and the place of a dialog that is a sheet. Main thread.
///
/// On X11 Qt may ask where the dialog is between the window manager's taking it into a frame and
/// the frame's moving to its place, take the corner of the screen for its place, and never hear of
/// another: its popups would appear there, and an assistive program would click there.
class SheetFrame final {
public:
    static Qt::WindowFlags flags() { return Qt::Dialog | Qt::FramelessWindowHint; }

    /// To be called at the end of the dialog's showEvent(), where it has its place.
    void shown(const QDialog& dialog) { m_place = dialog.pos(); }

    /// To be called at the end of its paintEvent(), when the window manager is done with it: draws
    /// the frame, and moves the dialog where it was shown, once.
    void paint(QDialog& dialog);

private:
    std::optional<QPoint> m_place;
};

/// A dialog over its window, drawn as a sheet: without a title bar, so that no window manager gives
/// it buttons to minimise or maximise it. Moves by a drag of its background. Main thread.
class Sheet : public QDialog {
    Q_OBJECT

public:
    explicit Sheet(QWidget* window);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    SheetFrame m_frame;
};

} // namespace brisklet
