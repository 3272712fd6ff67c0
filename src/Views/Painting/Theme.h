#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// The few colours and type sizes that all views share, derived from the palette and the font that
/// the desktop gives, so that they follow its light or dark look. Main thread.
namespace brisklet::theme {

/// Text and symbols.
QColor primary(const QPalette& palette);
/// Less important text; still 4.5:1 against the window.
QColor secondary(const QPalette& palette);
/// Faint lines and fills.
QColor quaternary(const QPalette& palette);
/// What is switched on. Made as light or dark as a symbol on the window needs it.
QColor accent(const QPalette& palette);
/// The same as a fill, and what is written on it at 4.5:1.
QColor accentFill(const QPalette& palette);
QColor onAccentFill(const QPalette& palette);
/// What takes something away, such as the sound.
QColor red(const QPalette& palette);

bool isDark(const QPalette& palette);

/// The contrast of two colours as the Web Content Accessibility Guidelines define it, 1 to 21.
double contrast(const QColor& a, const QColor& b);

QFont captionFont(const QFont& font);
QFont headlineFont(const QFont& font);
QFont titleFont(const QFont& font);

} // namespace brisklet::theme
