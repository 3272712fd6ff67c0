#pragma once

#include "Views/Shortcuts/ShortcutSource.h"

#include <QKeySequence>
#include <QToolButton>

namespace brisklet {

/// A button of two parts: the label, which triggers the action, and a chevron at its end, which
/// opens the menu. menuKeys() open the menu too. Main thread.
class ExportButton final : public QToolButton, public ShortcutSource {
    Q_OBJECT

public:
    explicit ExportButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// Where a click opens the menu.
    [[nodiscard]] QRect menuRect() const;

    /// Opens the menu and returns.
    void popUpMenu();

    [[nodiscard]] bool isMenuOpen() const;

    /// Tells assistive technology what an export comes to, if that is known, and of the menu.
    void describe(const QString& forecast);

    static QList<QKeySequence> menuKeys();
    [[nodiscard]] QList<ShortcutGroup> shortcutGroups() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QRect labelRect() const;
    /// The palette of the enabled button.
    [[nodiscard]] QPalette enabledPalette() const;
    void paintFill(QPainter& painter) const;
};

} // namespace brisklet
