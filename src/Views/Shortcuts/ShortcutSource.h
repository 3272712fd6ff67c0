#pragma once

#include <QList>
#include <QString>

namespace brisklet {

/// A key or gesture and what it does, both for people.
struct Shortcut {
    QString keys;
    QString effect;
};

/// What works in the same place.
struct ShortcutGroup {
    QString title;
    QList<Shortcut> shortcuts;
};

/// A view that handles keys or gestures in its own event handlers, and says which, for the page of
/// keyboard shortcuts. The page finds it among the widgets of its window.
class ShortcutSource {
public:
    ShortcutSource() = default;
    ShortcutSource(const ShortcutSource&) = delete;
    ShortcutSource& operator=(const ShortcutSource&) = delete;
    virtual ~ShortcutSource() = default;

    [[nodiscard]] virtual QList<ShortcutGroup> shortcutGroups() const = 0;
};

} // namespace brisklet
