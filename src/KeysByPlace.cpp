#include "KeysByPlace.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>
#include <QString>
#include <QWidget>

#include <algorithm>
#include <array>
#include <string_view>

namespace brisklet {

namespace {

/// A row of keys, from left to right.
struct Row {
    /// Of its first key, as X11 and Wayland number them: Linux's input event codes and 8.
    quint32 firstCode;
    std::string_view keys;
};

constexpr std::array kRows{Row{24, "QWERTYUIOP[]"}, Row{38, "ASDFGHJKL;'"}, Row{52, "ZXCVBNM,./"}};

/// Whether people know the key by what is written on it, wherever it is.
bool isKnownByName(int key) {
    const bool isDead = key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay;
    const bool isFunction = key >= Qt::Key_Escape && !isDead;
    return isFunction || key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
           (key >= Qt::Key_A && key <= Qt::Key_Z);
}

} // namespace

std::optional<QKeyCombination> keyByPlace(const QKeyEvent& event) {
    if (isKnownByName(event.key()))
        return std::nullopt;
    const quint32 code = event.nativeScanCode();
    const auto hasKey = [code](const Row& row) {
        return code >= row.firstCode && code - row.firstCode < row.keys.size();
    };
    const auto row = std::ranges::find_if(kRows, hasKey);
    if (row == kRows.end())
        return std::nullopt;
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    return QKeyCombination(modifiers, static_cast<Qt::Key>(row->keys[code - row->firstCode]));
}

bool triggerShortcut(const QWidget& window, QKeyCombination key, bool isRepeated) {
    const QKeySequence wanted(key);
    for (QAction* action : window.findChildren<QAction*>()) {
        if (!action->isEnabled() || !action->shortcuts().contains(wanted))
            continue;
        if (!isRepeated || action->autoRepeat())
            action->trigger();
        return true;
    }
    for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        const auto* owner = qobject_cast<QWidget*>(shortcut->parent());
        if (!shortcut->isEnabled() || shortcut->key() != wanted || owner == nullptr ||
            !owner->isVisible() || !owner->isEnabled())
            continue;
        if (!isRepeated || shortcut->autoRepeat())
            Q_EMIT shortcut->activated();
        return true;
    }
    return false;
}

} // namespace brisklet
