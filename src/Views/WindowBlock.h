#pragma once

#include <QObject>

class QEvent;
class QWidget;

namespace brisklet {

/// Keeps the mouse, the keyboard and drops away from a window while a sheet lies over it, and
/// brings the sheet to the front instead. That is what a modal dialog does too, but Qt also drops
/// the close button of a window behind a modal dialog, and this lets it through. An event filter of
/// the application. Main thread.
class WindowBlock final : public QObject {
    Q_OBJECT

public:
    /// Begins at once and ends with the object. `sheet` outlives it, and `window` the sheet.
    WindowBlock(QWidget& window, QWidget& sheet);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isKeptAway(const QObject* watched, const QEvent& event) const;
    void showSheet();

    QWidget& m_window;
    QWidget& m_sheet;
};

} // namespace brisklet
