#pragma once

#include <QKeyCombination>

#include <optional>

class QKeyEvent;
class QWidget;

namespace brisklet {

/// The key that an American keyboard has in the place of the one that was pressed, with its
/// modifiers; none if the pressed one means a Latin letter, a digit or a function by itself, or has
/// no such place. So "[" is the key beside "p" on keyboards without brackets, and the letters are
/// found on Cyrillic and Arabic ones.
std::optional<QKeyCombination> keyByPlace(const QKeyEvent& event);

/// Triggers the command of a window that has this key for its shortcut. False if there is none that
/// can be triggered now.
bool triggerShortcut(const QWidget& window, QKeyCombination key, bool isRepeated);

} // namespace brisklet
