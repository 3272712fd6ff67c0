#include "Views/Shortcuts/ShortcutList.h"

#include <QAction>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QShortcut>
#include <QWidget>

namespace brisklet {

namespace {

/// Without the mnemonic, which some scripts have in brackets, and the key that some titles carry
/// after a tab. A command whose title changes has its name as the text beside an icon, which Qt
/// gives without “&”.
QString titleOf(const QAction& action) {
    static const QRegularExpression inBrackets(QStringLiteral("\\(\\w\\)$"));
    return action.iconText().section(u'\t', 0, 0).remove(inBrackets);
}

QString namesOf(const QList<QKeySequence>& keys) {
    QStringList names;
    for (const QKeySequence& key : keys)
        names << nameOf(key);
    return names.join(QStringLiteral(", "));
}

void append(QList<ShortcutGroup>& groups, const ShortcutGroup& group) {
    if (!group.shortcuts.isEmpty())
        groups << group;
}

void appendMenus(QList<ShortcutGroup>& groups, const QMenuBar& menuBar) {
    for (const QAction* entry : menuBar.actions()) {
        ShortcutGroup group{titleOf(*entry), {}};
        for (const QAction* command : entry->menu()->actions()) {
            if (!command->shortcuts().isEmpty())
                group.shortcuts << Shortcut{namesOf(command->shortcuts()), titleOf(*command)};
        }
        append(groups, group);
    }
}

/// Not those of the dialogs over the window.
bool isOf(const QWidget& window, const QObject* child) {
    const auto* widget = qobject_cast<const QWidget*>(child);
    return widget != nullptr && widget->window() == &window;
}

void appendControls(QList<ShortcutGroup>& groups, const QWidget& window) {
    ShortcutGroup group{QCoreApplication::translate("brisklet::KeyboardShortcutsView", "Controls"),
                        {}};
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        if (isOf(window, shortcut->parent()))
            group.shortcuts << Shortcut{namesOf({shortcut->key()}), shortcut->whatsThis()};
    }
    append(groups, group);
}

} // namespace

QString nameOf(const QKeySequence& key) {
    QString name = key.toString(QKeySequence::NativeText);
    if (!QGuiApplication::isRightToLeft() || name.isEmpty() || name.back().isLetterOrNumber())
        return name;
    constexpr QChar kLeftToRightOverride(0x202d);
    constexpr QChar kEndOfOverride(0x202c);
    return kLeftToRightOverride + name + kEndOfOverride;
}

QList<ShortcutGroup> shortcutsOf(const QWidget& window) {
    QList<ShortcutGroup> groups;
    if (const auto* menuBar = window.findChild<QMenuBar*>())
        appendMenus(groups, *menuBar);
    appendControls(groups, window);
    for (const QWidget* view : window.findChildren<QWidget*>()) {
        const auto* source = dynamic_cast<const ShortcutSource*>(view);
        if (source == nullptr || !isOf(window, view))
            continue;
        for (const ShortcutGroup& group : source->shortcutGroups())
            append(groups, group);
    }
    return groups;
}

} // namespace brisklet
