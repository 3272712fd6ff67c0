#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// The colours and type sizes that all views share. They are derived from the desktop's palette and
/// font, so they follow its light or dark style. Main thread.
namespace brisklet::theme {

/// Text and symbols.
QColor primary(const QPalette& palette);
/// Less important text; its contrast with the window is still 4.5:1.
QColor secondary(const QPalette& palette);
/// Faint lines and fills.
QColor quaternary(const QPalette& palette);
/// What is switched on. Light or dark enough for a symbol on the window.
QColor accent(const QPalette& palette);
/// The same as a fill, and the colour of text on it, whose contrast is 4.5:1.
QColor accentFill(const QPalette& palette);
QColor onAccentFill(const QPalette& palette);
/// What removes something, such as the sound.
QColor red(const QPalette& palette);

bool isDark(const QPalette& palette);

/// The contrast of two colours as the Web Content Accessibility Guidelines define it, 1 to 21.
double contrast(const QColor& a, const QColor& b);

QFont captionFont(const QFont& font);
QFont headlineFont(const QFont& font);
QFont titleFont(const QFont& font);

} // namespace brisklet::theme
