#pragma once

#include "Views/Shortcuts/ShortcutSource.h"

#include <QDialog>

namespace brisklet {

/// The page of keyboard shortcuts and mouse gestures of one window, in a dialog beside it that
/// blocks nothing. Escape closes it. Main thread.
class KeyboardShortcutsView final : public QDialog {
    Q_OBJECT

public:
    KeyboardShortcutsView(const QList<ShortcutGroup>& groups, QWidget* window);

    /// Opens the page of a window, or brings the one that is open to the front.
    static void openFor(QWidget& window);
};

} // namespace brisklet
